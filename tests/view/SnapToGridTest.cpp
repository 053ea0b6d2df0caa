#include "view/SnapToGrid.h"

#include <gtest/gtest.h>

#include <utility>

namespace hullwright {
namespace {

double Snapped(double value, double spacing = GridSettings{}.spacingSnapX)
{
  GridSettings grid;
  grid.spacingSnapX = grid.spacingSnapY = spacing;
  double x = value;
  double y = value;
  SnapToGrid(grid, x, y);
  EXPECT_EQ(y, x);
  return x;
}

TEST(SnapToGrid, RoundsToTheNearestAndHalfWayTowardZero)
{
  EXPECT_EQ(Snapped(3.7), 2.5);
  EXPECT_EQ(Snapped(3.75), 2.5);
  EXPECT_EQ(Snapped(3.8), 5.0);
  EXPECT_EQ(Snapped(-3.8), -5.0);
  EXPECT_EQ(Snapped(-3.75), -2.5);
  EXPECT_EQ(Snapped(0.0), 0.0);
}

TEST(SnapToGrid, TheAxesHaveTheirOwnSpacings)
{
  GridSettings grid;
  grid.spacingSnapX = 1.0;
  grid.spacingSnapY = 10.0;
  double x = 7.2;
  double y = 7.2;
  SnapToGrid(grid, x, y);
  EXPECT_DOUBLE_EQ(x, 7.0);
  EXPECT_EQ(y, 10.0);
}

TEST(SnapToGrid, SwitchedOffPositionsStay)
{
  GridSettings grid;
  grid.snap = 0;
  double x = 1.23;
  double y = -4.56;
  SnapToGrid(grid, x, y);
  EXPECT_EQ(x, 1.23);
  EXPECT_EQ(y, -4.56);
}

TEST(SnapToGrid, IsExactToTheLastBit)
{
  // Places at which other ways to the nearest multiple end in another last bit.
  EXPECT_EQ(Snapped(15.96, 0.07), 15.96);
  EXPECT_EQ(Snapped(-28.38, 0.33), -28.380000000000003);
  EXPECT_EQ(Snapped(19.05, 0.1), 19.0);
}

TEST(SnapToGrid, AnAxisWithoutSpacingKeepsItsCoordinate)
{
  GridSettings grid;
  grid.spacingSnapX = 0.0;
  double x = 1.23;
  double y = 3.8;
  SnapToGrid(grid, x, y);
  EXPECT_EQ(x, 1.23);
  EXPECT_EQ(y, 5.0);
  std::swap(grid.spacingSnapX, grid.spacingSnapY);
  x = -3.8;
  y = -1.23;
  SnapToGrid(grid, x, y);
  EXPECT_EQ(x, -5.0);
  EXPECT_EQ(y, -1.23);
}

}  // namespace
}  // namespace hullwright
