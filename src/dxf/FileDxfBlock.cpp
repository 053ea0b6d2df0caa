#include "dxf/FileDxfBlock.h"

#include <limits>
#include <utility>

namespace hullwright {
namespace {

/// The sum, or the largest number where it is larger.
std::size_t Sum(std::size_t a, std::size_t b)
{
  constexpr auto largest = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());
  return a > largest - b ? largest : a + b;
}

}  // namespace

void CFileDxfBlock::Insert(DxfInsertion insertion)
{
  const std::size_t count = insertion.block->ShapesWhenInserted();
  if (count == 0) return;
  inserted.push_back({shapes.size(), std::move(insertion)});
  insertedShapes_ = Sum(insertedShapes_, count);
}

std::size_t CFileDxfBlock::ShapesWhenInserted() const
{
  return Sum(shapes.size(), insertedShapes_);
}

}  // namespace hullwright
