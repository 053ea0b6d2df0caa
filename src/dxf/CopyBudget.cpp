#include "dxf/CopyBudget.h"

#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

namespace hullwright {
namespace {

constexpr std::size_t vertex = sizeof(CShapeVertex) + sizeof(void*);
constexpr std::size_t attribute = sizeof(ShapeAttribute) + 2 * sizeof(void*);

/// Roughly the bytes that a copy of a shape takes.
std::size_t CopyCost(const CShape& shape)
{
  constexpr std::size_t shapeItself = 400;
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
  return cost;
}

}  // namespace

bool CopyBudget::Take(const CShape& shape, std::size_t insertions)
{
  // Each further insertion adds two attributes, and goes through the vertices once more, whose time
  // counts as these bytes.
  constexpr std::size_t vertexPlaced = 8;
  const std::size_t cost = CopyCost(shape);
  const std::size_t more = 2 * attribute + shape.vertices.size() * vertexPlaced;
  left_ -= static_cast<std::int64_t>(cost + (insertions - 1) * more);
  return !IsUsedUp();
}

}  // namespace hullwright
