#include "model/ShapePoint.h"

namespace hullwright {

CShapePoint::CShapePoint() { type = ShapeType::Point; }

std::unique_ptr<CShape> CShapePoint::Clone() const
{
  auto copy = std::make_unique<CShapePoint>();
  CopyBaseTo(copy.get());
  copy->position = CShapeVertex(position.x, position.y, position.z);
  return copy;
}

void CShapePoint::GetExtents(Extents& box) const { box.WidenAround(position); }

void CShapePoint::GetVertices(std::vector<CShapeVertex*>& list) { list.push_back(&position); }

void CShapePoint::Translate(double dx, double dy, double dz)
{
  position += CShapeVertex(dx, dy, dz);
}

void CShapePoint::Scale(double sx, double sy, double sz) { ScaleVertex(position, sx, sy, sz); }

void CShapePoint::Rotate(double angleDegrees)
{
  if (angleDegrees != 0.0) RotateVertex(position, angleDegrees);
}

}  // namespace hullwright
