#include "model/ShapePolygon.h"

#include <algorithm>
#include <utility>

namespace hullwright {

CShapePolygon::CShapePolygon() { type = ShapeType::Polygon; }

std::unique_ptr<CShape> CShapePolygon::Clone() const
{
  auto copy = std::make_unique<CShapePolygon>();
  CopyBaseTo(copy.get());
  copy->rings.reserve(rings.size());
  ForEachEntry(rings,
               [&](const CShapePolygonRing& ring) { copy->rings.push_back(ring.CopyRing()); });
  return copy;
}

void CShapePolygon::GetExtents(Extents& box) const
{
  ForEachEntry(rings, [&](const CShapePolygonRing& ring) { ring.GetExtents(box); });
}

double CShapePolygon::DistanceTo(double x, double y) const
{
  constexpr double unreached = 1e24;
  double nearest = unreached;
  ForEachEntry(rings, [&](const CShapePolygonRing& ring) {
    nearest = std::min(nearest, ring.DistanceTo(x, y));
  });
  return nearest;
}

void CShapePolygon::RemoveVertex(const CShapeVertex* vertex)
{
  bool handedOver = false;
  ForEachEntry(rings, [&](CShapePolygonRing& ring) {
    ring.TakeOut(vertex);
    handedOver = true;
  });
  if (handedOver) delete vertex;  // the rings are its owners, and each would release it
}

void CShapePolygon::GetVertices(std::vector<CShapeVertex*>& list)
{
  ForEachEntry(rings, [&](CShapePolygonRing& ring) { ring.GetVertices(list); });
}

void CShapePolygon::Translate(double dx, double dy, double dz)
{
  ForEachEntry(rings, [&](CShapePolygonRing& ring) { ring.Translate(dx, dy, dz); });
}

void CShapePolygon::Scale(double sx, double sy, double sz)
{
  ForEachEntry(rings, [&](CShapePolygonRing& ring) { ring.Scale(sx, sy, sz); });
}

void CShapePolygon::Rotate(double angleDegrees)
{
  ForEachEntry(rings, [&](CShapePolygonRing& ring) { ring.Rotate(angleDegrees); });
}

void CShapePolygon::AddVertex(std::unique_ptr<CShapeVertex> vertex, std::size_t ringIndex)
{
  if (ringIndex >= rings.size()) {
    rings.push_back(std::make_unique<CShapePolygonRing>());
    ringIndex = rings.size() - 1;
  }
  if (rings[ringIndex]) rings[ringIndex]->vertices.push_back(std::move(vertex));
}

}  // namespace hullwright
