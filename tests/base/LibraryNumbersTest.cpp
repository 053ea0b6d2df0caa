#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "base/Numbers.h"

namespace hullwright {
namespace {

/// The C library in the "C" locale, whatever the program's own locale is, and doubles to try on it.
class LibraryNumbers : public testing::Test {
protected:
  LibraryNumbers() : before_(uselocale(plain_)) {}
  ~LibraryNumbers() override
  {
    uselocale(before_);
    freelocale(plain_);
  }

  template <class... Arguments>
  static std::string Formatted(const char* format, Arguments... arguments)
  {
    std::array<char, 400> text{};
    std::snprintf(text.data(), text.size(), format, arguments...);
    return text.data();
  }

  std::uint64_t Below(std::uint64_t end) { return random_() % end; }
  double AnyDouble() { return std::bit_cast<double>(random_()); }

  /// An integer of any number of digits.
  std::uint64_t AnyInteger() { return random_() >> Below(64); }

  /// Of the size of coordinates, and halfway between two that a file can hold, or next to it.
  double HalfwayCoordinate()
  {
    const double halfway = (static_cast<double>(Below(200'000'000)) + 0.5) / 1000.0;
    switch (Below(4)) {
      case 0: return halfway;
      case 1: return -std::nextafter(halfway, 0.0);
      case 2: return std::nextafter(halfway, 1e9);
      default: return static_cast<double>(static_cast<std::int64_t>(random_()) >> 30) / 16384.0;
    }
  }

private:
  locale_t plain_ = newlocale(LC_ALL_MASK, "C", nullptr);
  locale_t before_;
  std::mt19937_64 random_{20240229};
};

std::string Fixed3(double value)
{
  std::string text;
  AppendFixed3(text, value);
  return text;
}

void ExpectLibraryValue(const std::string& text)
{
  const double expected = std::strtod(text.c_str(), nullptr);
  EXPECT_EQ(std::bit_cast<std::uint64_t>(ParseDouble(text)), std::bit_cast<std::uint64_t>(expected))
      << text;
}

TEST_F(LibraryNumbers, ThreeDecimalsAreThoseOfAnyDouble)
{
  for (int i = 0; i < 200'000 && !HasFailure(); ++i) {
    for (const double value : {AnyDouble(), HalfwayCoordinate()}) {
      EXPECT_EQ(Fixed3(value), Formatted("%.3lf", value)) << value;
    }
  }
}

TEST_F(LibraryNumbers, ThreeDecimalsAreThoseOfEveryMagnitude)
{
  for (double value = 1e-9; value < 1e300 && !HasFailure(); value *= 1.37) {
    for (const double signedValue : {value, -value}) {
      EXPECT_EQ(Fixed3(signedValue), Formatted("%.3lf", signedValue));
    }
  }
}

TEST_F(LibraryNumbers, DecimalsOfAnyLengthAreReadToTheLastBit)
{
  for (int i = 0; i < 100'000 && !HasFailure(); ++i) {
    const auto digits = static_cast<int>(Below(20));
    ExpectLibraryValue(Formatted("%.3lf", HalfwayCoordinate()));
    ExpectLibraryValue(Formatted("%.*lf", digits, HalfwayCoordinate()));
    ExpectLibraryValue(Formatted("%llu.%0*llu", AnyInteger(), digits, AnyInteger()));
    ExpectLibraryValue(Formatted("-.%0*llu", digits, AnyInteger()));
  }
}

TEST_F(LibraryNumbers, AnyCharacterAtAnyPlaceOfAFractionEndsItOrBelongsToIt)
{
  const std::string decimal = "-12.123456789";
  for (std::size_t place = decimal.find('.') + 1; place < decimal.size(); ++place) {
    for (int c = 0; c < 256; ++c) {
      std::string text = decimal;
      text[place] = static_cast<char>(c);
      ExpectLibraryValue(text);
    }
  }
}

TEST_F(LibraryNumbers, ShortDecimalsReachAsFarAsIntegersAreExact)
{
  for (const char* const text :
       {"9007199254740992", "9007199254740993", "900719925474099.3", "-9.007199254740993",
        "0000000000000000000000001", "0.0000000000000000001", "0.00000000000000000001",
        "9999999999999999999", "99999999999999999999", "18446744073709551617",
        "36893488147419103233.5", "1844674407370955161.7"}) {
    ExpectLibraryValue(text);
  }
}

TEST_F(LibraryNumbers, ExponentsOfAnySizeAreRead)
{
  for (int i = 0; i < 50'000 && !HasFailure(); ++i) {
    const double value = AnyDouble();
    if (!std::isfinite(value)) continue;
    ExpectLibraryValue(Formatted("%.17g", value));
    ExpectLibraryValue(Formatted("%.*le", static_cast<int>(Below(20)), value));
  }
}

}  // namespace
}  // namespace hullwright
