#include "model/ShapePolygonRing.h"

#include <algorithm>
#include <cstddef>

#include "model/RingTest.h"

namespace hullwright {

CShapePolygonRing::CShapePolygonRing() { type = ShapeType::Ring; }

std::unique_ptr<CShapePolygonRing> CShapePolygonRing::CopyRing() const
{
  auto copy = std::make_unique<CShapePolygonRing>();
  CopyBaseTo(copy.get());
  copy->CopyVertices(*this);
  return copy;
}

bool CShapePolygonRing::ContainsPoint(double x, double y) const
{
  constexpr std::size_t fewest = 3;
  const std::size_t count = vertices.size();
  if (count < fewest) return false;
  RingTest test(x, y);
  for (std::size_t i = 0; i < count; ++i) {
    const CShapeVertex* const a = vertices[i].get();
    const CShapeVertex* const b = vertices[(i + 1) % count].get();
    if (a != nullptr && b != nullptr && test.AddEdge(a->x, a->y, b->x, b->y)) break;
  }
  return test.Inside();
}

double CShapePolygonRing::DistanceTo(double x, double y) const
{
  constexpr double unreached = 1e24;
  if (vertices.empty() || vertices.back() == nullptr || ContainsPoint(x, y)) return 0.0;
  const CShapeVertex point(x, y, 0.0);
  double nearest = unreached;
  const CShapeVertex* from = vertices.back().get();
  for (const auto& to : vertices) {
    double distance = 0.0;
    if (from != nullptr && to && DistanceToSegment(*from, *to, point, distance)) {
      nearest = std::min(nearest, distance);
    }
    from = to.get();
  }
  return nearest;
}

void CShapePolygonRing::TakeOut(const CShapeVertex* vertex)
{
  for (auto entry = vertices.begin(); entry != vertices.end();) {
    if (entry->get() == vertex) {
      static_cast<void>(entry->release());
      entry = vertices.erase(entry);
    } else {
      ++entry;
    }
  }
}

void CShapePolygonRing::RemoveVertex(const CShapeVertex* vertex)
{
  const std::unique_ptr<const CShapeVertex> handedOver(vertex);
  TakeOut(vertex);
}

}  // namespace hullwright
