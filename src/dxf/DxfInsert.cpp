#include <cstddef>
#include <new>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "dxf/DxfReaders.h"
#include "dxf/DxfShapes.h"
#include "dxf/ImportLog.h"

// Inserted blocks become copies of their shapes; no reference to them is kept.
namespace hullwright {
namespace {

constexpr std::u16string_view tooManyCopies =
    u"[DXF] The inserted blocks of this drawing take too much memory; the rest of their copies is "
    u"left out.";

/// The path from an insertion in the drawing down to the block whose shapes are copied. Blocks
/// insert one another to any depth, so the path is kept here and not on the stack.
class CopyingWalk {
public:
  CopyingWalk(const DxfInsertion& insertion, DxfContext& context, CShapes& target)
      : context_(context), target_(target)
  {
    Enter(insertion);
  }

  /// Copies everything that the insertion stands for, or as much as the budget allows.
  void Run()
  {
    while (!path_.empty()) {
      Level& level = path_.back();
      const CFileDxfBlock& block = *level.insertion->block;
      if (level.inner < block.inserted.size() &&
          block.inserted[level.inner].before == level.shape) {
        Enter(block.inserted[level.inner++].insertion);
      } else if (level.shape == block.shapes.size()) {
        path_.pop_back();
      } else if (!Copy(*block.shapes[level.shape++])) {
        ++context_.tally.cutInserts;
        return;
      }
    }
  }

private:
  /// A block of the path, and what of it comes next.
  struct Level {
    const DxfInsertion* insertion;
    std::size_t shape = 0;
    std::size_t inner = 0;
  };

  void Enter(const DxfInsertion& insertion) { path_.push_back({&insertion}); }

  /// Adds a copy; false when the budget does not allow for it. The one that exceeds the budget is
  /// reported in the log.
  bool Copy(const CShape& shape)
  {
    const bool reportedBefore = context_.copyBudget.IsUsedUp();
    if (!context_.copyBudget.Take(shape, path_.size())) {
      if (!reportedBefore)
        LogRecord(context_.log, TraceLevel::Failure, generalLog, {tooManyCopies});
      return false;
    }
    try {
      auto copy = shape.Clone();
      for (std::size_t i = path_.size(); i-- > 0;) Place(*copy, *path_[i].insertion);
      target_.shapes.push_back(std::move(copy));
    } catch (const std::bad_alloc&) {
      // There is no memory for this copy; the next one may be smaller.
      ++context_.tally.withoutMemory;
    }
    return true;
  }

  static void Place(CShape& copy, const DxfInsertion& insertion)
  {
    copy.Scale(insertion.scale.x, insertion.scale.y, insertion.scale.z);
    copy.Rotate(insertion.rotation);
    copy.Translate(insertion.place.x, insertion.place.y, insertion.place.z);
    Identify(copy, insertion.tag, insertion.layerName, insertion.handle);
  }

  DxfContext& context_;
  CShapes& target_;
  std::vector<Level> path_;
};

DxfInsertion InsertionOf(const DxfEntity& insert, const CFileDxfBlock& block)
{
  return {&block,
          {insert.Number(DxfCode::ScaleX), insert.Number(DxfCode::ScaleY),
           insert.Number(DxfCode::ScaleZ)},
          insert.Number(DxfCode::Rotation),
          insert.Point(DxfCode::X),
          TagOf(insert),
          WideFromAnsi(insert.LayerName()),
          WideFromAnsi(insert.Handle())};
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
  DxfInsertion insertion = InsertionOf(insert, *block->second);
  if (auto* const outer = dynamic_cast<CFileDxfBlock*>(&target)) {
    outer->Insert(std::move(insertion));
  } else {
    CopyingWalk(insertion, context, target).Run();
  }
}

}  // namespace hullwright
