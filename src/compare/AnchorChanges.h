#pragma once

#include <vector>

#include "compare/Differences.h"
#include "model/Anchors.h"

namespace hullwright {

/// What differs between two lists of anchors, in the order of the current list, then those that
/// were removed. Anchors are the same one if they have the same number, name and place; then if
/// they have the same number and name; then the same name, if it has one; then the same number. Of
/// several the first is paired with the first. The order of the lists is no difference.
std::vector<AnchorDifference> CompareAnchors(const CAnchors& former, UnitCode formerUnit,
                                             const CAnchors& current, UnitCode unit,
                                             const Tolerance& tolerance);

}  // namespace hullwright
