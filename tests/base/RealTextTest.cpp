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

}  // namespace
}  // namespace hullwright
