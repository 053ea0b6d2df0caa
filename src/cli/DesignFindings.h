#pragma once

#include <string>
#include <vector>

#include "app/HullwrightApp.h"

namespace hullwright {

/// The numbers of a design that are not finite, a line each with the place.
std::vector<std::string> NumberFindings(const CHullwrightApp& app);

/// What is wrong with the design's unit code, a line; the names come from the unit database.
std::vector<std::string> UnitFindings(CHullwrightApp& app);

/// What a view code is called: the name of its side, "all", or "view 03" for one of no side.
std::string GroupName(std::int32_t viewCode);

}  // namespace hullwright
