#include "base/RoundNumbers.h"

#include <cmath>

#include "base/Numbers.h"

namespace hullwright {
namespace {

/// The largest power of ten that isn't above a positive value.
double PowerOfTen(double value) { return std::pow(10.0, std::floor(std::log10(value))); }

}  // namespace

double RoundUp(double value)
{
  const double power = PowerOfTen(value);
  for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
    // The last bits of a quotient are no reason for the next number.
    if (factor * power >= value * (1.0 - 1e-9)) return factor * power;
  }
  return 10.0 * power;
}

double RoundDown(double value)
{
  if (!(value > 0.0) || !std::isfinite(value)) return 0.0;
  const double power = PowerOfTen(value);
  for (const double factor : {5.0, 2.0, 1.0}) {
    if (factor * power <= value) return factor * power;
  }
  return power / 2.0;
}

std::string RoundNumberText(double value)
{
  constexpr double exact = 1e15;  // below it every digit counts
  const bool isWhole = value == std::floor(value) && std::abs(value) < exact;
  return isWhole ? FormatFixed(value, 0) : FormatShortest(value);
}

}  // namespace hullwright
