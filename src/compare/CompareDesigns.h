#pragma once

#include "compare/DesignRecords.h"
#include "compare/Differences.h"

namespace hullwright {

/// What two designs are compared by.
struct CompareOptions {
  double tolerance = 0.001;  ///< the largest difference that doesn't count, in the current unit
  ShapeChoice shapes;
  bool symbols = true;  ///< whether offsets and anchors are compared
};

/// What differs between two designs: unit, offsets (one that is missing in either is not compared),
/// anchors, and the shapes of each side. Where the units differ, the former design's numbers are
/// taken to the current one's unit first. The order of shapes and anchors, a group without shapes,
/// and attributes of shapes are no differences. The designs stay as they are.
Differences CompareDesigns(const DesignState& former, const DesignState& current,
                           const CompareOptions& options);

}  // namespace hullwright
