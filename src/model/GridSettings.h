#pragma once

#include <cstdint>

namespace hullwright {

/// The user's grid, in design units. A copy serves one event or one dialog; the next reads the
/// settings store again.
struct GridSettings {
  std::int32_t show = 1;  ///< the grid is drawn
  std::int32_t snap = 1;  ///< drawing and dragging snap to the grid
  double spacingShowX = 2.5;
  double spacingShowY = 2.5;
  double spacingSnapX = 2.5;
  double spacingSnapY = 2.5;
};

}  // namespace hullwright
