#include <algorithm>
#include <array>
#include <vector>

#include "model/ShapePolygon.h"
#include "render/ShapeDrawing.h"

namespace hullwright {

void CShapePolygon::Draw(const CViewPort* viewPort)
{
  IDrawingTarget* const target = TargetOf(viewPort);
  if (target == nullptr) return;
  std::vector<PixelPoint> points;
  std::vector<std::size_t> ends;
  ForEachEntry(rings, [&](const CShapePolygonRing& ring) {
    const std::size_t before = points.size();
    ForEachEntry(ring.vertices, [&](const CShapeVertex& v) {
      points.push_back(Narrowed(viewPort->WorldToScreen(v.x, v.y)));
    });
    if (points.size() > before) ends.push_back(points.size());
  });
  // The outline is white on the pale paper and the inside is not filled, whatever the style says.
  target->DrawFigures({FigureKind::Outline, points, ends},
                      {selected ? Colours::highlight : Colours::white, 1.0F});
}

bool CShapePolygon::HitTest(const CViewPort*, double x, double y) const
{
  bool inside = false;
  ForEachEntry(rings, [&](const CShapePolygonRing& ring) {
    if (ring.ContainsPoint(x, y)) inside = !inside;
  });
  return inside;
}

bool CShapePolygon::IsVisible(const CViewPort&) const { return true; }

bool CShapePolygonRing::IsVisible(const CViewPort& viewPort) const
{
  const auto inView = [&](const CShapeVertex& v) { return viewPort.Contains(v.x, v.y); };
  if (AnyEntry(vertices, inView)) return true;
  const std::array<WorldPoint, 4> corners = {{{viewPort.left, viewPort.bottom},
                                              {viewPort.right, viewPort.bottom},
                                              {viewPort.right, viewPort.top},
                                              {viewPort.left, viewPort.top}}};
  return std::ranges::any_of(corners,
                             [this](const WorldPoint& c) { return ContainsPoint(c.x, c.y); });
}

}  // namespace hullwright
