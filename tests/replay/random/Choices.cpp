#include "replay/random/Choices.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace hullwright::replay {
namespace {

/// A coordinate in sixteenths up to 125 units from the origin.
double UsualCoordinate(IChoices& choices) { return (choices.Below(4001) - 2000) / 16.0; }

}  // namespace

int RandomChoices::Below(int limit)
{
  return static_cast<int>(random_() % static_cast<unsigned>(limit));
}

double RandomChoices::Coordinate() { return UsualCoordinate(*this); }

unsigned ByteChoices::Byte()
{
  if (left_.empty()) return 0;
  const unsigned byte = left_.front();
  left_ = left_.subspan(1);
  return byte;
}

int ByteChoices::Below(int limit)
{
  constexpr int numbersOfAByte = 256;
  unsigned number = Byte();
  if (limit > numbersOfAByte) number = number * numbersOfAByte + Byte();
  return static_cast<int>(number % static_cast<unsigned>(limit));
}

double ByteChoices::Coordinate()
{
  using Limits = std::numeric_limits<double>;
  static constexpr double odd[] = {0.0,
                                   -0.0,
                                   0.0005,
                                   -1e-300,
                                   Limits::denorm_min(),
                                   2147483648,
                                   -2147483649.0,
                                   9.0e15,
                                   -1e20,
                                   1e300,
                                   -1e300,
                                   Limits::max(),
                                   Limits::lowest(),
                                   Limits::infinity(),
                                   -Limits::infinity(),
                                   Limits::quiet_NaN()};
  if (Below(8) != 0) return UsualCoordinate(*this);
  return odd[Below(static_cast<int>(std::size(odd)))];
}

std::string ByteChoices::Take(std::size_t length)
{
  const auto taken = left_.first(std::min(length, left_.size()));
  left_ = left_.subspan(taken.size());
  return {taken.begin(), taken.end()};
}

}  // namespace hullwright::replay
