#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace hullwright {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(ParseDouble, ReadsDecimalNumbersWithSignAndExponent)
{
  EXPECT_EQ(ParseDouble(u"12.5"), 12.5);
  EXPECT_EQ(ParseDouble(u" \t\n\v\f\r-0.25"), -0.25);
  EXPECT_EQ(ParseDouble(u"+1e3"), 1000.0);
  EXPECT_EQ(ParseDouble(u"1E+2"), 100.0);
  EXPECT_EQ(ParseDouble(u".5"), 0.5);
  EXPECT_EQ(ParseDouble(u"5."), 5.0);
}

TEST(ParseDouble, StopsAtTheFirstCharacterThatDoesNotBelong)
{
  EXPECT_EQ(ParseDouble(u"1.5m"), 1.5);
  EXPECT_EQ(ParseDouble(u"1,5"), 1.0);
  EXPECT_EQ(ParseDouble(u"1e"), 1.0);
  EXPECT_EQ(ParseDouble(u"1e+"), 1.0);
  EXPECT_EQ(ParseDouble(u"2\u00E4"), 2.0);
  EXPECT_EQ(ParseDouble(u"1.2.3"), 1.2);
  EXPECT_EQ(ParseDouble(u"1..2"), 1.0);
}

TEST(ParseDouble, ControlCharactersBehindThePointAreNoDigits)
{
  EXPECT_EQ(ParseDouble("1.\t\t\t\t"), 1.0);
  EXPECT_EQ(ParseDouble(std::string_view("1.\0\1\2\3", 6)), 1.0);
}

TEST(ParseDouble, TextWithoutANumberIsZero)
{
  for (const char16_t* text : {u"", u"abc", u".", u"-", u"+-1", u"--1", u"e5", u"\u00E41"}) {
    EXPECT_EQ(ParseDouble(text), 0.0);
  }
}

TEST(ParseDouble, ReadsHexadecimalInfinityAndNan)
{
  EXPECT_EQ(ParseDouble(u"0x10"), 16.0);
  EXPECT_EQ(ParseDouble(u"-0X1.8p1"), -3.0);
  EXPECT_EQ(ParseDouble(u"0x.8"), 0.5);
  EXPECT_EQ(ParseDouble(u"0x"), 0.0);
  EXPECT_EQ(ParseDouble(u"0xg"), 0.0);
  EXPECT_EQ(ParseDouble(u"inf"), infinity);
  EXPECT_EQ(ParseDouble(u"-Infinity"), -infinity);
  EXPECT_TRUE(std::isnan(ParseDouble(u"NaN")));
}

TEST(ParseDouble, ASecondSignOfABinaryExponentEndsTheNumber)
{
  for (const char* text : {"0x10p+-4", "0x10P+-4", "0x10p-+4", "0x10p--4", "0x10p"}) {
    EXPECT_EQ(ParseDouble(text), 16.0) << text;
  }
  EXPECT_EQ(ParseDouble("0x10p-4 and p+-4"), 1.0);
  EXPECT_EQ(ParseDouble("0x10p+4"), 256.0);
}

TEST(ParseDouble, TooLargeIsInfiniteAndTooSmallIsZero)
{
  EXPECT_EQ(ParseDouble(u"1e999"), infinity);
  EXPECT_EQ(ParseDouble(u"-1e999"), -infinity);
  EXPECT_EQ(ParseDouble(u"1e-999"), 0.0);
  EXPECT_EQ(ParseDouble(u"0.00001e-999"), 0.0);
  EXPECT_EQ(ParseDouble(u"1e99999999999999999999"), infinity);
  EXPECT_EQ(ParseDouble(std::string(400, '9')), infinity);
  EXPECT_EQ(ParseDouble("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(ParseDouble("0." + std::string(400, '0') + "1e10"), 0.0);
  EXPECT_EQ(ParseDouble(u"5e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(ParseDouble, KeepsTheSignOfZeroButNotOfTextWithoutANumber)
{
  EXPECT_TRUE(std::signbit(ParseDouble(u"-0.0")));
  EXPECT_TRUE(std::signbit(ParseDouble(u"-1e-999")));
  for (const char16_t* text : {u"-abc", u"-", u"--5", u"-."}) {
    EXPECT_FALSE(std::signbit(ParseDouble(text)));
  }
}

TEST(ParseInt32, ReadsDecimalAndHexadecimal)
{
  EXPECT_EQ(ParseInt32(u"42", 10), 42);
  EXPECT_EQ(ParseInt32(u"  -7x", 10), -7);
  EXPECT_EQ(ParseInt32(u"3F", 16), 63);
  EXPECT_EQ(ParseInt32(u"3f", 16), 63);
  EXPECT_EQ(ParseInt32(u"0x3f", 16), 63);
  EXPECT_EQ(ParseInt32(u"0x", 16), 0);
  EXPECT_EQ(ParseInt32(u"0xg", 16), 0);
  EXPECT_EQ(ParseInt32(u"", 10), 0);
  EXPECT_EQ(ParseInt32(u"abc", 10), 0);
  EXPECT_EQ(ParseInt32(u"0x10", 10), 0);
}

TEST(ParseInt32, SaturatesAtTheEndsOfTheRange)
{
  EXPECT_EQ(ParseInt32(u"2147483647", 10), 2147483647);
  EXPECT_EQ(ParseInt32(u"2147483648", 10), 2147483647);
  EXPECT_EQ(ParseInt32(u"-2147483648", 10), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ParseInt32(u"-99999999999999999999999", 10), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ParseInt32(u"99999999999999999999999", 10), 2147483647);
}

TEST(ParseUInt32, NegatesModuloTheRangeAndSaturates)
{
  EXPECT_EQ(ParseUInt32(u"-1", 10), 4294967295U);
  EXPECT_EQ(ParseUInt32(u"4294967295", 10), 4294967295U);
  EXPECT_EQ(ParseUInt32(u"4294967296", 10), 4294967295U);
  EXPECT_EQ(ParseUInt32(u"-4294967296", 10), 4294967295U);
  EXPECT_EQ(ParseUInt32(u"-4294967295", 10), 1U);
}

TEST(TruncateToInt32, TruncatesTowardZero)
{
  EXPECT_EQ(TruncateToInt32(2.9), 2);
  EXPECT_EQ(TruncateToInt32(-2.9), -2);
  EXPECT_EQ(TruncateToInt32(2147483647.9), 2147483647);
  EXPECT_EQ(TruncateToInt32(-2147483648.9), std::numeric_limits<std::int32_t>::min());
}

TEST(TruncateToInt32, WhatDoesNotFitIsTheLowestInteger)
{
  constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(TruncateToInt32(2147483648.0), lowest);
  EXPECT_EQ(TruncateToInt32(-1e300), lowest);
  EXPECT_EQ(TruncateToInt32(infinity), lowest);
  EXPECT_EQ(TruncateToInt32(std::nan("")), lowest);
}

TEST(FormatFixed, WritesAPointInAnyLocale)
{
  EXPECT_EQ(FormatFixed(1.5, 3), "1.500");
  EXPECT_EQ(FormatFixed(-1234567.891, 2), "-1234567.89");
  EXPECT_EQ(FormatFixed(1e300, 2).size(), 304U);
}

std::string Fixed3(double value)
{
  std::string text;
  AppendFixed3(text, value);
  return text;
}

TEST(AppendFixed3, RoundsToNearestAndKeepsTheSignOfZero)
{
  EXPECT_EQ(Fixed3(0.0), "0.000");
  EXPECT_EQ(Fixed3(-0.0), "-0.000");
  EXPECT_EQ(Fixed3(-0.0004), "-0.000");
  EXPECT_EQ(Fixed3(12.5), "12.500");
  EXPECT_EQ(Fixed3(0.0625), "0.062");
  EXPECT_EQ(Fixed3(0.1875), "0.188");
  EXPECT_EQ(Fixed3(-2.5), "-2.500");
  EXPECT_EQ(Fixed3(0.9996), "1.000");
  EXPECT_EQ(Fixed3(infinity), "inf");
}

TEST(FormatSignedFixed, AlwaysHasASignAndFillsWithZeros)
{
  EXPECT_EQ(FormatSignedFixed(1.5, 2, 6), "+01.50");
  EXPECT_EQ(FormatSignedFixed(-2.25, 2, 6), "-02.25");
  EXPECT_EQ(FormatSignedFixed(100.0, 2, 6), "+100.00");
  EXPECT_EQ(FormatSignedFixed(1.0, 3), "+1.000");
  EXPECT_EQ(FormatSignedFixed(-2.5, 3), "-2.500");
  EXPECT_EQ(FormatSignedFixed(infinity, 2, 6), "  +inf");
}

TEST(FormatShortest, ReadsBackAsTheSameNumber)
{
  EXPECT_EQ(FormatShortest(0.1), "0.1");
  EXPECT_EQ(FormatShortest(0.1F), "0.1");
  EXPECT_EQ(FormatShortest(static_cast<double>(0.1F)), "0.10000000149011612");
  EXPECT_EQ(FormatShortest(-0.0), "-0");
  EXPECT_EQ(FormatShortest(1e300), "1e+300");
  EXPECT_EQ(FormatShortest(-std::numeric_limits<double>::denorm_min()), "-5e-324");
  EXPECT_EQ(FormatShortest(-2.2250738585072014e-308), "-2.2250738585072014e-308");
  EXPECT_EQ(FormatShortest(std::numeric_limits<float>::infinity()), "inf");
}

TEST(FormatHex, IsUpperCaseAndFilled)
{
  EXPECT_EQ(FormatHex(1, 2), "01");
  EXPECT_EQ(FormatHex(0x3F, 2), "3F");
  EXPECT_EQ(FormatHex(0x1F600, 1), "1F600");
  EXPECT_EQ(FormatHex(0, 1), "0");
  EXPECT_EQ(FormatHex(0xFFFFFFFF, 2), "FFFFFFFF");
}

}  // namespace
}  // namespace hullwright
