#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

namespace hullwright {

/// Something at a place of the plane, that is paired only with what has the same key.
struct GridItem {
  std::uint64_t key = 0;
  double x = 0.0;
  double y = 0.0;
};

/// Mixes a value into a hash.
constexpr std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value)
{
  hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
  return hash ^ (hash >> 29U);
}

/// A square of the plane for one key.
struct GridCell {
  std::uint64_t key = 0;
  double column = 0.0;
  double row = 0.0;

  bool operator==(const GridCell&) const = default;
};

struct GridCellHash {
  std::size_t operator()(const GridCell& cell) const;
};

/// The cell that an item lies in.
GridCell CellOf(const GridItem& item, double cellSize);

/// A cell and those around it. Where cells are so far out that their numbers no longer count
/// singly, there are none beside it.
std::vector<GridCell> WithNeighbours(const GridCell& cell);

/// Calls `visit` with the indices of each former and current item of one key that lie no farther
/// apart than the size of a cell on either axis (and with some that lie farther), in time that
/// grows with their number: where many share a cell, each is paired only with those that come near
/// it in the order of the lists, at most `window` before or behind. With the lists exchanged the
/// pairs are the same. An item that is not at a finite place is left out.
template <class Visit>
void ForEachNearPair(std::span<const GridItem> former, std::span<const GridItem> current,
                     double cellSize, Visit visit)
{
  constexpr std::size_t window = 16;
  struct Content {
    std::vector<std::size_t> current;
    std::size_t formerCount = 0;
  };
  const auto isFinite = [](const GridItem& item) {
    return std::isfinite(item.x) && std::isfinite(item.y);
  };
  std::unordered_map<GridCell, Content, GridCellHash> cells;
  for (std::size_t i = 0; i < current.size(); ++i) {
    if (isFinite(current[i])) cells[CellOf(current[i], cellSize)].current.push_back(i);
  }
  for (std::size_t i = 0; i < former.size(); ++i) {
    if (!isFinite(former[i])) continue;
    const GridCell own = CellOf(former[i], cellSize);
    const std::size_t rank = cells[own].formerCount++;
    const std::size_t first = rank - std::min(rank, window);
    for (const GridCell& cell : WithNeighbours(own)) {
      const auto found = cells.find(cell);
      if (found == cells.end()) continue;
      const std::vector<std::size_t>& near = found->second.current;
      for (std::size_t k = first; k < near.size() && k <= rank + window; ++k) visit(i, near[k]);
    }
  }
}

}  // namespace hullwright
