#include <new>
#include <utility>

#include "dxf/DxfReaders.h"
#include "dxf/DxfShapes.h"
#include "dxf/ImportLog.h"

// Inserted blocks are copied at once; no reference to them is kept.
namespace hullwright {
namespace {

constexpr std::u16string_view tooManyCopies =
    u"[DXF] The inserted blocks of this drawing take too much memory; the rest of their copies is "
    u"left out.";

/// Pays for a copy; the one that exceeds the budget is reported in the log.
bool TakeCopyBudget(const CShape& shape, DxfContext& context)
{
  const bool reportedBefore = context.copyBudget.IsUsedUp();
  if (context.copyBudget.Take(shape)) return true;
  if (!reportedBefore) LogRecord(context.log, TraceLevel::Failure, generalLog, tooManyCopies);
  return false;
}

void AddCopy(const CShape& shape, const DxfEntity& insert, CShapes& target)
{
  auto copy = shape.Clone();
  copy->Scale(insert.Number(DxfCode::ScaleX), insert.Number(DxfCode::ScaleY),
              insert.Number(DxfCode::ScaleZ));
  copy->Rotate(insert.Number(DxfCode::Rotation));
  const DxfPoint place = insert.Point(DxfCode::X);
  copy->Translate(place.x, place.y, place.z);
  Identify(*copy, insert);
  target.shapes.push_back(std::move(copy));
}

}  // namespace

void ReadInsert(DxfLines& lines, DxfContext& context, CShapes& target)
{
  DxfEntity insert;
  for (const DxfCode scale : {DxfCode::ScaleX, DxfCode::ScaleY, DxfCode::ScaleZ}) {
    insert.SetDefault(scale, 1.0);
  }
  if (!ReadEntity(lines, context, insert)) return;
  const auto block = context.blocks.find(insert.Name());
  if (block == context.blocks.end()) {
    ++context.tally.unknownBlocks;
    return;
  }
  for (const auto& shape : block->second->shapes) {
    if (!TakeCopyBudget(*shape, context)) {
      ++context.tally.cutInserts;
      return;
    }
    try {
      AddCopy(*shape, insert, target);
    } catch (const std::bad_alloc&) {
      // There is no memory for this copy; the next one may be smaller.
      ++context.tally.withoutMemory;
    }
  }
}

}  // namespace hullwright
