#include "dxf/CopyBudget.h"

#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

namespace hullwright {
namespace {

/// Roughly the bytes that a copy of a shape takes.
std::int64_t CopyCost(const CShape& shape)
{
  constexpr std::size_t shapeItself = 400;
  constexpr std::size_t vertex = sizeof(CShapeVertex) + sizeof(void*);
  constexpr std::size_t attribute = sizeof(ShapeAttribute) + 2 * sizeof(void*);
  std::size_t cost = shapeItself + shape.vertices.size() * vertex;
  if (shape.type == ShapeType::Polygon) {
    ForEachEntry(static_cast<const CShapePolygon&>(shape).rings,
                 [&](const CShapePolygonRing& ring) { cost += ring.vertices.size() * vertex; });
  }
  if (shape.type == ShapeType::Text) {
    cost += static_cast<const CShapeText&>(shape).text.size() * sizeof(char16_t);
  }
  if (shape.attributes) {
    ForEachEntry(shape.attributes->items, [&](const ShapeAttribute& pair) {
      cost += attribute + pair.value.size() * sizeof(char16_t);
    });
  }
  return static_cast<std::int64_t>(cost);
}

}  // namespace

bool CopyBudget::Take(const CShape& shape)
{
  left_ -= CopyCost(shape);
  return !IsUsedUp();
}

}  // namespace hullwright
