#pragma once

#include <string_view>

#include "model/Units.h"

namespace hullwright {

/// A unit of length as drawings state it, by its number in the variable $INSUNITS.
struct DrawingUnit {
  int number;
  std::string_view name;
  UnitCode code{};  ///< of a design's unit that is the same to the last digit of its factor; else 0
};

/// The unit of a number; null for 0, which stands for no unit, and for one that no unit has.
const DrawingUnit* FindDrawingUnit(int number);

/// The number of a design's unit among those of drawings; 0, no unit, for one that they lack.
int DrawingUnitOf(UnitCode unit);

/// The number in $INSUNITS of a drawing, or of its beginning with the whole header; 0 for a drawing
/// that does not state it.
int StatedDrawingUnit(std::string_view drawing);

}  // namespace hullwright
