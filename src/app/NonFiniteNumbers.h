#pragma once

#include <cstddef>
#include <string>

#include "model/DesignState.h"

namespace hullwright {

/// The numbers of a design that no chart can show: infinities and not-a-number.
struct NonFiniteNumbers {
  std::size_t count = 0;
  std::u16string first;  ///< where the first of them stands, such as "polyline 2 (top), point 3"
};

/// Looks through all numbers that a save writes.
NonFiniteNumbers FindNonFiniteNumbers(const DesignState& design);

/// Reports such numbers: "holds numbers that are not finite (2): polyline 1 (top), point 3". Empty
/// where there are none.
std::u16string Describe(const NonFiniteNumbers& numbers);

}  // namespace hullwright
