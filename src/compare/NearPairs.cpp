#include "compare/NearPairs.h"

#include "base/Bits.h"

namespace hullwright {

std::size_t GridCellHash::operator()(const GridCell& cell) const
{
  const std::uint64_t column = Mixed(cell.key, BitsOf(cell.column));
  return static_cast<std::size_t>(Mixed(column, BitsOf(cell.row)));
}

GridCell CellOf(const GridItem& item, double cellSize)
{
  // Without a negative zero, whose bits would be those of another cell.
  return {item.key, std::floor(item.x / cellSize) + 0.0, std::floor(item.y / cellSize) + 0.0};
}

std::vector<GridCell> WithNeighbours(const GridCell& cell)
{
  std::vector<GridCell> cells;
  for (const double right : {0.0, -1.0, 1.0}) {
    for (const double up : {0.0, -1.0, 1.0}) {
      const GridCell near = {cell.key, cell.column + right + 0.0, cell.row + up + 0.0};
      const bool isOther =
          (right == 0.0 || near.column != cell.column) && (up == 0.0 || near.row != cell.row);
      if (isOther) cells.push_back(near);
    }
  }
  return cells;
}

}  // namespace hullwright
