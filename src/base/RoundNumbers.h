#pragma once

#include <string>

namespace hullwright {

/// The smallest round number (1, 2, 2.5 or 5 times a power of ten) that isn't below a positive
/// value.
double RoundUp(double value);

/// The largest round number (1, 2 or 5 times a power of ten) that isn't above a value; 0.0 where
/// there is none.
double RoundDown(double value);

/// A whole number below 1e15 without an exponent, however round it is; any other finite number in
/// as few digits as give the same number back.
std::string RoundNumberText(double value);

}  // namespace hullwright
