#include "model/Extents.h"

#include <gtest/gtest.h>

#include <cmath>

#include "model/ShapePolyline.h"
#include "model/Shapes.h"

namespace hullwright {
namespace {

TEST(ExtentsOfNothing, AreTheWrongWayRoundByTheirReach)
{
  EXPECT_TRUE(Extents().IsEmpty());
  EXPECT_EQ(Extents().minX, std::numeric_limits<double>::max());
  EXPECT_EQ(emptyLayerExtents.minY, 1e24);
  EXPECT_EQ(emptyLayerExtents.maxX, -1e24);
  EXPECT_EQ(emptyZoomExtents.minX, 10000000000.0);
  EXPECT_EQ(emptyZoomExtents.maxY, -10000000000.0);
}

TEST(ExtentsOfAPlace, AreTheVeryBitsOfIt)
{
  Extents box;
  box.Widen(-0.0, 0.1);
  EXPECT_FALSE(box.IsEmpty());
  EXPECT_TRUE(std::signbit(box.minX) && std::signbit(box.maxX));
  EXPECT_EQ(box.minY, 0.1);
  EXPECT_EQ(box.maxY, 0.1);
}

TEST(ExtentsOfAPlace, StayWhereACoordinateIsNoNumber)
{
  Extents box{1.0, 2.0, 3.0, 4.0};
  box.Widen(std::nan(""), 9.0);
  box.Widen(0.5, std::nan(""));
  EXPECT_EQ(box.minX, 0.5);
  EXPECT_EQ(box.maxX, 3.0);
  EXPECT_EQ(box.minY, 2.0);
  EXPECT_EQ(box.maxY, 9.0);
}

TEST(ExtentsOfAPlace, BeyondTheReachBeginAtIt)
{
  Extents box = EmptyWithin(10.0);
  box.Widen(50.0, -50.0);
  EXPECT_EQ(box.minX, 10.0);
  EXPECT_EQ(box.maxX, 50.0);
  EXPECT_EQ(box.minY, -50.0);
  EXPECT_EQ(box.maxY, -10.0);
}

TEST(ExtentsWithABoundThatIsNoNumber, AreEmpty)
{
  EXPECT_TRUE((Extents{std::nan(""), 0.0, 1.0, 1.0}).IsEmpty());
  EXPECT_TRUE((Extents{0.0, 0.0, 1.0, std::nan("")}).IsEmpty());
  EXPECT_FALSE((Extents{1.0, 1.0, 1.0, 1.0}).IsEmpty());
}

TEST(ExtentsOfAGroup, EndAtANullShapeWithTheCursorOfTheGroup)
{
  CShapes group;
  const auto add = [&group](double x, double y) {
    auto line = std::make_unique<CShapePolyline>();
    line->AddVertex(x, y, 0.0);
    group.shapes.push_back(std::move(line));
  };
  add(1.0, 2.0);
  add(3.0, 4.0);
  group.shapes.push_back(nullptr);
  add(50.0, 50.0);
  Extents box;
  group.GetExtents(box);
  EXPECT_EQ(box.minX, 1.0);
  EXPECT_EQ(box.maxY, 4.0);
  EXPECT_EQ(group.cursor, 3U);
}

}  // namespace
}  // namespace hullwright
