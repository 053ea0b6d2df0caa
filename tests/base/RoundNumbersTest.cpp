#include "base/RoundNumbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace hullwright {
namespace {

TEST(RoundUp, ARoundNumberStaysAndAnyOtherBecomesTheNextOne)
{
  EXPECT_EQ(RoundUp(100.0), 100.0);
  EXPECT_EQ(RoundUp(101.0), 200.0);
  EXPECT_EQ(RoundUp(201.0), 250.0);
  EXPECT_EQ(RoundUp(251.0), 500.0);
  EXPECT_EQ(RoundUp(501.0), 1000.0);
  EXPECT_EQ(RoundUp(0.3), 0.5);
}

TEST(RoundUp, TheLastBitsOfAQuotientAreNoReasonForTheNextNumber)
{
  EXPECT_EQ(RoundUp(250.00000001), 250.0);
  EXPECT_EQ(RoundUp(250.000001), 500.0);
}

TEST(RoundDown, ARoundNumberStaysAndAnyOtherBecomesTheOneBefore)
{
  EXPECT_EQ(RoundDown(10.0), 10.0);
  EXPECT_EQ(RoundDown(19.9), 10.0);
  EXPECT_EQ(RoundDown(25.0), 20.0);
  EXPECT_EQ(RoundDown(99.0), 50.0);
  EXPECT_EQ(RoundDown(0.3), 0.2);
  EXPECT_EQ(RoundDown(std::nextafter(1000.0, 0.0)), 500.0);  // its logarithm is rounded to 3
}

TEST(RoundDown, NothingIsRoundBelowZeroOrWithoutEnd)
{
  EXPECT_EQ(RoundDown(0.0), 0.0);
  EXPECT_EQ(RoundDown(-3.0), 0.0);
  EXPECT_EQ(RoundDown(std::numeric_limits<double>::infinity()), 0.0);
  EXPECT_EQ(RoundDown(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

TEST(RoundNumberText, WholeNumbersBelowTheLimitHaveNoExponent)
{
  EXPECT_EQ(RoundNumberText(0.0), "0");
  EXPECT_EQ(RoundNumberText(2500.0), "2500");
  EXPECT_EQ(RoundNumberText(-1e14), "-100000000000000");
  EXPECT_EQ(RoundNumberText(1e15), "1e+15");
}

TEST(RoundNumberText, FractionsHaveTheFewestDigits)
{
  EXPECT_EQ(RoundNumberText(0.25), "0.25");
  EXPECT_EQ(RoundNumberText(0.1), "0.1");
  EXPECT_EQ(RoundNumberText(-1e-7), "-1e-07");
}

}  // namespace
}  // namespace hullwright
