#pragma once

#include <string>

namespace hullwright {

/// A finite number as the shortest text that reads back to the same double and that is seen to be
/// no whole number: with a point or an exponent, so that minus zero stays what it is.
std::string RealText(double value);

}  // namespace hullwright
