#include <gtest/gtest.h>

#include <cmath>

#include "model/Extents.h"
#include "render/ViewPort.h"

// Views at which other forms of the same formulas end in other last bits. Pixels are cut and
// coordinates are stored as they come, so the last bit shows in them.

namespace hullwright {
namespace {

struct Edges {
  double left;
  double bottom;
  double right;
  double top;
};

struct Window {
  Edges edges;
  double screenWidth;
  double screenHeight;
};

class ViewPortBits : public testing::Test {
protected:
  void Show(const Window& window)
  {
    viewPort.left = window.edges.left;
    viewPort.bottom = window.edges.bottom;
    viewPort.right = window.edges.right;
    viewPort.top = window.edges.top;
    viewPort.width = std::abs(viewPort.right - viewPort.left);
    viewPort.height = std::abs(viewPort.top - viewPort.bottom);
    viewPort.screenWidth = window.screenWidth;
    viewPort.screenHeight = window.screenHeight;
  }

  void Expect(const Edges& edges, double width, double height) const
  {
    EXPECT_EQ(viewPort.left, edges.left);
    EXPECT_EQ(viewPort.bottom, edges.bottom);
    EXPECT_EQ(viewPort.right, edges.right);
    EXPECT_EQ(viewPort.top, edges.top);
    EXPECT_EQ(viewPort.width, width);
    EXPECT_EQ(viewPort.height, height);
  }

  void ExpectWorld(double sx, double sy, double x, double y) const
  {
    const WorldPoint world = viewPort.ScreenToWorld(sx, sy);
    EXPECT_EQ(world.x, x);
    EXPECT_EQ(world.y, y);
  }

  CViewPort viewPort;
};

TEST_F(ViewPortBits, APixelLeadsToItsWorldPointToTheLastBit)
{
  Show({{-31.2, -20.7, 44.9, 46.8}, 1013.0, 613.0});
  ExpectWorld(280.0, 540.0, -10.165449160908198, -12.661663947797726);
  Show({{-19.0, -37.8, 39.3, 30.1}, 1013.0, 599.0});
  ExpectWorld(19.0, 37.0, -17.906515301085882, 25.90584307178631);
  Show({{-23.8, -17.0, 55.5, 47.9}, 773.0, 701.0});
  viewPort.SetRotation(30.0);
  ExpectWorld(1.0, 479.0, -12.450668883203454, -14.62662896186487);
}

TEST_F(ViewPortBits, AWorldPointLeadsToItsRowOfPixelsToTheLastBit)
{
  Show({{-100.0, -75.0, 100.0, 75.0}, 800.0, 600.0});
  viewPort.ZoomOut(400.0, 300.0);
  EXPECT_EQ(viewPort.WorldToScreenFlat(0.0, -13.7).y, 341.09999999999997);
}

TEST_F(ViewPortBits, ZoomInMovesTheEdgesToTheLastBit)
{
  Show({{-5.5, -39.3, 9.1, 39.0}, 811.0, 701.0});
  viewPort.ZoomIn(38.0, 246.0);
  Expect({-10.290906288532677, -17.84010342368046, 0.6590937114673239, 40.88489657631954},
         10.950000000000001, 58.725);
  Show({{-48.0, -34.3, 29.7, 4.3}, 797.0, 613.0});
  viewPort.ZoomIn(133.0, 375.0);
  Expect({-64.17125156838142, -33.788376835236534, -5.896251568381425, -4.8383768352365415}, 58.275,
         28.949999999999992);
}

TEST_F(ViewPortBits, ZoomOutMovesTheEdgesToTheLastBit)
{
  Show({{-43.1, -6.5, 18.8, 11.8}, 797.0, 599.0});
  viewPort.ZoomOut(713.0, 69.0);
  Expect({-28.990631534922624, -2.508013355592653, 53.54270179841072, 21.89198664440735},
         82.53333333333335, 24.400000000000002);
  Show({{-48.0, -34.3, 29.7, 4.3}, 797.0, 613.0});
  viewPort.ZoomOut(133.0, 375.0);
  Expect({-86.83375156838143, -45.04671016856987, 16.766248431618575, 6.41995649809679},
         103.60000000000001, 51.466666666666654);
}

TEST_F(ViewPortBits, CenterOnMovesTheEdgesToTheLastBit)
{
  Show({{-17.0, -43.2, 18.0, 9.3}, 773.0, 701.0});
  viewPort.CenterOn(119.0, 353.0);
  Expect({-29.111901681759377, -43.38723252496433, 5.888098318240623, 9.112767475035668}, 35.0,
         52.5);
  Show({{-44.4, -8.0, 11.5, 31.4}, 1013.0, 701.0});
  viewPort.CenterOn(957.0, 237.0);
  Expect({-19.540227048371175, -1.6206847360912953, 36.35977295162883, 37.7793152639087},
         55.900000000000006, 39.39999999999999);
}

TEST_F(ViewPortBits, KeepAspectTakesTheHeightFromTheEdgesToTheLastBit)
{
  Show({{-3.7, -7.4, 14.1, 42.5}, 811.0, 599.0});
  viewPort.width = viewPort.height = 200.0;  // of before the edges moved
  viewPort.KeepAspect();
  Expect({-3.7, 10.976510480887793, 14.1, 24.12348951911221}, 17.8, 13.146979038224414);
  viewPort.CenterOn(100.0, 0.0);
  Expect({-10.40517879161529, 17.55, 7.394821208384711, 30.696979038224413}, 17.8,
         13.146979038224412);
}

TEST_F(ViewPortBits, TheHeightThatWasKeptCountsAndNotTheDistanceOfTheEdges)
{
  Show({{-17.0, -43.2, 18.0, 9.3}, 773.0, 701.0});
  viewPort.KeepAspect();
  EXPECT_EQ(viewPort.height, 31.739974126778783);
  ASSERT_NE(viewPort.top - viewPort.bottom, viewPort.height);
  ExpectWorld(100.0, 148.0, -12.472186287192756, -7.781177231565334);
  viewPort.ZoomIn(100.0, 0.0);
  EXPECT_EQ(viewPort.top, 10.822477360931433);
}

TEST_F(ViewPortBits, TheHeightThatWasKeptCountsForZoomingOutAndForPixels)
{
  Show({{-17.0, -43.2, 18.0, 9.3}, 773.0, 701.0});
  viewPort.KeepAspect();
  ASSERT_NE(viewPort.top - viewPort.bottom, viewPort.height);
  EXPECT_EQ(viewPort.WorldToScreenFlat(0.0, -12.5).y, 252.21857142857147);
  EXPECT_EQ(viewPort.WorldToScreen(0.0, -12.5).y, 252.21857142857147);
  viewPort.ZoomOut(100.0, 0.0);
  EXPECT_EQ(viewPort.top, 20.079969814575243);
}

TEST_F(ViewPortBits, ABoxIsWidenedByTheHeightThatWasKept)
{
  Show({{-100.0, -75.0, 100.0, 75.0}, 797.0, 613.0});
  viewPort.ZoomToExtents({-17.1, -15.7, 7.9, 3.2});
  Expect({-33.492514047489578, -28.472222222222221, 24.292514047489576, 15.972222222222223},
         57.785028094979154, 44.444444444444443);
}

TEST_F(ViewPortBits, APointGoesThroughTheCentreAndBackToTheLastBit)
{
  Show({{-12.9, -20.7, 28.2, 31.7}, 1013.0, 599.0});
  viewPort.KeepAspect();
  const ScreenPoint p = viewPort.WorldToScreen(-6.4, 1.1);
  EXPECT_EQ(p.x, 160.20681265206809);
  EXPECT_EQ(p.y, 407.94768856447683);
  const ScreenPoint flat = viewPort.WorldToScreenFlat(-6.4, 1.1);
  EXPECT_EQ(flat.x, 160.20681265206812);
  EXPECT_EQ(flat.y, 407.94768856447689);
}

TEST_F(ViewPortBits, ATallBoxIsFramedWithTheHeightAsItStood)
{
  Show({{-100.0, -75.0, 100.0, 75.0}, 800.0, 600.0});
  viewPort.ZoomToExtents({1.3, 4.7, 7.0, 10.7});
  EXPECT_EQ(viewPort.bottom, 2.36666666666667);
  Show({{-100.0, -75.0, 100.0, 75.0}, 1013.0, 599.0});
  viewPort.ZoomToExtents({-28.1, 3.0, -5.8, 37.0});
  Expect({-73.4305241056932, -13.397664303366454, 39.53052410569319, 53.397664303366454},
         112.96104821138638, 66.79532860673291);
}

TEST_F(ViewPortBits, AWideBoxIsFramedWithItsWidthForTheHeight)
{
  Show({{-100.0, -75.0, 100.0, 75.0}, 800.0, 600.0});
  viewPort.ZoomToExtents({1.3, 4.7, 9.0, 10.7});
  EXPECT_EQ(viewPort.bottom, 0.8555555555555556);
  Show({{-100.0, -75.0, 100.0, 75.0}, 797.0, 613.0});
  viewPort.ZoomToExtents({-28.4, -28.2, -6.2, -11.5});
  Expect({-42.95655247417075, -39.58333333333334, 8.356552474170744, -0.11666666666666625},
         51.31310494834149, 39.466666666666676);
}

TEST_F(ViewPortBits, ABoxIsFittedWithItsMarginsToTheLastBit)
{
  Show({{-100.0, -75.0, 100.0, 75.0}, 797.0, 613.0});
  viewPort.FitExtents({-25.7, 0.4, 2.7, 37.8});
  Expect({-30.43333333333333, 4.537724801338356, 7.433333333333333, 33.662275198661646},
         37.86666666666666, 29.12455039732329);
}

}  // namespace
}  // namespace hullwright
