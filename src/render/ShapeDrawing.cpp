#include "render/ShapeDrawing.h"

#include "model/Shape.h"
#include "model/ShapeStyle.h"
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

Colour LineColour(const ShapeStyle* style)
{
  if (style == nullptr) return Colours::black;
  const auto part = [style](unsigned shift) {
    return static_cast<float>(((style->lineColour >> shift) & 0xFFU) / 255.0);
  };
  return {part(0), part(8), part(16), 1.0F};
}

void CShape::Draw(const CViewPort*) {}

bool CShape::HitTest(const CViewPort*, double, double) const { return false; }

bool CShape::IsVisible(const CViewPort&) const { return true; }

}  // namespace hullwright
