#include "model/ShapePoint.h"
#include "render/ShapeDrawing.h"

namespace hullwright {

void CShapePoint::Draw(const CViewPort* viewPort)
{
  constexpr float halfMarker = 2.5F;
  constexpr float highlightWidth = 6.0F;
  IDrawingTarget* const target = TargetOf(viewPort);
  if (target == nullptr || !viewPort->Contains(position.x, position.y)) return;
  const PixelPoint p = Narrowed(viewPort->WorldToScreen(position.x, position.y));
  const PixelRect marker{p.x - halfMarker, p.y - halfMarker, p.x + halfMarker, p.y + halfMarker};
  if (selected) target->DrawRectangle(marker, {Colours::highlight, highlightWidth});
  target->FillRectangle(marker, Colours::black);
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
