#include "model/OutlineShape.h"

namespace hullwright {

void COutlineShape::GetExtents(Extents& box) const
{
  Extents widened = box;  // a copy that no vertex can be part of stays in registers
  ForEachEntry(vertices, [&](const CShapeVertex& v) { widened.Widen(v); });
  box = widened;
}

void COutlineShape::GetVertices(std::vector<CShapeVertex*>& list)
{
  for (const auto& vertex : vertices) list.push_back(vertex.get());
}

void COutlineShape::Translate(double dx, double dy, double dz)
{
  const CShapeVertex offset(dx, dy, dz);
  ForEachEntry(vertices, [&](CShapeVertex& v) { v += offset; });
}

void COutlineShape::Scale(double sx, double sy, double sz)
{
  ForEachEntry(vertices, [&](CShapeVertex& v) { ScaleVertex(v, sx, sy, sz); });
}

void COutlineShape::Rotate(double angleDegrees)
{
  if (angleDegrees == 0.0) return;
  ForEachEntry(vertices, [&](CShapeVertex& v) { RotateVertex(v, angleDegrees); });
}

void COutlineShape::CopyVertices(const COutlineShape& source)
{
  vertices.reserve(vertices.size() + source.vertices.size());
  ForEachEntry(source.vertices, [this](const CShapeVertex& v) {
    vertices.push_back(std::make_unique<CShapeVertex>(v));
  });
}

}  // namespace hullwright
