#pragma once

#include "model/GridSettings.h"

namespace hullwright {

/// Rounds a world position to the nearest multiples of the snap spacing when snapping is on. A
/// value exactly half-way goes toward zero; an axis whose spacing is zero does not snap.
void SnapToGrid(const GridSettings& grid, double& x, double& y);

}  // namespace hullwright
