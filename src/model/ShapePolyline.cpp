#include "model/ShapePolyline.h"

#include <algorithm>
#include <cmath>

#include "model/Angle.h"

namespace hullwright {

CShapePolyline::CShapePolyline() { type = ShapeType::Polyline; }

std::unique_ptr<CShapePolyline> CShapePolyline::CreateArc(double cx, double cy, double radius,
                                                          double startDegrees, double sweepDegrees)
{
  auto arc = std::make_unique<CShapePolyline>();
  arc->AddArc(cx, cy, radius, startDegrees, sweepDegrees);
  return arc;
}

std::unique_ptr<CShape> CShapePolyline::Clone() const
{
  auto copy = std::make_unique<CShapePolyline>();
  CopyBaseTo(copy.get());
  copy->vertices.reserve(vertices.size());
  ForEachEntry(vertices, [&](const CShapeVertex& v) { copy->AddVertex(v.x, v.y, v.z); });
  return copy;
}

void CShapePolyline::RemoveVertex(const CShapeVertex* vertex)
{
  const auto found = std::ranges::find(vertices, vertex, &std::unique_ptr<CShapeVertex>::get);
  if (found != vertices.end()) vertices.erase(found);
}

void CShapePolyline::AppendVertices(const CShapePolyline* source)
{
  if (source == nullptr) return;
  WalkPresent(source->cursor, source->vertices, [this](const CShapeVertex& v) {
    vertices.push_back(std::make_unique<CShapeVertex>(v));
  });
}

void CShapePolyline::AddArc(double cx, double cy, double radius, double startDegrees,
                            double sweepDegrees)
{
  constexpr int arcVertices = 61;
  vertices.reserve(vertices.size() + arcVertices);
  const double step = sweepDegrees / (arcVertices - 1);
  double degrees = startDegrees;
  for (int i = 0; i < arcVertices; ++i) {
    const double a = degrees * radiansPerDegree;
    AddVertex(cx - std::cos(a) * radius, cy + std::sin(a) * radius, 0.0);
    degrees += step;
  }
}

}  // namespace hullwright
