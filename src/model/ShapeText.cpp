#include "model/ShapeText.h"

#include "model/Extents.h"

namespace hullwright {

CShapeText::CShapeText() { type = ShapeType::Text; }

std::unique_ptr<CShape> CShapeText::Clone() const
{
  auto copy = std::make_unique<CShapeText>();
  CopyBaseTo(copy.get());
  copy->CopyVertices(*this);
  copy->text = text;
  copy->angle = angle;
  copy->height = height;
  return copy;
}

void CShapeText::GetExtents(double& minX, double& minY, double& maxX, double& maxY) const
{
  if (!vertices.empty() && vertices.front()) {
    WidenExtentsAround(*vertices.front(), minX, minY, maxX, maxY);
  }
}

}  // namespace hullwright
