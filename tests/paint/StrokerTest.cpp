#include "paint/Stroker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "paint/StrokerFixture.h"

// The stroker against the exact coverage of each pixel, which the fixture counts out.

namespace hullwright {
namespace {

using test::Points;
using test::StrokerFixture;

constexpr double turn = 6.283185307179586;

TEST_F(StrokerFixture, SegmentsOfAllSlopesAndWidthsCoverWhatTheyShould)
{
  for (const float width : {0.3F, 0.7F, 1.0F, 1.4F, 2.0F, 3.0F, 5.0F, 12.0F, 50.0F}) {
    for (int step = 0; step < 12; ++step) {
      const double angle = turn * step / 12 + 0.02 * step;
      const auto dx = static_cast<float>(std::cos(angle) * 21.3);
      const auto dy = static_cast<float>(std::sin(angle) * 21.3);
      const Points line = {{40.2F - dx, 32.6F - dy}, {40.2F + dx, 32.6F + dy}};
      ExpectExact(line, width, {3.5, 16.0});
    }
  }
}

// Where strokes meet within one pixel the larger coverage counts, so some pixels differ by more.
TEST_F(StrokerFixture, JoinsAreRoundAndLeaveNoSeam)
{
  std::mt19937 random(7);
  std::uniform_real_distribution<float> anywhere(8.0F, 56.0F);
  for (const float width : {0.5F, 1.0F, 2.0F, 5.0F, 9.0F}) {
    for (int round = 0; round < 6; ++round) {
      Points line;
      for (int i = 0; i < 5; ++i) line.push_back({anywhere(random), anywhere(random)});
      ExpectExact(line, width, {5.0, 128.0});
    }
  }
}

/// Nine tenths of a circle in so many steps.
Points Curve(double radius, int steps)
{
  Points curve;
  for (int i = 0; i <= steps; ++i) {
    const double angle = turn * 0.9 * i / steps;
    curve.push_back({static_cast<float>(40.0 + radius * std::cos(angle)),
                     static_cast<float>(32.0 + radius * std::sin(angle))});
  }
  return curve;
}

TEST_F(StrokerFixture, ACurveOfShortStepsIsAsWideAsOneOfLongSteps)
{
  for (const float width : {1.0F, 2.0F, 6.0F}) {
    for (const int steps : {12, 60, 400}) ExpectExact(Curve(25.0, steps), width, {5.0, 128.0});
  }
}

TEST_F(StrokerFixture, ASmallCurveOfManyStepsIsAsWideAsOneOfFew)
{
  for (const float width : {1.0F, 2.0F}) {
    for (const int steps : {30, 100}) ExpectExact(Curve(12.0, steps), width, {6.0, 128.0});
  }
}

TEST_F(StrokerFixture, LongSegmentsCoverWhatTheyShould)
{
  for (const float width : {1.0F, 2.0F, 3.0F}) {
    ExpectExact({{-3000.0F, -1000.0F}, {3050.0F, 1064.0F}}, width, {4.5, 24.0});
    ExpectExact({{-3000.0F, 30.2F}, {3000.0F, 33.4F}}, width, {4.5, 24.0});
    ExpectExact({{40.3F, 32.2F}, {5000.0F, 1200.0F}}, width, {4.5, 24.0});
    ExpectExact({{36.3F, -4000.0F}, {41.7F, 32.5F}}, width, {4.5, 24.0});
  }
}

// The few pixels of a short segment are nearly all at an edge, a corner or a join.
TEST_F(StrokerFixture, SegmentsOfAPixelOrTwoCoverWhatTheyShould)
{
  std::mt19937 random(4);
  std::uniform_real_distribution<float> anywhere(30.0F, 34.0F);
  std::uniform_real_distribution<float> anyStep(-2.0F, 2.0F);
  for (const float width : {0.7F, 1.0F, 1.4F, 2.0F, 2.4F}) {
    for (int round = 0; round < 40; ++round) {
      Points line = {{anywhere(random), anywhere(random)}};
      while (line.size() < 3) {
        const PixelPoint step = {anyStep(random), anyStep(random)};
        const PixelPoint& last = line.back();
        if (std::hypot(step.x, step.y) > 0.6F) line.push_back({last.x + step.x, last.y + step.y});
      }
      ExpectExact(line, width, {14.0, 64.0});
      line.pop_back();
      ExpectExact(line, width, {8.5, 40.0});
    }
  }
}

TEST_F(StrokerFixture, SegmentsOfAPixelOrTwoAreCutAtTheEdgesOfThePicture)
{
  Paper large(100, 100);
  Paper small(10, 10);
  for (float x = -3.0F; x < 14.0F; x += 0.7F) {
    for (float y = -3.0F; y < 14.0F; y += 0.7F) {
      const auto line = [x, y](float by) {
        return Points{
            {x + by, y + by}, {x + by + 0.9F, y + by - 1.1F}, {x + by + 1.1F, y + by + 0.6F}};
      };
      large.Clear();
      small.Clear();
      large.Draw(line(40.0F), FigureKind::Line, {});
      small.Draw(line(0.0F), FigureKind::Line, {});
      for (int row = 0; row < 10; ++row) {
        for (int column = 0; column < 10; ++column) {
          ASSERT_NEAR(small.Blue(column, row), large.Blue(column + 40, row + 40), 6)
              << x << ' ' << y << " at " << column << ' ' << row;
        }
      }
    }
  }
}

TEST_F(StrokerFixture, ATangleOfManySegmentsIsOneLine)
{
  std::mt19937 random(9);
  std::uniform_real_distribution<float> anywhere(30.0F, 40.0F);
  Points tangle;
  for (int i = 0; i < 60; ++i) tangle.push_back({anywhere(random), anywhere(random)});
  for (const float width : {2.0F, 3.0F}) ExpectExact(tangle, width, {9.0, 128.0});
}

TEST_F(StrokerFixture, ALineWithoutLengthDrawsNothingAndASmallShapeADot)
{
  Draw({{20.5F, 20.5F}, {20.5F, 20.5F}}, 2.0F);
  EXPECT_EQ(Ink(), 0.0);
  Draw({{20.5F, 20.5F}, {20.6F, 20.4F}, {20.5F, 20.6F}}, 4.0F);
  EXPECT_EQ(Cover(20, 20), 255);
  EXPECT_NEAR(Ink(), 4.0 * 3.14159, 0.7);
}

TEST_F(StrokerFixture, TheLastPointCountsHoweverNearTheOneBeforeIs)
{
  Draw({{10.0F, 20.5F}, {29.8F, 20.5F}, {30.0F, 20.5F}}, 1.0F);
  EXPECT_EQ(Cover(29, 20), 255);
  EXPECT_EQ(Cover(30, 20), 0);
}

TEST_F(StrokerFixture, OutlinesAreClosedAndHaveTheirCorners)
{
  Draw({{10.0F, 10.0F}, {30.0F, 10.0F}, {30.0F, 30.0F}, {10.0F, 30.0F}}, 4.0F, FigureKind::Outline);
  for (const int at : {8, 9, 10, 11, 28, 29, 30, 31}) {
    EXPECT_EQ(Cover(8, at), 255) << at;
    EXPECT_EQ(Cover(at, 31), 255) << at;
  }
  EXPECT_EQ(Cover(7, 8), 0);
  EXPECT_EQ(Cover(20, 20), 0);
  EXPECT_EQ(Ink(), 24.0 * 24.0 - 16.0 * 16.0);
}

TEST_F(StrokerFixture, TheCornersOfAnOutlineHaveBothTheirSides)
{
  // A regular hexagon: outer edges meet 29.2 from its middle, round joins reach no more than 28.
  const float up = 32.0F - 10.0F * std::sqrt(3.0F);
  const float down = 64.0F - up;
  Draw({{60.0F, 32.0F}, {50.0F, down}, {30.0F, down}, {20.0F, 32.0F}, {30.0F, up}, {50.0F, up}},
       16.0F, FigureKind::Outline);
  for (const int x : {11, 68}) {
    EXPECT_GT(Cover(x, 31), 150) << x;
    EXPECT_EQ(Cover(x, 32), Cover(x, 31)) << x;
  }
}

TEST_F(StrokerFixture, AnOutlineIsTheSameWhereverItBegins)
{
  // Corners too sharp for more than the round joins.
  const Points triangle = {{15.0F, 40.0F}, {60.0F, 35.0F}, {60.0F, 45.0F}};
  Draw(triangle, 6.0F, FigureKind::Outline);
  const double ink = Ink();
  EXPECT_EQ(Cover(13, 39), 255);
  EXPECT_EQ(Cover(10, 40), 0);  // no spike
  Draw({triangle[1], triangle[2], triangle[0]}, 6.0F, FigureKind::Outline);
  EXPECT_NEAR(Ink(), ink, 0.2);
  Draw({triangle[2], triangle[0], triangle[1]}, 6.0F, FigureKind::Outline);
  EXPECT_NEAR(Ink(), ink, 0.2);
}

TEST_F(StrokerFixture, AnOutlineThatReturnsToItsFirstPointIsNoOther)
{
  const Points square = {{20.0F, 20.0F}, {50.0F, 20.0F}, {50.0F, 50.0F}, {20.0F, 50.0F}};
  Draw(square, 8.0F, FigureKind::Outline);
  const double ink = Ink();
  Points closed = square;
  closed.push_back(square.front());
  Draw(closed, 8.0F, FigureKind::Outline);
  EXPECT_EQ(Ink(), ink);
}

TEST_F(StrokerFixture, AnOutlineThatLeavesThePictureFarAwayIsClosed)
{
  const float far = 1e9F;
  Draw({{10.5F, 10.5F}, {far, 10.5F}, {far, 50.5F}, {10.5F, 50.5F}}, 3.0F, FigureKind::Outline);
  EXPECT_EQ(Cover(10, 30), 255);
  EXPECT_EQ(Cover(40, 10), 255);
  EXPECT_EQ(Cover(40, 50), 255);
  EXPECT_EQ(Cover(40, 30), 0);
}

TEST_F(StrokerFixture, APictureNarrowerThanFourPixelsIsNotTaken)
{
  EXPECT_FALSE(Paper(3, 9).stroker.IsActive());
  EXPECT_TRUE(Paper(4, 9).stroker.IsActive());
}

TEST_F(StrokerFixture, AnOutlineOfOneOrTwoPointsIsALine)
{
  Draw({{10.0F, 10.5F}, {30.0F, 10.5F}}, 1.0F, FigureKind::Outline);
  EXPECT_EQ(Ink(), 20.0);
  Draw({{10.0F, 10.5F}}, 3.0F, FigureKind::Outline);
  EXPECT_EQ(Ink(), 0.0);
}

TEST_F(StrokerFixture, WhatLeavesThePictureIsCutAtItsEdges)
{
  std::mt19937 random(11);
  std::uniform_real_distribution<float> anywhere(-40.0F, 120.0F);
  for (int round = 0; round < 30; ++round) {
    const auto thickness = static_cast<float>(round % 3 + 1);
    Points line;
    for (int i = 0; i < 4; ++i) line.push_back({anywhere(random), anywhere(random)});
    Draw(line, thickness);
    // The same in a picture with room around it.
    StrokerFixture::Paper wide(240, 220);
    Points moved = line;
    for (PixelPoint& p : moved) p = {p.x + 80.0F, p.y + 80.0F};
    wide.Draw(moved, FigureKind::Line, {0xff000000U, 1.0F, thickness});
    for (int y = 0; y < paper.height; ++y) {
      for (int x = 0; x < paper.width; ++x) {
        ASSERT_NEAR(Cover(x, y), 255 - wide.Blue(x + 80, y + 80), 1) << x << ' ' << y;
      }
    }
  }
}

TEST_F(StrokerFixture, ALineThatJustFitsAPictureIsTheSameAsInAWiderOne)
{
  struct Fit {
    Points line;
    float thickness;
    int width;
  };
  // The last four pixels that it may cover in a row end where the row does. The steep line reaches
  // over five columns, and in no row over more than four.
  const Fit level = {{{4.8F, 5.0F}, {23.6F, 7.3F}}, 2.0F, 27};
  const Fit steep = {{{4.7F, 5.0F}, {8.2F, 25.3F}}, 1.0F, 9};
  for (const Fit& fit : {level, steep}) {
    Paper narrow(fit.width, paper.height);
    narrow.Draw(fit.line, FigureKind::Line, {0xff000000U, 1.0F, fit.thickness});
    Draw(fit.line, fit.thickness);
    for (int y = 0; y < narrow.height; ++y) {
      for (int x = 0; x < narrow.width; ++x) {
        ASSERT_EQ(narrow.Blue(x, y), paper.Blue(x, y)) << x << ' ' << y;
      }
    }
  }
}

TEST_F(StrokerFixture, CoordinatesBeyondAllMeasureAreCut)
{
  for (const float far : {1e5F, 1e10F, 1e38F}) {
    Draw({{-far, 20.5F}, {far, 20.5F}}, 1.0F);
    EXPECT_EQ(Ink(), paper.width) << far;
    Draw({{10.0F, 20.5F}, {20.5F, 20.5F}, {20.5F, far}}, 1.0F);
    EXPECT_EQ(Cover(20, 63), 255) << far;
    EXPECT_EQ(Cover(12, 20), 255) << far;
  }
}

TEST_F(StrokerFixture, PointsThatAreNoNumbersBreakTheLine)
{
  const float nan = std::numeric_limits<float>::quiet_NaN();
  Draw({{10.0F, 20.5F}, {20.0F, 20.5F}, {nan, 20.5F}, {30.0F, 20.5F}, {50.0F, 20.5F}}, 1.0F);
  EXPECT_EQ(Ink(), 30.0);
  Draw({{nan, nan}, {nan, nan}}, 1.0F);
  EXPECT_EQ(Ink(), 0.0);
}

TEST_F(StrokerFixture, WhatATransparentLineCoversTwiceIsNotDarker)
{
  const Points cross = {{10.0F, 10.0F}, {50.0F, 50.0F}, {50.0F, 10.0F}, {10.0F, 50.0F}};
  paper.Clear();
  paper.Draw(cross, FigureKind::Line, {0xff000000U, 0.5F, 6.0F});
  for (int y = 0; y < paper.height; ++y) {
    for (int x = 0; x < paper.width; ++x) ASSERT_LE(Cover(x, y), 128) << x << ' ' << y;
  }
  EXPECT_EQ(Cover(30, 30), 128);
  EXPECT_EQ(Cover(50, 50), 128);
  EXPECT_EQ(Cover(20, 20), 128);
}

TEST_F(StrokerFixture, ATransparentLineLeavesNothingBehindItsEnd)
{
  paper.Clear();
  paper.Draw({{10.0F, 20.5F}, {30.0F, 20.5F}}, FigureKind::Line,
             {0xff000000U, 128.0F / 255.0F, 2.0F});
  EXPECT_EQ(Cover(20, 20), 128);
  EXPECT_EQ(Cover(31, 20), 0);
}

TEST_F(StrokerFixture, LinesPaintedOneAfterTheOtherDoCoverEachOther)
{
  paper.Clear();
  paper.Draw({{10.0F, 20.0F}, {50.0F, 20.0F}}, FigureKind::Line, {0xff000000U, 0.5F, 6.0F});
  paper.Draw({{30.0F, 10.0F}, {30.0F, 50.0F}}, FigureKind::Line, {0xff000000U, 0.5F, 6.0F});
  EXPECT_EQ(Cover(15, 20), 128);
  EXPECT_NEAR(Cover(30, 20), 192, 1);
}

TEST_F(StrokerFixture, APictureWithAlphaStaysPremultiplied)
{
  std::ranges::fill(paper.pixels, 0U);
  paper.Draw({{5.0F, 5.0F}, {60.0F, 33.0F}, {20.0F, 60.0F}}, FigureKind::Line,
             {0xffff8000U, 0.7F, 3.0F});
  int covered = 0;
  for (const std::uint32_t pixel : paper.pixels) {
    const std::uint32_t alpha = pixel >> 24U;
    covered += alpha > 0 ? 1 : 0;
    EXPECT_LE(alpha, 179U);
    EXPECT_NEAR((pixel >> 16U) & 255U, alpha, 1);
    EXPECT_NEAR((pixel >> 8U) & 255U, alpha * 128.0 / 255.0, 1.5);
    EXPECT_EQ(pixel & 255U, 0U);
  }
  EXPECT_GT(covered, 300);
}

TEST_F(StrokerFixture, AnOpaquePictureStaysOpaque)
{
  paper.Clear();
  paper.Draw({{5.0F, 5.0F}, {60.0F, 33.0F}}, FigureKind::Line, {0xff123456U, 0.3F, 3.0F});
  for (const std::uint32_t pixel : paper.pixels) ASSERT_EQ(pixel >> 24U, 255U);
}

TEST_F(StrokerFixture, PixelsOfAMonitorMayBeAnyPartOfAClientPixel)
{
  const Points line = {{5.25F, 8.0F}, {30.0F, 21.5F}, {12.0F, 37.0F}};
  for (const double ratio : {1.25, 1.5, 2.0}) {
    const auto scale = static_cast<float>(ratio);
    Paper scaled(80, 64, ratio);
    scaled.Draw(line, FigureKind::Line, {0xff000000U, 1.0F, 2.0F});
    Points larger = line;
    for (PixelPoint& p : larger) p = {p.x * scale, p.y * scale};
    Draw(larger, 2.0F * scale);
    EXPECT_EQ(scaled.pixels, paper.pixels) << ratio;
  }
}

TEST_F(StrokerFixture, NothingIsWrittenBesideARowOrBehindTheLastOne)
{
  for (int width = 4; width < 12; ++width) {
    Paper narrow(width, 9, 1.0, 5);
    std::ranges::fill(narrow.pixels, 0xffffffffU);
    for (const float thickness : {1.0F, 2.0F, 3.0F}) {
      narrow.Draw({{-5.0F, -5.0F}, {30.0F, 12.0F}, {2.0F, 8.0F}, {60.0F, 8.5F}}, FigureKind::Line,
                  {0xff000000U, 1.0F, thickness});
    }
    for (std::size_t i = 0; i < narrow.pixels.size(); ++i) {
      const auto column = static_cast<int>(i) % (width + 5);
      if (column < width) continue;
      ASSERT_EQ(narrow.pixels[i], 0xffffffffU) << width << ' ' << i;
    }
    EXPECT_EQ(narrow.Blue(width - 1, 8), 0) << width;
  }
}

TEST_F(StrokerFixture, ALongWayToAndFroIsOneLine)
{
  Points line;
  for (int i = 0; i < 20000; ++i) {
    line.push_back({i % 2 == 0 ? 10.0F : 50.0F, i % 4 < 2 ? 20.0F : 40.0F});
  }
  paper.Clear();
  paper.Draw(line, FigureKind::Line, {0xff000000U, 0.5F, 4.0F});
  EXPECT_EQ(Cover(30, 20), 128);
  EXPECT_EQ(Cover(30, 30), 128);
  EXPECT_EQ(Cover(45, 40), 128);
  EXPECT_EQ(Cover(30, 25), 0);
}

}  // namespace
}  // namespace hullwright
