#include <gtest/gtest.h>

#include <cmath>

#include <type_traits>

#include "model/ShapeVertex.h"

namespace hullwright {
namespace {

// Its operators are virtual, but its destructor would cost each vertex of a drawing a call.
static_assert(std::is_polymorphic_v<CShapeVertex> && !std::has_virtual_destructor_v<CShapeVertex>);

template <class Vertex>
concept HasProduct = requires(const Vertex& v)
{
  v* v;
};
static_assert(!HasProduct<CShapeVertex>);

CShapeVertex Tagged(double x, double y, double z)
{
  CShapeVertex v(x, y, z);
  v.flag = 1;
  v.tagA = 2;
  v.tagB = 3;
  return v;
}

void ExpectTags(const CShapeVertex& v, int flag, int tagA, int tagB)
{
  EXPECT_EQ(v.flag, flag);
  EXPECT_EQ(v.tagA, tagA);
  EXPECT_EQ(v.tagB, tagB);
}

TEST(Vertex, BeginsAsZero)
{
  const CShapeVertex v;
  EXPECT_TRUE(v == CShapeVertex(0.0, 0.0, 0.0));
  ExpectTags(v, 0, 0, 0);
}

TEST(Vertex, AssignmentCopiesCarriedFields)
{
  CShapeVertex v;
  v = Tagged(1.0, 2.0, 3.0);
  EXPECT_TRUE(v == CShapeVertex(1.0, 2.0, 3.0));
  ExpectTags(v, 1, 2, 3);
}

TEST(Vertex, InPlaceArithmeticKeepsCarriedFieldsOfTheTarget)
{
  CShapeVertex v = Tagged(1.0, 2.0, 3.0);
  v += CShapeVertex(10.0, 20.0, 30.0);
  EXPECT_TRUE(v == CShapeVertex(11.0, 22.0, 33.0));
  v -= CShapeVertex(1.0, 2.0, 3.0);
  EXPECT_TRUE(v == CShapeVertex(10.0, 20.0, 30.0));
  ExpectTags(v, 1, 2, 3);
}

TEST(Vertex, ResultsByValueDropCarriedFields)
{
  const CShapeVertex v = Tagged(2.0, 4.0, 8.0);
  const CShapeVertex other = Tagged(1.0, 1.0, 1.0);
  ExpectTags(v - other, 0, 0, 0);
  ExpectTags(v + other, 0, 0, 0);
  EXPECT_TRUE(v - CShapeVertex(1.0, 1.0, 1.0) == CShapeVertex(1.0, 3.0, 7.0));
  EXPECT_TRUE(v / 2.0 == CShapeVertex(1.0, 2.0, 4.0));
  EXPECT_TRUE(v / CShapeVertex(2.0, 1.0, 4.0) == CShapeVertex(1.0, 4.0, 2.0));
  EXPECT_TRUE(v * 0.5 == CShapeVertex(1.0, 2.0, 4.0));
  EXPECT_EQ((CShapeVertex(5.0, 0.0, 0.0) / 3.0).x, 5.0 / 3.0);  // not times a third
}

TEST(Vertex, DivisionByZeroIsNotGuarded)
{
  EXPECT_EQ((CShapeVertex(1.0, -1.0, 0.0) / 0.0).x, std::numeric_limits<double>::infinity());
}

TEST(Vertex, OrderLooksAtXThenYAndNeverAtZ)
{
  EXPECT_TRUE(CShapeVertex(1.0, 9.0, 0.0) < CShapeVertex(2.0, 0.0, 0.0));
  EXPECT_TRUE(CShapeVertex(1.0, 1.0, 0.0) < CShapeVertex(1.0, 2.0, 0.0));
  EXPECT_FALSE(CShapeVertex(1.0, 1.0, 0.0) < CShapeVertex(1.0, 1.0, 5.0));
  EXPECT_FALSE(CShapeVertex(1.0, 1.0, 5.0) < CShapeVertex(1.0, 1.0, 0.0));
}

TEST(Vertex, EqualityIsExact)
{
  EXPECT_FALSE(CShapeVertex(0.1 + 0.2, 0.0, 0.0) == CShapeVertex(0.3, 0.0, 0.0));
  EXPECT_FALSE(CShapeVertex(0.0, 0.1 + 0.2, 0.0) == CShapeVertex(0.0, 0.3, 0.0));
  EXPECT_FALSE(CShapeVertex(0.0, 0.0, 0.1 + 0.2) == CShapeVertex(0.0, 0.0, 0.3));
}

double Distance(double px, double py)
{
  double distance = -1.0;
  DistanceToSegment({0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}, {px, py, 0.0}, distance);
  return distance;
}

TEST(DistanceToSegment, BesideTheSegmentIsThePerpendicular) { EXPECT_EQ(Distance(4.0, 3.0), 3.0); }

TEST(DistanceToSegment, APointBehindTheStartGetsNoDistance)
{
  EXPECT_EQ(Distance(-0.1, 0.0), -1.0);
}

TEST(DistanceToSegment, APointBeyondTheEndGetsTheNearerEnd) { EXPECT_EQ(Distance(13.0, 4.0), 5.0); }

TEST(DistanceToSegment, OfTwoEndsThatAreAboutAsNearTheSmallerDistanceCounts)
{
  // The start, which lies behind the end by less than the distances are rounded.
  double distance = 0.0;
  DistanceToSegment({-9.935469634374655, 91.02481644496791, 0.0},
                    {-9.935469633848225, 91.0248164458643, 0.0},
                    {-394.8649971609564, 317.08686396187136, 0.0}, distance);
  EXPECT_EQ(distance, 446.4020502746063);
}

TEST(DistanceToSegment, APointBesideTheEndIsMeasuredFromWhereStartAndLengthLead)
{
  // A start so far away that its way to the end misses it by one.
  double distance = 0.0;
  EXPECT_TRUE(DistanceToSegment({1e16, 0.0, 0.0}, {1.0, 0.0, 0.0}, {1.0, 5.0, 0.0}, distance));
  EXPECT_EQ(distance, std::sqrt(26.0));
}

TEST(DistanceToSegment, StatesWhetherThereIsADistance)
{
  const CShapeVertex a(0.0, 0.0, 0.0);
  const CShapeVertex b(10.0, 0.0, 0.0);
  double distance = 0.0;
  EXPECT_FALSE(DistanceToSegment(a, b, {-0.1, 0.0, 0.0}, distance));
  EXPECT_TRUE(DistanceToSegment(a, b, {4.0, 3.0, 0.0}, distance));
  EXPECT_TRUE(DistanceToSegment(a, b, {13.0, 4.0, 0.0}, distance));
}

TEST(DistanceToSegment, ASegmentWithoutLengthGetsNoDistance)
{
  double distance = -1.0;
  EXPECT_FALSE(DistanceToSegment({1.0, 1.0, 0.0}, {1.0, 1.0, 9.0}, {1.0, 1.0, 0.0}, distance));
  EXPECT_EQ(distance, -1.0);
}

}  // namespace
}  // namespace hullwright
