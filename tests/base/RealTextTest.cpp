#include "base/RealText.h"

#include <gtest/gtest.h>

namespace hullwright {
namespace {

TEST(RealText, ANumberIsSeenToBeNoWholeOne)
{
  EXPECT_EQ(RealText(5.0), "5.0");
  EXPECT_EQ(RealText(-0.0), "-0.0");
  EXPECT_EQ(RealText(0.1), "0.1");
  EXPECT_EQ(RealText(1e-7), "1e-07");
  EXPECT_EQ(RealText(1e300), "1e+300");
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
