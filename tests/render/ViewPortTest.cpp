#include "render/ViewPort.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/Extents.h"

namespace hullwright {
namespace {

/// The view rectangle that a window of 800 by 600 begins with.
class ViewPortTest : public testing::Test {
protected:
  ViewPortTest()
  {
    viewPort.screenWidth = 800.0;
    viewPort.screenHeight = 600.0;
    viewPort.KeepAspect();
  }

  void ExpectEdges(double left, double bottom, double right, double top) const
  {
    EXPECT_EQ(viewPort.left, left);
    EXPECT_EQ(viewPort.bottom, bottom);
    EXPECT_EQ(viewPort.right, right);
    EXPECT_EQ(viewPort.top, top);
    EXPECT_EQ(viewPort.width, std::abs(right - left));
    EXPECT_EQ(viewPort.height, std::abs(top - bottom));
  }

  CViewPort viewPort;
};

TEST(ViewPort, BeginsWithAHundredUnitsToEachSide)
{
  const CViewPort viewPort;
  EXPECT_EQ(viewPort.canvas, nullptr);
  EXPECT_FALSE(viewPort.flag);
  EXPECT_EQ(viewPort.left, -100.0);
  EXPECT_EQ(viewPort.bottom, -100.0);
  EXPECT_EQ(viewPort.right, 100.0);
  EXPECT_EQ(viewPort.top, 100.0);
  EXPECT_EQ(viewPort.width, 200.0);
  EXPECT_EQ(viewPort.height, 200.0);
  EXPECT_EQ(viewPort.screenWidth, 0.0);
  EXPECT_EQ(viewPort.rotation, 0.0);
  EXPECT_EQ(viewPort.cosRotation, 1.0);
  EXPECT_EQ(viewPort.sinInverse, 0.0);
}

TEST(ViewPort, KeepAspectDoesNothingBeforeTheFirstResize)
{
  CViewPort viewPort;
  viewPort.screenWidth = 800.0;
  viewPort.KeepAspect();
  EXPECT_EQ(viewPort.height, 200.0);
  EXPECT_EQ(viewPort.top, 100.0);
}

TEST_F(ViewPortTest, KeepAspectLetsTheWidthRule)
{
  ExpectEdges(-100.0, -75.0, 100.0, 75.0);
  const ScreenPoint centre = viewPort.WorldToScreen(0.0, 0.0);
  EXPECT_EQ(centre.x, 400.0);
  EXPECT_EQ(centre.y, 300.0);
  const ScreenPoint corner = viewPort.WorldToScreen(-100.0, 75.0);
  EXPECT_EQ(corner.x, 0.0);
  EXPECT_EQ(corner.y, 0.0);
}

TEST_F(ViewPortTest, ScreenToWorldIsTheWayBack)
{
  const WorldPoint world = viewPort.ScreenToWorld(200.0, 150.0);
  EXPECT_EQ(world.x, -50.0);
  EXPECT_EQ(world.y, 37.5);
}

TEST_F(ViewPortTest, ZoomInThenOutAtTheCentreComesBack)
{
  viewPort.ZoomIn(400.0, 300.0);
  ExpectEdges(-75.0, -56.25, 75.0, 56.25);
  viewPort.ZoomOut(400.0, 300.0);
  EXPECT_DOUBLE_EQ(viewPort.width, 200.0);
  EXPECT_DOUBLE_EQ(viewPort.left, -100.0);
  EXPECT_DOUBLE_EQ(viewPort.height, 150.0);
}

TEST_F(ViewPortTest, ZoomingMakesThePixelTheCentre)
{
  viewPort.ZoomIn(0.0, 0.0);
  EXPECT_EQ((viewPort.left + viewPort.right) * 0.5, -100.0);
  EXPECT_EQ((viewPort.bottom + viewPort.top) * 0.5, 75.0);
  EXPECT_EQ(viewPort.width, 150.0);
}

TEST_F(ViewPortTest, ZoomOutWidensByASixthOnEachSide)
{
  viewPort.ZoomOut(400.0, 300.0);
  constexpr double sixth = 0.16666666666666666;
  ExpectEdges(-100.0 - 200.0 * sixth, -75.0 - 150.0 * sixth, (-100.0 + 200.0) + 200.0 * sixth,
              (-75.0 + 150.0) + 150.0 * sixth);
}

TEST_F(ViewPortTest, CenterOnKeepsTheScale)
{
  viewPort.CenterOn(600.0, 300.0);
  ExpectEdges(-50.0, -75.0, 150.0, 75.0);
}

TEST_F(ViewPortTest, TheMappingsAreExactToTheLastBit)
{
  // A zoom step out gives a scale of many digits, at which other forms of the same formulas end
  // elsewhere: pixels are cut, and coordinates are stored as they are.
  viewPort.ZoomOut(400.0, 300.0);
  EXPECT_EQ(viewPort.WorldToScreenFlat(-65.0, 0.0).x, 205.0);
  EXPECT_EQ(viewPort.ScreenToWorld(26.0, 300.0).x, -124.66666666666664);
  viewPort.CenterOn(7.0, 0.0);
  EXPECT_EQ(viewPort.right, 2.3333333333333712);
}

TEST_F(ViewPortTest, RotationIsNormalised)
{
  viewPort.SetRotation(-30.0);
  EXPECT_EQ(viewPort.rotation, 330.0);
  viewPort.SetRotation(720.0);
  EXPECT_EQ(viewPort.rotation, 0.0);
  viewPort.SetRotation(360.0);
  EXPECT_EQ(viewPort.rotation, 0.0);
  viewPort.SetRotation(1e300);
  EXPECT_TRUE(viewPort.rotation >= 0.0 && viewPort.rotation < 360.0);
  viewPort.SetRotation(std::numeric_limits<double>::infinity());
  EXPECT_TRUE(std::isnan(viewPort.rotation));
}

TEST_F(ViewPortTest, RotationTurnsTheMappingAboutTheCentreAndNotTheFlatOne)
{
  viewPort.SetRotation(90.0);
  const ScreenPoint turned = viewPort.WorldToScreen(0.0, 50.0);
  EXPECT_NEAR(turned.x, 600.0, 1e-9);
  EXPECT_NEAR(turned.y, 300.0, 1e-9);
  const ScreenPoint flat = viewPort.WorldToScreenFlat(0.0, 50.0);
  EXPECT_EQ(flat.x, 400.0);
  EXPECT_EQ(flat.y, 100.0);
  const WorldPoint back = viewPort.ScreenToWorld(turned.x, turned.y);
  EXPECT_NEAR(back.x, 0.0, 1e-9);
  EXPECT_NEAR(back.y, 50.0, 1e-9);
}

TEST_F(ViewPortTest, ContainsItsEdges)
{
  EXPECT_TRUE(viewPort.Contains(-100.0, -75.0));
  EXPECT_TRUE(viewPort.Contains(100.0, 75.0));
  EXPECT_FALSE(viewPort.Contains(std::nextafter(-100.0, -200.0), 0.0));
  EXPECT_FALSE(viewPort.Contains(0.0, 75.001));
  EXPECT_FALSE(viewPort.Contains(std::nan(""), 0.0));
}

TEST_F(ViewPortTest, FitExtentsCropsATallBox)
{
  viewPort.FitExtents({0.0, 0.0, 10.0, 40.0});
  EXPECT_EQ(viewPort.left, -1.6666666666666665);
  EXPECT_EQ(viewPort.right, 11.666666666666666);
  EXPECT_NEAR(viewPort.height, 10.0, 1e-12);
  EXPECT_NEAR((viewPort.bottom + viewPort.top) * 0.5, 20.0, 1e-12);
}

TEST_F(ViewPortTest, FitExtentsOfAWideBoxLeavesASixthOnEachSide)
{
  viewPort.FitExtents({-60.0, -3.0, 60.0, 3.0});
  EXPECT_EQ(viewPort.left, -80.0);
  EXPECT_EQ(viewPort.right, 80.0);
  EXPECT_EQ(viewPort.height, 120.0);
}

TEST_F(ViewPortTest, ZoomToExtentsOfAWideBox)
{
  viewPort.ZoomToExtents({10.0, 20.0, 50.0, 30.0});
  // Both corners are in view at once, so the rectangle is widened twice only.
  constexpr double sixth = 0.16666666666666666;
  double width = (800.0 / 600.0) * 40.0;
  double left = 30.0 - width * 0.5;
  double right = 30.0 + width * 0.5;
  width = std::abs(right - left);
  for (int step = 0; step < 2; ++step) {
    const double margin = width * sixth;
    left -= margin;
    right += margin;
    width = std::abs(right - left);
  }
  EXPECT_EQ(viewPort.left, left);
  EXPECT_EQ(viewPort.right, right);
  EXPECT_TRUE(viewPort.Contains(10.0, 20.0));
  EXPECT_TRUE(viewPort.Contains(50.0, 30.0));
}

TEST_F(ViewPortTest, ZoomToExtentsOfATallBoxWidensUntilACornerIsInView)
{
  viewPort.ZoomToExtents({0.0, 0.0, 1.0, 400.0});
  EXPECT_TRUE(viewPort.Contains(0.0, 0.0));
  EXPECT_TRUE(viewPort.Contains(1.0, 400.0));
  // Its width came from the inverted shape of the window.
  EXPECT_NEAR((viewPort.left + viewPort.right) * 0.5, 0.5, 1e-9);
}

TEST_F(ViewPortTest, ATallBoxTakesItsWidthFromTheInvertedShapeOfTheWindow)
{
  viewPort.screenWidth = 1000.0;
  viewPort.screenHeight = 500.0;
  viewPort.ZoomToExtents({0.0, 0.0, 1.0, 400.0});
  // 200 wide and 100 high at first; five steps bring a corner in, two more follow.
  EXPECT_NEAR(viewPort.width, 200.0 * std::pow(4.0 / 3.0, 7), 1e-6);
}

TEST_F(ViewPortTest, ZoomToExtentsIsContentWithOneCornerInView)
{
  viewPort.ZoomToExtents({1.3, 4.7, 7.0, 10.7});  // the upper corner comes into view first
  EXPECT_EQ(viewPort.width, 14.222222222222223);
  viewPort.screenWidth = 600.0;
  viewPort.ZoomToExtents({2.2, 4.7, 3.0, 7.9});  // the lower one is in view at once
  EXPECT_EQ(viewPort.width, 5.688888888888889);
}

TEST_F(ViewPortTest, ZoomToExtentsGivesUpAfterThirtySteps)
{
  viewPort.ZoomToExtents({5.0, 5.0, 5.0, 5.0});
  viewPort.ZoomToExtents({std::nan(""), 0.0, std::nan(""), 1.0});
  EXPECT_TRUE(std::isnan(viewPort.left));
}

TEST_F(ViewPortTest, AUsableViewIsNotRecovered)
{
  viewPort.left = 0.1;
  viewPort.bottom = -0.2;
  viewPort.right = 0.1 + 1e-15;
  viewPort.top = 5e-324;
  viewPort.width = 1.0;
  viewPort.height = 5e-324;
  EXPECT_TRUE(viewPort.IsUsable());
  EXPECT_FALSE(viewPort.Recover());
  EXPECT_EQ(viewPort.left, 0.1);
  EXPECT_EQ(viewPort.bottom, -0.2);
  EXPECT_EQ(viewPort.right, 0.1 + 1e-15);
  EXPECT_EQ(viewPort.top, 5e-324);
  EXPECT_EQ(viewPort.width, 1.0);
  EXPECT_EQ(viewPort.height, 5e-324);
}

TEST_F(ViewPortTest, AnyFieldOfTheRectangleMakesAViewUnusable)
{
  const double infinity = std::numeric_limits<double>::infinity();
  for (double CViewPort::*const field : {&CViewPort::left, &CViewPort::bottom, &CViewPort::right,
                                         &CViewPort::top, &CViewPort::width, &CViewPort::height}) {
    for (const double value : {infinity, -infinity, std::nan("")}) {
      viewPort.*field = value;
      EXPECT_FALSE(viewPort.IsUsable());
      EXPECT_TRUE(viewPort.Recover());
      ExpectEdges(-100.0, -75.0, 100.0, 75.0);
    }
  }
  for (double CViewPort::*const extent : {&CViewPort::width, &CViewPort::height}) {
    viewPort.*extent = 0.0;
    EXPECT_TRUE(viewPort.Recover());
    ExpectEdges(-100.0, -75.0, 100.0, 75.0);
  }
}

TEST(ViewPort, RecoversWithoutAShapeBeforeTheFirstResize)
{
  CViewPort viewPort;
  viewPort.left = viewPort.right;
  viewPort.width = 0.0;
  EXPECT_TRUE(viewPort.Recover());
  EXPECT_EQ(viewPort.left, -100.0);
  EXPECT_EQ(viewPort.bottom, -100.0);
  EXPECT_EQ(viewPort.width, 200.0);
  EXPECT_EQ(viewPort.height, 200.0);
}

TEST_F(ViewPortTest, WhatCanBeFittedIsFittedToTheBit)
{
  CViewPort plain;
  plain.screenWidth = 800.0;
  plain.screenHeight = 600.0;
  plain.KeepAspect();
  const auto expectSame = [&] {
    for (const double CViewPort::*field :
         {&CViewPort::left, &CViewPort::bottom, &CViewPort::right, &CViewPort::top,
          &CViewPort::width, &CViewPort::height}) {
      EXPECT_EQ(viewPort.*field, plain.*field);
    }
  };
  plain.FitExtents({0.1, 7.7, 60.3, 7.7});  // a horizontal line
  viewPort.FitOrCentre({0.1, 7.7, 60.3, 7.7});
  expectSame();
  plain.FitExtents({-1e-15, 3.1, 1e-15, 40.7});
  viewPort.FitOrCentre({-1e-15, 3.1, 1e-15, 40.7});
  expectSame();
  plain.ZoomToExtents({0.3, 3.1, 0.3, 40.7});  // a vertical one
  viewPort.ZoomOrCentre({0.3, 3.1, 0.3, 40.7});
  expectSame();
}

TEST_F(ViewPortTest, APlaceWhoseSumWithItselfIsTooLargeIsCentredOnAllTheSame)
{
  viewPort.left = -4e307;
  viewPort.right = 4e307;
  viewPort.KeepAspect();
  viewPort.FitOrCentre({1.2e308, 0.0, 1.2e308, 0.0});
  EXPECT_EQ(viewPort.left, 1.2e308 - 4e307);
  EXPECT_EQ(viewPort.right, (1.2e308 - 4e307) + 8e307);
  EXPECT_TRUE(viewPort.IsUsable());
}

}  // namespace
}  // namespace hullwright
