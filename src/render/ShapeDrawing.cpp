#include "render/ShapeDrawing.h"

#include "model/Shape.h"
#include "model/ShapeColours.h"
#include "render/Canvas.h"

namespace hullwright {

const CCanvas* DrawableCanvas(const CViewPort* viewPort)
{
  return TargetOf(viewPort) == nullptr ? nullptr : viewPort->canvas;
}

IDrawingTarget* TargetOf(const CViewPort* viewPort)
{
  if (viewPort == nullptr || viewPort->canvas == nullptr) return nullptr;
  return viewPort->canvas->Target();
}

double HitTolerance(const CViewPort& viewPort)
{
  constexpr double tolerancePixels = 10.0;
  return viewPort.width / viewPort.screenWidth * tolerancePixels;
}

Colour LineColour(const ShapeStyle& style)
{
  const auto part = [](int value) { return static_cast<float>(value / 255.0); };
  const std::uint32_t colour = style.lineColour;
  return {part(RedOf(colour)), part(GreenOf(colour)), part(BlueOf(colour)), 1.0F};
}

void CShape::Draw(const CViewPort*) {}

bool CShape::HitTest(const CViewPort*, double, double) const { return false; }

bool CShape::IsVisible(const CViewPort&) const { return true; }

}  // namespace hullwright
