#include "model/Shape.h"

namespace hullwright {

CShape::CShape() { Reset(); }

std::unique_ptr<CShape> CShape::Clone() const { return nullptr; }

void CShape::GetExtents(Extents&) const {}

double CShape::DistanceTo(double, double) const { return 0.0; }

void CShape::RemoveVertex(const CShapeVertex*) {}

void CShape::GetVertices(std::vector<CShapeVertex*>&) {}

void CShape::Translate(double, double, double) {}

void CShape::Scale(double, double, double) {}

void CShape::Rotate(double) {}

void CShape::Reset()
{
  type = ShapeType::None;
  tag = 0;
  selected = false;
  vertices.clear();
}

CShape* CShape::CopyBaseTo(CShape* target) const
{
  if (target == nullptr) return nullptr;
  target->selected = selected;
  target->tag = tag;
  target->type = type;
  if (style) target->style = std::make_unique<ShapeStyle>(*style);
  if (attributes) {
    auto copy = std::make_unique<CShapeAttributes>();
    copy->AppendFrom(*attributes);
    target->attributes = std::move(copy);
  }
  return target;
}

}  // namespace hullwright
