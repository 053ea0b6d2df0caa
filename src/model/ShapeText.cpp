#include "model/ShapeText.h"

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

void CShapeText::GetExtents(Extents& box) const
{
  if (!vertices.empty() && vertices.front()) {
    box.WidenAround(*vertices.front());
  }
}

}  // namespace hullwright
