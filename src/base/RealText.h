#pragma once

#include <string>

namespace hullwright {

/// A finite number as the shortest text that reads back to the same double and that is seen to be
/// no whole number: with a point or an exponent, so that minus zero stays what it is.
std::string RealText(double value);

/// A whole number below 1e15 without an exponent, however round it is; any other finite number in
/// as few digits as give the same number back.
std::string RoundNumberText(double value);

}  // namespace hullwright
