#pragma once

#include <string>
#include <vector>

#include "app/HullwrightApp.h"
#include "file/SaveLosses.h"

namespace hullwright {

/// What a save of the design would lose or change, a line for each kind with its number and the
/// first of them, and a line for each element that it would add.
std::vector<std::string> LossFindings(const CSaveLosses& losses);

/// The numbers of a design that are not finite, a line each with the place.
std::vector<std::string> NumberFindings(const DesignState& design);

/// What is wrong with the design's unit code, a line; the names come from the unit database.
std::vector<std::string> UnitFindings(CHullwrightApp& app);

}  // namespace hullwright
