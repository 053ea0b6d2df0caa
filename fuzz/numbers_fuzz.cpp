#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "FuzzInput.h"
#include "base/Bits.h"
#include "base/Numbers.h"

// Any bytes are the text of a number, and the first eight of them are one: both must be what the C
// library makes of them in the "C" locale, which this program never leaves.
using namespace hullwright;

namespace {

/// Equal to the last bit; one NaN is like another.
bool Same(double a, double b)
{
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  return SameBits(a, b);
}

/// The text as an integer of 32 bits.
std::int32_t LibraryInt32(const std::string& text, int base)
{
  const long long value = std::strtoll(text.c_str(), nullptr, base);
  constexpr long long least = std::numeric_limits<std::int32_t>::min();
  constexpr long long most = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::clamp(value, least, most));
}

void CheckFormat(double value)
{
  char text[400];
  std::snprintf(text, sizeof text, "%.3f", value);
  std::string found;
  AppendFixed3(found, value);
  Require(found == text);
  for (const int decimals : {0, 6, 17}) {
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    Require(FormatFixed(value, decimals) == text);
  }
  Require(Same(std::strtod(FormatShortest(value).c_str(), nullptr), value));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  const std::string text(reinterpret_cast<const char*>(data), size);
  const double number = ParseDouble(text);
  Require(Same(number, std::strtod(text.c_str(), nullptr)));
  CheckFormat(number);
  for (const int base : {10, 16}) {
    Require(ParseInt32(text, base) == LibraryInt32(text, base));
  }
  if (size >= sizeof(double)) {
    double value = 0.0;
    std::memcpy(&value, data, sizeof value);
    CheckFormat(value);
  }
  return 0;
}
