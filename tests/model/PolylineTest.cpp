#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/ShapePolyline.h"
#include "render/ViewPort.h"

namespace hullwright {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

Extents ExtentsOf(const CShape& shape)
{
  Extents box;
  shape.GetExtents(box);
  return box;
}

/// One pixel is one world unit, so the tolerance is ten units.
void UseUnitScale(CViewPort& viewPort)
{
  viewPort.screenWidth = 200.0;
  viewPort.screenHeight = 200.0;
}

TEST(Polyline, BeginsWithoutStyleAttributesAndVertices)
{
  const CShapePolyline line;
  EXPECT_EQ(line.type, ShapeType::Polyline);
  EXPECT_EQ(line.style, nullptr);
  EXPECT_EQ(line.attributes, nullptr);
  EXPECT_TRUE(line.vertices.empty());
  EXPECT_EQ(line.DistanceTo(3.0, 4.0), 0.0);
}

TEST(Polyline, CloneDropsCarriedFieldsOfVertices)
{
  CShapePolyline line;
  line.AddVertex(1.0, 2.0, 3.0);
  line.vertices[0]->flag = 1;
  line.vertices[0]->tagA = 2;
  line.vertices[0]->tagB = 3;
  const auto copy = line.Clone();
  ASSERT_EQ(copy->vertices.size(), 1U);
  EXPECT_TRUE(*copy->vertices[0] == *line.vertices[0]);
  EXPECT_EQ(copy->vertices[0]->flag, 0);
  EXPECT_EQ(copy->vertices[0]->tagA, 0);
  EXPECT_EQ(copy->vertices[0]->tagB, 0);
}

TEST(Polyline, AppendVerticesKeepsCarriedFields)
{
  CShapePolyline source;
  source.AddVertex(1.0, 2.0, 3.0);
  source.vertices[0]->flag = 2;
  source.vertices[0]->tagA = 3;
  source.vertices[0]->tagB = 4;
  CShapePolyline line;
  line.AddVertex(0.0, 0.0, 0.0);
  line.AppendVertices(&source);
  line.AppendVertices(nullptr);
  ASSERT_EQ(line.vertices.size(), 2U);
  EXPECT_EQ(line.vertices[1]->flag, 2);
  EXPECT_EQ(line.vertices[1]->tagA, 3);
  EXPECT_EQ(line.vertices[1]->tagB, 4);
}

TEST(Polyline, AppendVerticesStopsAtANullEntry)
{
  CShapePolyline source;
  source.AddVertex(1.0, 0.0, 0.0);
  source.vertices.push_back(nullptr);
  source.AddVertex(2.0, 0.0, 0.0);
  CShapePolyline line;
  line.AppendVertices(&source);
  EXPECT_EQ(line.vertices.size(), 1U);
}

TEST(Polyline, AppendVerticesWalksWithTheSourcesCursor)
{
  CShapePolyline source;
  source.AddVertex(1.0, 0.0, 0.0);
  source.AddVertex(2.0, 0.0, 0.0);
  CShapePolyline line;
  line.AppendVertices(&source);
  EXPECT_EQ(source.cursor, 3U);
  source.vertices.insert(source.vertices.begin() + 1, nullptr);
  line.AppendVertices(&source);
  EXPECT_EQ(source.cursor, 2U);
  EXPECT_EQ(line.cursor, 0U);
}

TEST(Polyline, AppendingAPolylineToItselfDoublesItOnce)
{
  CShapePolyline line;
  line.AddVertex(1.0, 0.0, 0.0);
  line.AppendVertices(&line);
  EXPECT_EQ(line.vertices.size(), 2U);
}

TEST(Polyline, ExtentsHaveNoMarginAndStayForAnEmptyOne)
{
  CShapePolyline line;
  const Extents untouched = ExtentsOf(line);
  EXPECT_EQ(untouched.minX, largest);
  EXPECT_EQ(untouched.minY, largest);
  EXPECT_EQ(untouched.maxX, -largest);
  EXPECT_EQ(untouched.maxY, -largest);
  line.AddVertex(-1.0, 5.0, 9.0);
  line.AddVertex(2.0, 3.0, 9.0);
  const Extents box = ExtentsOf(line);
  EXPECT_EQ(box.minX, -1.0);
  EXPECT_EQ(box.minY, 3.0);
  EXPECT_EQ(box.maxX, 2.0);
  EXPECT_EQ(box.maxY, 5.0);
}

TEST(Polyline, ExtentsKeepTheBitsOfTheirVertex)
{
  CShapePolyline line;
  line.AddVertex(-0.0, -0.0, 0.0);
  const Extents box = ExtentsOf(line);
  EXPECT_TRUE(std::signbit(box.minX) && std::signbit(box.maxX));
  EXPECT_TRUE(std::signbit(box.minY) && std::signbit(box.maxY));
}

TEST(Polyline, RemoveVertexTakesOutTheOneAndMovesTheLaterOnesDown)
{
  CShapePolyline line;
  for (int i = 0; i < 3; ++i) line.AddVertex(i, 0.0, 0.0);
  line.RemoveVertex(line.vertices[1].get());
  ASSERT_EQ(line.vertices.size(), 2U);
  EXPECT_EQ(line.vertices[1]->x, 2.0);
}

TEST(Polyline, RemoveVertexOfAnotherPolylineKeepsIt)
{
  CShapePolyline line;
  line.AddVertex(1.0, 0.0, 0.0);
  const CShapeVertex foreign(1.0, 0.0, 0.0);
  line.RemoveVertex(&foreign);
  EXPECT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(foreign.x, 1.0);
}

TEST(Polyline, GetVerticesAppendsEveryPointerInOrder)
{
  CShapePolyline line;
  line.AddVertex(1.0, 0.0, 0.0);
  line.vertices.push_back(nullptr);
  line.AddVertex(2.0, 0.0, 0.0);
  std::vector<CShapeVertex*> list(1, nullptr);
  line.GetVertices(list);
  EXPECT_EQ(list, (std::vector<CShapeVertex*>{nullptr, line.vertices[0].get(), nullptr,
                                              line.vertices[2].get()}));
}

TEST(Polyline, TranslateAndScaleTouchAllThreeCoordinates)
{
  CShapePolyline line;
  line.AddVertex(1.0, 2.0, 3.0);
  line.Translate(10.0, 20.0, 30.0);
  line.Scale(2.0, -1.0, 0.5);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(22.0, -22.0, 16.5));
}

TEST(Polyline, MovesScalesAndTurnsKeepCarriedFields)
{
  CShapePolyline line;
  line.AddVertex(1.0, 2.0, 3.0);
  line.vertices[0]->flag = 7;
  line.vertices[0]->tagA = -8;
  line.vertices[0]->tagB = 9;
  line.Translate(1.0, 1.0, 1.0);
  line.Scale(2.0, 2.0, 2.0);
  line.Rotate(45.0);
  EXPECT_EQ(line.vertices[0]->flag, 7);
  EXPECT_EQ(line.vertices[0]->tagA, -8);
  EXPECT_EQ(line.vertices[0]->tagB, 9);
}

TEST(Polyline, RotateByZeroLeavesEveryBit)
{
  CShapePolyline line;
  line.AddVertex(0.1, 0.7, 3.0);
  line.Rotate(0.0);
  EXPECT_EQ(line.vertices[0]->x, 0.1);
  EXPECT_EQ(line.vertices[0]->y, 0.7);
}

TEST(Polyline, RotateGoesThroughPolarFormAndLeavesZ)
{
  CShapePolyline line;
  line.AddVertex(3.0, 4.0, 9.0);
  line.Rotate(360.0);
  const double r = std::sqrt(std::pow(3.0, 2.0) + std::pow(4.0, 2.0));
  const double a = (std::atan2(4.0, 3.0) * 57.29577951308232 + 360.0) * 0.017453292519943295;
  EXPECT_EQ(line.vertices[0]->x, std::cos(a) * r);
  EXPECT_EQ(line.vertices[0]->y, std::sin(a) * r);
  EXPECT_EQ(line.vertices[0]->z, 9.0);
  // Angles are added in degrees; in radians the last bits would be others.
  CShapePolyline other;
  other.AddVertex(1.0, 2.0, 0.0);
  other.Rotate(90.0);
  EXPECT_EQ(other.vertices[0]->x, -2.0000000000000004);
  EXPECT_EQ(other.vertices[0]->y, 0.9999999999999996);
}

TEST(Polyline, APositiveAngleTurnsFromXTowardsY)
{
  CShapePolyline line;
  line.AddVertex(1.0, 0.0, 0.0);
  line.Rotate(90.0);
  EXPECT_NEAR(line.vertices[0]->x, 0.0, 1e-15);
  EXPECT_NEAR(line.vertices[0]->y, 1.0, 1e-15);
}

TEST(Polyline, RotateLeavesTheOriginThere)
{
  CShapePolyline line;
  line.AddVertex(0.0, 0.0, 1.0);
  line.Rotate(33.0);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(0.0, 0.0, 1.0));
}

TEST(Polyline, AnArcHas61VerticesWhateverItsSizeAndStartsLeftOfTheCentre)
{
  const auto arc = CShapePolyline::CreateArc(10.0, 20.0, 5.0, 0.0, 90.0);
  ASSERT_EQ(arc->vertices.size(), 61U);
  EXPECT_EQ(arc->vertices[0]->x, 5.0);
  EXPECT_EQ(arc->vertices[0]->y, 20.0);
  EXPECT_NEAR(arc->vertices[60]->x, 10.0, 1e-12);
  EXPECT_NEAR(arc->vertices[60]->y, 25.0, 1e-12);
}

TEST(Polyline, AnArcIsAddedBehindWhatIsThere)
{
  CShapePolyline line;
  line.AddVertex(1.0, 2.0, 3.0);
  line.AddArc(10.0, 20.0, 5.0, 0.0, 90.0);
  ASSERT_EQ(line.vertices.size(), 62U);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(1.0, 2.0, 3.0));
  EXPECT_TRUE(*line.vertices[1] == CShapeVertex(5.0, 20.0, 0.0));
}

TEST(Polyline, TheAnglesOfAnArcAreAccumulated)
{
  for (const double sweep : {47.0, 23.0}) {
    CShapePolyline arc;
    arc.AddArc(0.0, 0.0, 1.0, 10.0, sweep);
    double degrees = 10.0;
    for (int i = 0; i <= 60; ++i) {
      const double a = degrees * 0.017453292519943295;
      ASSERT_EQ(arc.vertices[static_cast<std::size_t>(i)]->x, 0.0 - std::cos(a) * 1.0);
      ASSERT_EQ(arc.vertices[static_cast<std::size_t>(i)]->y, 0.0 + std::sin(a) * 1.0);
      degrees += sweep / 60.0;
    }
  }
}

class PolylineHit : public testing::Test {
protected:
  PolylineHit()
  {
    UseUnitScale(viewPort);
    line.AddVertex(0.0, 0.0, 0.0);
    line.AddVertex(40.0, 0.0, 0.0);
  }

  CViewPort viewPort;
  CShapePolyline line;
};

TEST_F(PolylineHit, NearTheSegmentHits)
{
  EXPECT_TRUE(line.HitTest(&viewPort, 20.0, 9.9));
  EXPECT_FALSE(line.HitTest(&viewPort, 20.0, 10.0));
}

TEST_F(PolylineHit, TheReachPastTheLaterVertexIsWithinToleranceOfTheBox)
{
  EXPECT_TRUE(line.HitTest(&viewPort, 49.0, 1.0));
  EXPECT_FALSE(line.HitTest(&viewPort, 50.0, 1.0));
}

TEST_F(PolylineHit, ThereIsNoReachBehindTheEarlierVertex)
{
  // The projection from the later vertex is longer than the segment there.
  EXPECT_FALSE(line.HitTest(&viewPort, -0.5, 0.0));
}

TEST_F(PolylineHit, ItsReachIsOpenOnAllFourSides)
{
  const auto hits = [this](const CShapeVertex& from, const CShapeVertex& to, double x, double y) {
    CShapePolyline segment;
    segment.AddVertex(from.x, from.y, 0.0);
    segment.AddVertex(to.x, to.y, 0.0);
    return segment.HitTest(&viewPort, x, y);
  };
  const CShapeVertex origin;
  EXPECT_TRUE(hits({40.0, 0.0, 0.0}, origin, -9.9, 0.0));
  EXPECT_FALSE(hits({40.0, 0.0, 0.0}, origin, -10.0, 0.0));
  EXPECT_TRUE(hits({0.0, 40.0, 0.0}, origin, 0.0, -9.9));
  EXPECT_FALSE(hits({0.0, 40.0, 0.0}, origin, 0.0, -10.0));
  EXPECT_TRUE(hits(origin, {0.0, 40.0, 0.0}, 0.0, 49.9));
  EXPECT_FALSE(hits(origin, {0.0, 40.0, 0.0}, 0.0, 50.0));
  // Beside a slanting line the distance itself is exactly ten, and out of reach.
  EXPECT_TRUE(hits(origin, {60.0, 80.0, 0.0}, 22.1, 46.0));
  EXPECT_FALSE(hits(origin, {60.0, 80.0, 0.0}, 22.0, 46.0));
}

TEST_F(PolylineHit, PastTheLaterVertexItReachesNoFurtherThanTheLineIsLong)
{
  CShapePolyline shortLine;
  shortLine.AddVertex(0.0, 0.0, 0.0);
  shortLine.AddVertex(4.0, 0.0, 0.0);
  EXPECT_TRUE(shortLine.HitTest(&viewPort, 8.0, 0.0));
  EXPECT_FALSE(shortLine.HitTest(&viewPort, 8.5, 0.0));
}

TEST_F(PolylineHit, NoViewPortOneVertexAndNoLengthNeverHit)
{
  EXPECT_FALSE(line.HitTest(nullptr, 20.0, 0.0));
  CShapePolyline single;
  single.AddVertex(0.0, 0.0, 0.0);
  EXPECT_FALSE(single.HitTest(&viewPort, 0.0, 0.0));
  single.AddVertex(0.0, 0.0, 0.0);
  EXPECT_FALSE(single.HitTest(&viewPort, 0.0, 0.0));
}

TEST_F(PolylineHit, ANullVertexSkipsItsPairs)
{
  line.vertices.insert(line.vertices.begin() + 1, nullptr);
  EXPECT_FALSE(line.HitTest(&viewPort, 20.0, 0.0));
  line.AddVertex(40.0, 40.0, 0.0);
  EXPECT_TRUE(line.HitTest(&viewPort, 40.0, 20.0));  // the pair behind it still counts
}

TEST_F(PolylineHit, IsVisibleWithOneVertexInside)
{
  EXPECT_TRUE(line.IsVisible(viewPort));
  line.AddVertex(1000.0, 0.0, 0.0);
  EXPECT_TRUE(line.IsVisible(viewPort));
  line.Translate(1000.0, 0.0, 0.0);
  EXPECT_FALSE(line.IsVisible(viewPort));
  EXPECT_FALSE(CShapePolyline().IsVisible(viewPort));
}

}  // namespace
}  // namespace hullwright
