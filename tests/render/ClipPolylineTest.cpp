#include "render/ClipPolyline.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace hullwright {
namespace {

constexpr ClipRect clip{0.0, 0.0, 100.0, 50.0};

using Points = std::vector<PixelPoint>;

TEST(ClipPolyline, WhatLiesInsideStaysOneRun)
{
  const auto runs = ClipPolyline(Points{{10, 10}, {90, 10}, {90, 40}}, clip);
  ASSERT_EQ(runs.size(), 1U);
  ASSERT_EQ(runs[0].size(), 3U);
  EXPECT_EQ(runs[0][2].y, 40.0);
}

TEST(ClipPolyline, ASegmentThatLeavesIsCutAtTheEdge)
{
  const auto runs = ClipPolyline(Points{{50, 25}, {150, 25}}, clip);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_EQ(runs[0][1].x, 100.0);
  EXPECT_EQ(runs[0][1].y, 25.0);
  const auto slanting = ClipPolyline(Points{{50, 10}, {250, 50}}, clip);
  ASSERT_EQ(slanting.size(), 1U);
  EXPECT_EQ(slanting[0][1].x, 100.0);
  EXPECT_EQ(slanting[0][1].y, 20.0);
}

TEST(ClipPolyline, ALineThatComesBackIsTwoRuns)
{
  const auto runs = ClipPolyline(Points{{50, 25}, {150, 25}, {150, 40}, {50, 40}}, clip);
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[1].front().x, 100.0);
  EXPECT_EQ(runs[1].back().x, 50.0);
}

TEST(ClipPolyline, ASegmentThatCrossesIsCutOnBothSides)
{
  const auto runs = ClipPolyline(Points{{-1e30F, 25}, {1e30F, 25}}, clip);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_EQ(runs[0][0].x, 0.0);
  EXPECT_EQ(runs[0][0].y, 25.0);
  EXPECT_EQ(runs[0][1].x, 100.0);
  EXPECT_EQ(runs[0][1].y, 25.0);
}

TEST(ClipPolyline, AnEndFarAwayIsCutInEitherDirection)
{
  for (const float far : {1e5F, 1e12F, 1e20F, 1e38F}) {
    const auto away = ClipPolyline(Points{{50, 25}, {far, 25}}, clip);
    const auto back = ClipPolyline(Points{{far, 25}, {50, 25}}, clip);
    ASSERT_EQ(away.size(), 1U) << far;
    ASSERT_EQ(back.size(), 1U) << far;
    EXPECT_EQ(away[0][1].x, 100.0);
    EXPECT_EQ(back[0][0].x, 100.0);
    EXPECT_EQ(back[0][1].x, 50.0);
    EXPECT_NEAR(back[0][0].y, 25.0, 1e-9);
  }
  EXPECT_EQ(ClipPolyline(Points{{-1e20F, -1e20F}, {1e20F, 1e20F}}, clip).size(), 1U);
}

TEST(ClipPolyline, WhatMissesIsLeftOut)
{
  EXPECT_TRUE(ClipPolyline(Points{{-10, 60}, {110, 60}}, clip).empty());
  EXPECT_TRUE(ClipPolyline(Points{{-10, 40}, {10, 80}}, clip).empty());
  EXPECT_TRUE(ClipPolyline(Points{{50, 25}}, clip).empty());
  EXPECT_TRUE(ClipPolyline(Points{}, clip).empty());
}

TEST(ClipPolyline, PointsThatAreNoNumbersBreakTheLine)
{
  const float nan = std::nanf("");
  const float infinity = std::numeric_limits<float>::infinity();
  EXPECT_TRUE(ClipPolyline(Points{{10, 10}, {nan, 10}}, clip).empty());
  EXPECT_TRUE(ClipPolyline(Points{{10, 10}, {10, infinity}}, clip).empty());
  const auto runs = ClipPolyline(Points{{10, 10}, {20, 10}, {nan, 10}, {30, 10}, {40, 10}}, clip);
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[1].front().x, 30.0);
}

TEST(ClipPolyline, ASegmentWithoutLengthStays)
{
  const auto runs = ClipPolyline(Points{{10, 10}, {10, 10}, {20, 10}}, clip);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_EQ(runs[0].size(), 3U);
}

}  // namespace
}  // namespace hullwright
