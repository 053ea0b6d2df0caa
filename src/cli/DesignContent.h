#pragma once

#include <cstddef>
#include <string>

#include "app/HullwrightApp.h"

namespace hullwright {

/// What stands in a group.
struct GroupContent {
  std::size_t polylines = 0;
  std::size_t vertices = 0;
  Extents box;
};

GroupContent ContentOf(const CShapes& group);

/// The group that is seen from a side; nothing where there is none.
GroupContent ContentOf(const DesignState& design, ViewSide side);

/// What a view code is called: the name of its side, "all", or "view 03" for one of no side.
std::string GroupName(ViewSide viewCode);

/// Name of the design's unit, or another text for a code that the unit database lacks.
std::string UnitNameOf(CHullwrightApp& app, const std::string& otherwise = "unknown");

/// A place with three decimals: "1.000, -2.500".
std::string PlaceText(double x, double y);

}  // namespace hullwright
