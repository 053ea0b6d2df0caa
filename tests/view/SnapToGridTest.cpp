#include "view/SnapToGrid.h"

#include <gtest/gtest.h>

#include <cmath>

namespace hullwright {
namespace {

double Snapped(double value)
{
  double x = value;
  double y = 0.0;
  SnapToGrid(GridSettings{}, x, y);
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

TEST(SnapToGrid, ASpacingOfZeroGivesNoNumber)
{
  GridSettings grid;
  grid.spacingSnapX = 0.0;
  double x = 1.0;
  double y = 1.0;
  SnapToGrid(grid, x, y);
  EXPECT_TRUE(std::isnan(x));
}

}  // namespace
}  // namespace hullwright
