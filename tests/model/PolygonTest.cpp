#include "model/ShapePolygon.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "render/ViewPort.h"

namespace hullwright {
namespace {

using Corners = std::initializer_list<CShapeVertex>;

std::unique_ptr<CShapePolygonRing> Ring(Corners corners)
{
  auto ring = std::make_unique<CShapePolygonRing>();
  for (const CShapeVertex& v : corners) ring->vertices.push_back(std::make_unique<CShapeVertex>(v));
  return ring;
}

std::unique_ptr<CShapePolygonRing> Square(double from, double to)
{
  return Ring({{from, from, 0.0}, {to, from, 0.0}, {to, to, 0.0}, {from, to, 0.0}});
}

/// A square of 10 with a hole of 6 that has an island of 2.
std::unique_ptr<CShapePolygon> SquareWithHoleAndIsland()
{
  auto polygon = std::make_unique<CShapePolygon>();
  polygon->rings.push_back(Square(0.0, 10.0));
  polygon->rings.push_back(Square(2.0, 8.0));
  polygon->rings.push_back(Square(4.0, 6.0));
  return polygon;
}

TEST(Ring, ContainsWhatLiesInsideOnAnEdgeOrOnACorner)
{
  const auto ring = Square(0.0, 10.0);
  EXPECT_EQ(ring->type, ShapeType::Ring);
  for (const auto& [x, y] : {std::pair{5.0, 5.0},
                             {0.0, 5.0},
                             {10.0, 5.0},
                             {5.0, 0.0},
                             {5.0, 10.0},
                             {0.0, 0.0},
                             {10.0, 0.0},
                             {10.0, 10.0},
                             {0.0, 10.0}}) {
    EXPECT_TRUE(ring->ContainsPoint(x, y)) << x << " " << y;
  }
  for (const auto& [x, y] : {std::pair{-0.1, 5.0},
                             {10.1, 5.0},
                             {5.0, -0.1},
                             {5.0, 10.1},
                             {-1.0, 0.0},
                             {11.0, 0.0},
                             {11.0, 10.0},
                             {-1.0, 10.0}}) {
    EXPECT_FALSE(ring->ContainsPoint(x, y)) << x << " " << y;
  }
}

TEST(Ring, ContainsTheSameInEitherDirectionAndWithDents)
{
  const auto clockwise =
      Ring({{0.0, 0.0, 0.0}, {0.0, 10.0, 0.0}, {10.0, 10.0, 0.0}, {10.0, 0.0, 0.0}});
  EXPECT_TRUE(clockwise->ContainsPoint(5.0, 5.0));
  EXPECT_FALSE(clockwise->ContainsPoint(15.0, 5.0));
  const auto dented = Ring(
      {{0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}, {5.0, 4.0, 0.0}, {10.0, 10.0, 0.0}, {0.0, 10.0, 0.0}});
  EXPECT_FALSE(dented->ContainsPoint(8.0, 4.0));
  EXPECT_TRUE(dented->ContainsPoint(2.0, 4.0));
}

TEST(Ring, OfTwoVerticesContainsNothing)
{
  const auto ring = Ring({{0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}});
  EXPECT_FALSE(ring->ContainsPoint(5.0, 0.0));
  EXPECT_FALSE(CShapePolygonRing().ContainsPoint(0.0, 0.0));
}

TEST(Ring, EdgesAtANullEntryDoNotCount)
{
  auto ring = Square(0.0, 10.0);
  ring->vertices.push_back(nullptr);
  // The closing edge is missing: the west side is open, and what lies to the west of it is counted
  // by the east edge alone.
  EXPECT_TRUE(ring->ContainsPoint(-5.0, 5.0));
  EXPECT_FALSE(Square(0.0, 10.0)->ContainsPoint(-5.0, 5.0));
  EXPECT_EQ(ring->DistanceTo(50.0, 50.0), 0.0);
}

TEST(Ring, ANullEntryTakesItsTwoEdgesAndNoOther)
{
  const auto ring = Ring({{0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}, {10.0, 10.0, 0.0}, {0.0, 10.0, 0.0}});
  ring->vertices.insert(ring->vertices.begin() + 1, nullptr);
  EXPECT_TRUE(ring->ContainsPoint(5.0, 5.0));  // the edges behind the entry still count
  const auto open = Ring({{0.0, 0.0, 0.0}, {0.0, 10.0, 0.0}, {20.0, 10.0, 0.0}});
  open->vertices.insert(open->vertices.begin() + 2, nullptr);
  // To the closing edge; an edge over the gap would be 2 away.
  EXPECT_NEAR(open->DistanceTo(10.0, 12.0), 14.0 / std::sqrt(5.0), 1e-12);
}

TEST(Ring, DistanceIsZeroInsideAndToTheNearestEdgeOutside)
{
  const auto ring = Square(0.0, 10.0);
  EXPECT_EQ(ring->DistanceTo(5.0, 5.0), 0.0);
  EXPECT_EQ(ring->DistanceTo(15.0, 5.0), 5.0);
  EXPECT_EQ(ring->DistanceTo(-3.0, 5.0), 3.0);
  EXPECT_EQ(ring->DistanceTo(13.0, 14.0), 5.0);
  EXPECT_EQ(CShapePolygonRing().DistanceTo(7.0, 7.0), 0.0);
}

TEST(Ring, DistanceSeesNoEdgeWhoseStartThePointLiesBehind)
{
  // Only the closing edge, from the last vertex to the first, and the one edge back remain.
  const auto ring = Ring({{0.0, 0.0, 0.0}, {0.0, 0.0, 0.0}});
  EXPECT_EQ(ring->DistanceTo(3.0, 4.0), 1e24);
}

TEST(Ring, HitTestsNothing) { EXPECT_FALSE(Square(0.0, 10.0)->HitTest(nullptr, 5.0, 5.0)); }

TEST(Ring, RemoveVertexTakesOutEveryEntryAndReleasesTheVertexOnce)
{
  auto ring = Square(0.0, 10.0);
  auto* const vertex = ring->vertices[1].get();
  ring->vertices.emplace_back(vertex);  // the same one a second time
  ring->RemoveVertex(vertex);
  EXPECT_EQ(ring->vertices.size(), 3U);
  // A vertex of no ring is handed over all the same; the leak check would show one kept.
  ring->RemoveVertex(new CShapeVertex);
  EXPECT_EQ(ring->vertices.size(), 3U);
}

TEST(Ring, CloneKeepsAllSixFields)
{
  auto ring = Square(0.0, 10.0);
  ring->vertices[0]->flag = 3;
  ring->vertices[0]->tagA = 4;
  ring->vertices[0]->tagB = 5;
  ring->selected = true;
  const auto copy = ring->Clone();
  EXPECT_EQ(copy->type, ShapeType::Ring);
  EXPECT_TRUE(copy->selected);
  ASSERT_EQ(copy->vertices.size(), 4U);
  EXPECT_EQ(copy->vertices[0]->flag, 3);
  EXPECT_EQ(copy->vertices[0]->tagA, 4);
  EXPECT_EQ(copy->vertices[0]->tagB, 5);
  EXPECT_NE(copy->vertices[0], ring->vertices[0]);
}

class RingInView : public testing::Test {
protected:
  RingInView()
  {
    viewPort.screenWidth = 200.0;
    viewPort.screenHeight = 200.0;  // the view shows -100 to 100 in both directions
  }
  CViewPort viewPort;
};

TEST_F(RingInView, IsVisibleWithAVertexInView)
{
  EXPECT_TRUE(Square(90.0, 300.0)->IsVisible(viewPort));
  EXPECT_TRUE(Square(-10.0, 10.0)->IsVisible(viewPort));  // none of the view's corners lies in it
  EXPECT_FALSE(Square(110.0, 300.0)->IsVisible(viewPort));
}

TEST_F(RingInView, IsVisibleAroundTheWholeView)
{
  EXPECT_TRUE(Square(-500.0, 500.0)->IsVisible(viewPort));
}

TEST_F(RingInView, IsVisibleAroundOneCorner)
{
  for (const double x : {-1.0, 1.0}) {
    for (const double y : {-1.0, 1.0}) {
      const auto overCorner = Ring({{x * 150.0, y * 300.0, 0.0},
                                    {x * 50.0, y * 150.0, 0.0},
                                    {x * 150.0, y * 50.0, 0.0},
                                    {x * 300.0, y * 150.0, 0.0}});
      EXPECT_TRUE(overCorner->ContainsPoint(x * 100.0, y * 100.0));
      EXPECT_TRUE(overCorner->IsVisible(viewPort)) << x << " " << y;
    }
  }
}

TEST_F(RingInView, ATurnedViewHasTheCornersOfItsRectangle)
{
  viewPort.SetRotation(45.0);
  const auto aroundCorner = Square(90.0, 110.0);
  for (const auto& v : aroundCorner->vertices) EXPECT_FALSE(viewPort.Contains(v->x, v->y));
  EXPECT_TRUE(aroundCorner->IsVisible(viewPort));
  EXPECT_FALSE(Square(110.0, 300.0)->IsVisible(viewPort));
}

TEST_F(RingInView, IsNotVisibleWhereOnlyAnEdgeCrosses)
{
  const auto stripe =
      Ring({{-300.0, -1.0, 0.0}, {300.0, -1.0, 0.0}, {300.0, 1.0, 0.0}, {-300.0, 1.0, 0.0}});
  EXPECT_FALSE(stripe->IsVisible(viewPort));
}

TEST(Polygon, HitTestTurnsAtEveryRing)
{
  const auto polygon = SquareWithHoleAndIsland();
  EXPECT_EQ(polygon->type, ShapeType::Polygon);
  EXPECT_TRUE(polygon->HitTest(nullptr, 1.0, 1.0));
  EXPECT_FALSE(polygon->HitTest(nullptr, 3.0, 3.0));
  EXPECT_TRUE(polygon->HitTest(nullptr, 5.0, 5.0));
  EXPECT_FALSE(polygon->HitTest(nullptr, 11.0, 1.0));
  EXPECT_FALSE(CShapePolygon().HitTest(nullptr, 0.0, 0.0));
}

TEST(Polygon, ALaterRingOutsideTheFirstCountsAsInside)
{
  CShapePolygon polygon;
  polygon.rings.push_back(Square(0.0, 10.0));
  polygon.rings.push_back(Square(20.0, 30.0));
  EXPECT_TRUE(polygon.HitTest(nullptr, 25.0, 25.0));
}

TEST(Polygon, DistanceIsTheSmallestOfItsRings)
{
  const auto polygon = SquareWithHoleAndIsland();
  EXPECT_EQ(polygon->DistanceTo(3.0, 3.0), 0.0);  // inside the outer ring
  EXPECT_EQ(polygon->DistanceTo(12.0, 5.0), 2.0);
  EXPECT_EQ(CShapePolygon().DistanceTo(0.0, 0.0), 1e24);
}

TEST(Polygon, AnIndexPastTheEndMakesOneRing)
{
  CShapePolygon polygon;
  polygon.AddVertex(std::make_unique<CShapeVertex>(1.0, 2.0, 3.0), 5);
  ASSERT_EQ(polygon.rings.size(), 1U);
  EXPECT_EQ(polygon.rings[0]->vertices.size(), 1U);
  polygon.AddVertex(std::make_unique<CShapeVertex>(4.0, 5.0, 6.0), 0);
  EXPECT_EQ(polygon.rings[0]->vertices.size(), 2U);
  polygon.AddVertex(std::make_unique<CShapeVertex>(7.0, 8.0, 9.0), 1);
  EXPECT_EQ(polygon.rings.size(), 2U);
  polygon.AddVertex(std::make_unique<CShapeVertex>(10.0, 11.0, 12.0), 0);
  EXPECT_EQ(polygon.rings[0]->vertices.size(), 3U);
  EXPECT_EQ(polygon.rings[1]->vertices.size(), 1U);
}

TEST(Polygon, ANullRingTakesNothing)
{
  CShapePolygon polygon;
  polygon.rings.push_back(nullptr);
  polygon.AddVertex(std::make_unique<CShapeVertex>(), 0);
  ASSERT_EQ(polygon.rings.size(), 1U);
  EXPECT_EQ(polygon.rings[0], nullptr);
  EXPECT_EQ(polygon.DistanceTo(0.0, 0.0), 1e24);
}

TEST(Polygon, ForwardsToEveryRing)
{
  const auto polygon = SquareWithHoleAndIsland();
  polygon->Translate(1.0, 2.0, 3.0);
  polygon->Scale(2.0, 3.0, 4.0);
  for (const auto& ring : polygon->rings) EXPECT_EQ(ring->vertices[0]->z, 12.0);
  EXPECT_EQ(polygon->rings[2]->vertices[0]->x, 10.0);
  EXPECT_EQ(polygon->rings[2]->vertices[0]->y, 18.0);
  polygon->Rotate(90.0);
  EXPECT_NEAR(polygon->rings[2]->vertices[0]->x, -18.0, 1e-12);
  EXPECT_NEAR(polygon->rings[2]->vertices[0]->y, 10.0, 1e-12);
  std::vector<CShapeVertex*> list;
  polygon->GetVertices(list);
  EXPECT_EQ(list.size(), 12U);
  EXPECT_TRUE(polygon->vertices.empty());
}

TEST(Polygon, ExtentsHaveNoMargin)
{
  Extents box = EmptyWithin(1e9);
  SquareWithHoleAndIsland()->GetExtents(box);
  EXPECT_EQ(box.minX, 0.0);
  EXPECT_EQ(box.minY, 0.0);
  EXPECT_EQ(box.maxX, 10.0);
  EXPECT_EQ(box.maxY, 10.0);
}

TEST(Polygon, CloneCopiesEveryRingInOrder)
{
  const auto polygon = SquareWithHoleAndIsland();
  polygon->tag = 77;
  polygon->rings[1]->vertices[2]->tagB = 9;
  const auto copy = polygon->Clone();
  const auto& clone = dynamic_cast<const CShapePolygon&>(*copy);
  EXPECT_EQ(clone.tag, 77);
  EXPECT_EQ(clone.type, ShapeType::Polygon);
  ASSERT_EQ(clone.rings.size(), 3U);
  EXPECT_EQ(clone.rings[1]->vertices[2]->tagB, 9);
  EXPECT_EQ(clone.rings[1]->vertices[2]->x, 8.0);
}

TEST(Polygon, RemoveVertexReleasesItOnce)
{
  const auto polygon = SquareWithHoleAndIsland();
  polygon->RemoveVertex(polygon->rings[1]->vertices[0].get());
  EXPECT_EQ(polygon->rings[0]->vertices.size(), 4U);
  EXPECT_EQ(polygon->rings[1]->vertices.size(), 3U);
  polygon->RemoveVertex(new CShapeVertex);
  EXPECT_EQ(polygon->rings[2]->vertices.size(), 4U);
}

// What watches single allocations sees by itself what is not released.
#ifndef HULLWRIGHT_SINGLE_ALLOCATIONS
TEST(Polygon, RemoveVertexLeavesItsPlaceToAnother)
{
  constexpr std::size_t enough = 10'000;  // places that are free already come first
  const auto polygon = SquareWithHoleAndIsland();
  const CShapeVertex* const vertex = polygon->rings[1]->vertices[0].get();
  const auto place = reinterpret_cast<std::uintptr_t>(vertex);
  polygon->RemoveVertex(vertex);
  std::vector<std::unique_ptr<CShapeVertex>> others;
  bool isTaken = false;
  while (!isTaken && others.size() < enough) {
    others.push_back(std::make_unique<CShapeVertex>());
    isTaken = reinterpret_cast<std::uintptr_t>(others.back().get()) == place;
  }
  EXPECT_TRUE(isTaken);
}
#endif

TEST(Polygon, RemoveVertexTakesItOutOfEveryRingThatHasIt)
{
  const auto polygon = SquareWithHoleAndIsland();
  auto* const vertex = polygon->rings[1]->vertices[0].get();
  polygon->rings[2]->vertices.emplace_back(vertex);
  polygon->RemoveVertex(vertex);
  EXPECT_EQ(polygon->rings[0]->vertices.size(), 4U);
  EXPECT_EQ(polygon->rings[1]->vertices.size(), 3U);
  EXPECT_EQ(polygon->rings[2]->vertices.size(), 4U);
}

TEST(Polygon, WithoutRingsKeepsTheVertexForItsOwner)
{
  CShapePolygon polygon;
  const auto vertex = std::make_unique<CShapeVertex>(1.0, 2.0, 3.0);
  polygon.RemoveVertex(vertex.get());
  EXPECT_EQ(vertex->x, 1.0);
}

}  // namespace
}  // namespace hullwright
