#include "view/SnapToGrid.h"

#include <cmath>

namespace hullwright {
namespace {

double Snapped(double value, double spacing)
{
  if (spacing == 0.0) return value;  // a spacing below a hundredth is stored as 0
  const double r = std::fmod(value, spacing);
  if (std::abs(r) <= spacing * 0.5) return value - r;
  return r > 0 ? (spacing - r) + value : value - (spacing + r);
}

}  // namespace

void SnapToGrid(const GridSettings& grid, double& x, double& y)
{
  if (grid.snap == 0) return;
  x = Snapped(x, grid.spacingSnapX);
  y = Snapped(y, grid.spacingSnapY);
}

}  // namespace hullwright
