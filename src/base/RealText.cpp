#include "base/RealText.h"

#include <cmath>

#include "base/Numbers.h"

namespace hullwright {

std::string RealText(double value)
{
  std::string number = FormatShortest(value);
  if (number.find_first_of(".e") == std::string::npos) number += ".0";
  return number;
}

std::string RoundNumberText(double value)
{
  constexpr double exact = 1e15;  // below it every digit counts
  const bool isWhole = value == std::floor(value) && std::abs(value) < exact;
  return isWhole ? FormatFixed(value, 0) : FormatShortest(value);
}

}  // namespace hullwright
