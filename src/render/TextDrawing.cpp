#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Angle.h"
#include "model/RingTest.h"
#include "model/ShapeColours.h"
#include "model/ShapeText.h"
#include "render/Canvas.h"
#include "render/ShapeDrawing.h"

namespace hullwright {
namespace {

/// The corner that lies `length` pixels from another in a direction.
CShapeText::Corner Beside(const CShapeText::Corner& corner, double degrees, float length)
{
  const double a = degrees * radiansPerDegree;
  return {static_cast<float>(corner.x + std::cos(a) * length),
          static_cast<float>(corner.y + std::sin(a) * length)};
}

/// The outline of a text of a size, for later hits. The angle is turned step by step and back, as
/// its last bits show.
std::array<CShapeText::Corner, 4> BoxOf(PixelPoint anchor, PixelSize size, double& angle)
{
  constexpr double quarter = 90.0;
  constexpr double half = 180.0;
  std::array<CShapeText::Corner, 4> box;
  box[0] = {anchor.x, anchor.y};
  box[1] = Beside(box[0], angle, size.width);
  angle -= quarter;
  box[2] = Beside(box[1], angle, size.height);
  angle -= quarter;
  box[3] = Beside(box[2], angle, size.width);
  angle += half;
  return box;
}

}  // namespace

void CShapeText::Draw(const CViewPort* viewPort)
{
  if (viewPort == nullptr || viewPort->canvas == nullptr) return;
  if (vertices.empty() || !vertices.front()) return;
  const CShapeVertex& anchor = *vertices.front();
  if (!viewPort->Contains(anchor.x, anchor.y)) return;
  TrimSpace(text);  // also where nothing can be drawn at the moment
  const CCanvas* const canvas = DrawableCanvas(viewPort);
  if (canvas == nullptr || text.empty()) return;

  const auto size = static_cast<float>(height / (viewPort->height / viewPort->screenHeight));
  const TextStyle face{u"Consolas", size};
  const auto measured = canvas->MeasureText(text, face);
  if (!measured) return;
  const PixelPoint p = Narrowed(viewPort->WorldToScreen(anchor.x, anchor.y));
  screenBox = BoxOf(p, *measured, angle);

  TextBlock block{text, face, {p.x, p.y - measured->height, p.x + measured->width, p.y}};
  block.colour = LineColour(StyleOf(*this));
  if (selected) block.ground = Colours::highlight;
  block.turn = Turn{static_cast<float>(angle + viewPort->rotation), p};
  canvas->Target()->DrawText(block);
}

bool CShapeText::HitTest(const CViewPort* viewPort, double x, double y) const
{
  if (viewPort == nullptr) return false;
  const double px = (x - viewPort->left) / (viewPort->width / viewPort->screenWidth);
  const double py = (y - viewPort->bottom) / (viewPort->height / viewPort->screenHeight);
  RingTest test(TruncateToInt32(px), TruncateToInt32(viewPort->screenHeight - py));
  for (std::size_t i = 0; i < screenBox.size(); ++i) {
    const Corner& a = screenBox[i];
    const Corner& b = screenBox[(i + 1) % screenBox.size()];
    if (test.AddEdge(a.x, a.y, b.x, b.y)) break;
  }
  return test.Inside();
}

}  // namespace hullwright
