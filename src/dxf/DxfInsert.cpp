#include <new>
#include <utility>

#include "dxf/FileDxf.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

// Inserted blocks are copied at once; no reference to them is kept.
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

bool CFileDxf::TakeCopyBudget(const CShape& shape)
{
  if (copyBudget < 0) return false;
  copyBudget -= CopyCost(shape);
  if (copyBudget >= 0) return true;
  Log(TraceLevel::Failure, u"General",
      u"[DXF] The inserted blocks of this drawing take too much memory; the rest of their copies "
      u"is "
      u"left out.");
  return false;
}

void CFileDxf::AddCopy(const CShape& shape, const DxfEntity& insert, CShapes& target) const
{
  auto copy = shape.Clone();
  copy->Scale(insert.Number(41), insert.Number(42), insert.Number(43));
  copy->Rotate(insert.Number(50));
  const DxfPoint place = insert.Point(10);
  copy->Translate(place.x, place.y, place.z);
  Identify(*copy, insert);
  target.shapes.push_back(std::move(copy));
}

void CFileDxf::ReadInsert(CShapes& target)
{
  DxfEntity entity;
  for (const int scale : {41, 42, 43}) entity.SetDefault(scale, 1.0);
  if (!ReadEntity(entity)) return;
  const auto block = blocks.find(entity.name);
  if (block == blocks.end()) {
    ++tally.unknownBlocks;
    return;
  }
  for (const auto& shape : block->second->shapes) {
    if (!TakeCopyBudget(*shape)) {
      ++tally.cutInserts;
      return;
    }
    try {
      AddCopy(*shape, entity, target);
    } catch (const std::bad_alloc&) {
      // There is no memory for this copy; the next one may be smaller.
      ++tally.withoutMemory;
    }
  }
}

}  // namespace hullwright
