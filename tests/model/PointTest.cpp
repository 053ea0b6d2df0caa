#include <gtest/gtest.h>

#include "model/ShapePoint.h"
#include "render/ViewPort.h"

namespace hullwright {
namespace {

TEST(Point, KeepsItsPositionApartFromTheVertices)
{
  CShapePoint point;
  EXPECT_EQ(point.type, ShapeType::Point);
  EXPECT_TRUE(point.vertices.empty());
  std::vector<CShapeVertex*> list(1, nullptr);
  point.GetVertices(list);
  EXPECT_EQ(list, (std::vector<CShapeVertex*>{nullptr, &point.position}));
}

TEST(Point, CloneCopiesCoordinatesOnly)
{
  CShapePoint point;
  point.position = CShapeVertex(1.0, 2.0, 3.0);
  point.position.flag = 9;
  const auto copy = point.Clone();
  const auto& clone = dynamic_cast<const CShapePoint&>(*copy);
  EXPECT_TRUE(clone.position == point.position);
  EXPECT_EQ(clone.position.flag, 0);
}

TEST(Point, ExtentsHaveAMarginOfOneWorldUnit)
{
  CShapePoint point;
  point.position = CShapeVertex(5.0, -5.0, 0.0);
  Extents box = EmptyWithin(1e9);
  point.GetExtents(box);
  EXPECT_EQ(box.minX, 4.0);
  EXPECT_EQ(box.minY, -6.0);
  EXPECT_EQ(box.maxX, 6.0);
  EXPECT_EQ(box.maxY, -4.0);
}

TEST(Point, HitRegionIsAnOpenSquare)
{
  CViewPort viewPort;
  viewPort.screenWidth = 200.0;
  viewPort.screenHeight = 200.0;
  const CShapePoint point;
  EXPECT_TRUE(point.HitTest(&viewPort, 9.9, 9.9));
  EXPECT_FALSE(point.HitTest(&viewPort, 10.0, 0.0));
  EXPECT_FALSE(point.HitTest(&viewPort, 0.0, -10.0));
  EXPECT_FALSE(point.HitTest(nullptr, 0.0, 0.0));
}

TEST(Point, TheReachIsAPixelInUnitsTimesTen)
{
  CViewPort viewPort;
  viewPort.screenWidth = 113.0;
  viewPort.screenHeight = 113.0;
  // 200 / 113 * 10; ten times 200 divided by 113 is a bit less.
  EXPECT_TRUE(CShapePoint().HitTest(&viewPort, 17.699115044247787, 0.0));
}

TEST(Point, MovesScalesAndTurns)
{
  CShapePoint point;
  point.position = CShapeVertex(1.0, 0.0, 2.0);
  point.position.flag = 7;
  point.Translate(1.0, 0.0, 1.0);
  point.Scale(2.0, 2.0, 2.0);
  EXPECT_TRUE(point.position == CShapeVertex(4.0, 0.0, 6.0));
  point.Rotate(0.0);
  EXPECT_TRUE(point.position == CShapeVertex(4.0, 0.0, 6.0));
  point.Rotate(180.0);
  EXPECT_NEAR(point.position.x, -4.0, 1e-12);
  EXPECT_EQ(point.position.z, 6.0);
  EXPECT_EQ(point.position.flag, 7);
  const CShapeVertex before = point.position;
  point.RemoveVertex(&point.position);
  EXPECT_TRUE(point.position == before);
}

TEST(Point, RotateByZeroLeavesEveryBit)
{
  CShapePoint point;
  point.position = CShapeVertex(0.1, 0.7, 0.0);
  point.Rotate(0.0);
  EXPECT_EQ(point.position.x, 0.1);
  EXPECT_EQ(point.position.y, 0.7);
}

TEST(Point, IsVisibleInsideTheClientArea)
{
  CViewPort viewPort;
  viewPort.screenWidth = 200.0;
  viewPort.screenHeight = 200.0;
  CShapePoint point;
  EXPECT_TRUE(point.IsVisible(viewPort));
  point.position.x = 101.0;
  EXPECT_FALSE(point.IsVisible(viewPort));
}

}  // namespace
}  // namespace hullwright
