#include "model/ShapePoint.h"
#include "render/Canvas.h"
#include "render/ShapeDrawing.h"

namespace hullwright {

void CShapePoint::Draw(const CViewPort* viewPort)
{
  constexpr float halfMarker = 2.5F;
  constexpr float highlightWidth = 6.0F;
  CCanvas* const canvas = DrawableCanvas(viewPort);
  if (canvas == nullptr || !viewPort->Contains(position.x, position.y)) return;
  IRenderTarget& target = *canvas->renderTarget;
  const auto brush = target.CreateSolidColourBrush(Colours::black);
  if (!brush) return;
  const PixelPoint p = Narrowed(viewPort->WorldToScreen(position.x, position.y));
  const PixelRect marker{p.x - halfMarker, p.y - halfMarker, p.x + halfMarker, p.y + halfMarker};
  if (selected) {
    brush->SetColour(Colours::highlight);
    target.DrawRectangle(marker, *brush, highlightWidth);
    brush->SetColour(Colours::black);
  }
  target.FillRectangle(marker, *brush);
}

bool CShapePoint::HitTest(const CViewPort* viewPort, double x, double y) const
{
  if (viewPort == nullptr) return false;
  const double t = HitTolerance(*viewPort);
  return x > position.x - t && position.x + t > x && y > position.y - t && position.y + t > y;
}

bool CShapePoint::IsVisible(const CViewPort& viewPort) const
{
  return viewPort.Contains(position.x, position.y);
}

}  // namespace hullwright
