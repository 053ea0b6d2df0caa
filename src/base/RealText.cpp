#include "base/RealText.h"

#include "base/Numbers.h"

namespace hullwright {

std::string RealText(double value)
{
  std::string number = FormatShortest(value);
  if (number.find_first_of(".e") == std::string::npos) number += ".0";
  return number;
}

}  // namespace hullwright
