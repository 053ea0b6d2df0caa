#include <algorithm>
#include <cmath>
#include <numbers>

#include "support/DxfPolylines.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;

/// Segments that are arcs.
class Bulges : public DxfFixture {};

std::string TwoVertices(const std::string& bulge)
{
  return Entity("LWPOLYLINE", {{10, "0"}, {20, "0"}, {42, bulge}, {10, "2"}, {20, "0"}});
}

TEST_F(Bulges, ABulgeOfOneIsAHalfCircleCounterClockwise)
{
  ImportEntities(TwoVertices("1"));
  const auto vertices = VerticesOf(0);
  EXPECT_GE(vertices.size(), 182U);
  EXPECT_LE(vertices.size(), 184U);
  EXPECT_NEAR(vertices[0][0], 0.0, 1e-9);
  EXPECT_NEAR(vertices[90][0], 1.0, 1e-9);
  EXPECT_NEAR(vertices[90][1], -1.0, 1e-9);
  EXPECT_THAT(vertices.back(), ElementsAre(2.0, 0.0, 0.0));  // the second vertex itself
  EXPECT_NEAR(vertices[vertices.size() - 2][0], 2.0, 1e-9);  // behind the end of the arc
}

TEST_F(Bulges, ABulgeOfMinusOneIsItsMirrorImage)
{
  ImportEntities(TwoVertices("-1"));
  EXPECT_NEAR(VerticesOf(0)[90][0], 1.0, 1e-9);
  EXPECT_NEAR(VerticesOf(0)[90][1], 1.0, 1e-9);
}

TEST_F(Bulges, ABulgeAboveOneHasItsCentreOnTheFarSide)
{
  ImportEntities(TwoVertices("2"));
  // tan(theta/4) = 2: the sagitta is twice the half chord.
  EXPECT_NEAR(VerticesOf(0)[90][0], 1.0, 1e-9);
  EXPECT_NEAR(VerticesOf(0)[90][1], -2.0, 1e-9);
  for (const auto& [bulge, sagitta] : {std::pair{"0.5", 0.5}, {"0.95", 0.95}, {"1.01", 1.01}}) {
    ImportEntities(TwoVertices(bulge));
    EXPECT_NEAR(VerticesOf(0).at(90).at(1), -sagitta, 1e-9);
  }
}

TEST_F(Bulges, BendToTheirOwnSideInEveryDirection)
{
  for (int eighth = 0; eighth < 8; ++eighth) {
    const double angle = eighth * std::numbers::pi / 4.0;
    const double dx = std::cos(angle);
    const double dy = std::sin(angle);
    const std::string end = Entity(
        "VERTEX", {{10, FormatFixed(3.0 + 2.0 * dx, 15)}, {20, FormatFixed(7.0 + 2.0 * dy, 15)}});
    for (const auto& [text, bulge] : {std::pair{"0.5", 0.5}, {"-0.5", -0.5}}) {
      // From (3, 7), two long; the middle of the arc lies half a unit beside that of the chord.
      ImportEntities(Header() + Vertex(3, 7, Lines({{42, text}})) + end + seqEnd);
      const auto vertices = VerticesOf(0);
      ASSERT_GE(vertices.size(), 182U);
      EXPECT_NEAR(vertices[0][0], 3.0, 1e-9) << eighth;
      EXPECT_NEAR(vertices[0][1], 7.0, 1e-9) << eighth;
      EXPECT_NEAR(vertices[90][0], 3.0 + dx + bulge * dy, 1e-9) << eighth;
      EXPECT_NEAR(vertices[90][1], 7.0 + dy - bulge * dx, 1e-9) << eighth;
      EXPECT_NEAR(vertices[vertices.size() - 2][0], 3.0 + 2.0 * dx, 1e-9) << eighth;
      EXPECT_NEAR(vertices[vertices.size() - 2][1], 7.0 + 2.0 * dy, 1e-9) << eighth;
    }
  }
}

/// Where the arc of a bulge begins and ends, step by step, in the order in which it is rounded.
struct Arc {
  double x;
  double y;
  double radius;
  double start;
  double end;
};

Arc ArcBetween(double px, double py, double qx, double qy, double bulge)
{
  const double pi = std::numbers::pi;
  const auto angleTo = [&](double cx, double cy, double x, double y) {
    const double l = std::sqrt((x - cx) * (x - cx) + (y - cy) * (y - cy));
    const double a = std::acos((x - cx) / l);
    return (y - cy) / l < 0.0 ? 2.0 * pi - a : a;
  };
  const double theta = 4.0 * std::atan(bulge);
  const double d = std::sqrt((qx - px) * (qx - px) + (qy - py) * (qy - py));
  const double r = std::abs((d / 2.0) / std::sin(theta / 2.0));
  double phi = angleTo(px, py, qx, qy);
  const double h = std::sqrt(std::abs(r * r - (d / 2.0) * (d / 2.0)));
  phi += bulge > 0.0 ? pi / 2.0 : -(pi / 2.0);
  const double cx = (px + qx) / 2.0 + std::cos(phi) * h;
  const double cy = (py + qy) / 2.0 + std::sin(phi) * h;
  const double degrees = 57.29577951308232;
  const double radians = 0.017453292519943295;
  return {cx, cy, r, angleTo(cx, cy, px, py) * degrees * radians,
          angleTo(cx, cy, qx, qy) * degrees * radians};
}

struct Chord {
  double px;
  double py;
  double qx;
  double qy;
};

TEST_F(Bulges, HaveTheBitsOfTheirFormulas)
{
  // Slanted, and straight along x, whose angle is nothing and not a whole turn.
  for (const Chord& chord : {Chord{1.1, 2.3, -4.7, 0.9}, Chord{-1.3, 0.7, 4.9, 0.7}}) {
    for (const double bulge : {0.37, -0.37}) {
      ImportEntities(Entity("LWPOLYLINE", {{10, FormatShortest(chord.px)},
                                           {20, FormatShortest(chord.py)},
                                           {42, FormatShortest(bulge)},
                                           {10, FormatShortest(chord.qx)},
                                           {20, FormatShortest(chord.qy)}}));
      Arc arc = ArcBetween(chord.px, chord.py, chord.qx, chord.qy, bulge);
      const double turn = 2.0 * std::numbers::pi;
      if (bulge > 0.0 && arc.end < arc.start) arc.end += turn;
      if (bulge < 0.0 && arc.start < arc.end) arc.end -= turn;
      const auto vertices = VerticesOf(0);
      const auto expectAt = [&](std::size_t index, double t) {
        EXPECT_EQ(vertices.at(index).at(0), arc.x + arc.radius * std::cos(t)) << bulge << index;
        EXPECT_EQ(vertices.at(index).at(1), arc.y + arc.radius * std::sin(t)) << bulge << index;
      };
      double t = arc.start;
      for (std::size_t i = 0; i < 180; ++i) {
        expectAt(i, t);
        t = bulge > 0.0 ? t + (arc.end - arc.start) / 180.0 : t - (arc.start - arc.end) / 180.0;
      }
      expectAt(vertices.size() - 2, arc.end);
    }
  }
}

TEST_F(Bulges, OfALastVertexLeadBackToTheFirstOneOfAClosedLine)
{
  const std::string bulge = Lines({{42, "1"}});
  for (const std::string& circle :
       {Header(Lines({{70, "1"}})) + Vertex(0, 0, bulge) + Vertex(2, 0, bulge) + seqEnd,
        Entity("LWPOLYLINE",
               {{70, "1"}, {10, "0"}, {20, "0"}, {42, "1"}, {10, "2"}, {20, "0"}, {42, "1"}})}) {
    ImportEntities(circle);
    const auto vertices = VerticesOf(0);
    const auto passes = [&](double x, double y) {
      return std::ranges::any_of(
          vertices, [&](const auto& v) { return std::hypot(v[0] - x, v[1] - y) < 1e-9; });
    };
    EXPECT_TRUE(passes(1.0, -1.0));
    EXPECT_TRUE(passes(1.0, 1.0));
    EXPECT_NEAR(vertices.back()[0], 0.0, 1e-9);
    EXPECT_NEAR(vertices.back()[1], 0.0, 1e-9);
  }
}

TEST_F(Bulges, OfALightweightOneMayStandInFrontOfTheirVertexOrInIt)
{
  const auto expectHalfCircle = [this](Pairs pairs) {
    ImportEntities(Entity("LWPOLYLINE", pairs));
    ASSERT_GE(VerticesOf(0).size(), 182U);
    EXPECT_NEAR(VerticesOf(0)[90][0], 1.0, 1e-9);
    EXPECT_NEAR(VerticesOf(0)[90][1], -1.0, 1e-9);
  };
  expectHalfCircle({{42, "1"}, {10, "0"}, {20, "0"}, {10, "2"}, {20, "0"}});
  expectHalfCircle({{10, "0"}, {42, "1"}, {20, "0"}, {10, "2"}, {20, "0"}});
}

TEST_F(Bulges, TheLastVertexIsLostWithABulge)
{
  ImportEntities(Entity("LWPOLYLINE", {{10, "0"}, {20, "0"}, {10, "2"}, {20, "0"}, {42, "1"}}));
  EXPECT_EQ(VerticesOf(0).size(), 1U);
  // So is the closing copy of a first vertex with a bulge.
  ImportEntities(
      Entity("LWPOLYLINE", {{70, "1"}, {10, "0"}, {20, "0"}, {42, "1"}, {10, "2"}, {20, "0"}}));
  EXPECT_THAT(VerticesOf(0).back(), ElementsAre(2.0, 0.0, 0.0));
  ImportEntities(Header(Lines({{70, "1"}})) + Vertex(0, 0, Lines({{42, "1"}})) + Vertex(2, 0) +
                 seqEnd);
  EXPECT_THAT(VerticesOf(0).back(), ElementsAre(2.0, 0.0, 0.0));
}

TEST_F(Bulges, ABulgeBelongsToTheVertexBeforeIt)
{
  ImportEntities(Entity(
      "LWPOLYLINE", {{10, "0"}, {20, "0"}, {10, "2"}, {20, "0"}, {42, "1"}, {10, "4"}, {20, "0"}}));
  EXPECT_THAT(VerticesOf(0).front(), ElementsAre(0.0, 0.0, 0.0));
  EXPECT_NEAR(VerticesOf(0)[1][0], 2.0, 1e-9);
  EXPECT_NEAR(VerticesOf(0)[91][1], -1.0, 1e-9);
}

TEST_F(Bulges, TheArcLiesAtTheMeanHeightOfItsEnds)
{
  ImportEntities(Header() + Vertex(0, 0, Lines({{30, "1"}, {42, "1"}})) +
                 Vertex(2, 0, Lines({{30, "3"}})) + seqEnd);
  EXPECT_EQ(VerticesOf(0)[50][2], 2.0);
}

TEST_F(Bulges, TheRadiusOfABulgeIsMeasuredInSpace)
{
  // The ends are 2 apart in the plane and 4 in space.
  ImportEntities(Header() + Vertex(0, 0, Lines({{42, "1"}})) +
                 Vertex(2, 0, Lines({{30, "3.4641016151377544"}})) + seqEnd);
  const auto vertex = VerticesOf(0)[50];
  EXPECT_NEAR(std::hypot(vertex[0] - 1.0, vertex[1]), 2.0, 1e-6);
}

TEST_F(Bulges, ABulgeBetweenEqualPointsGivesNumbersThatAreNone)
{
  ImportEntities(Entity("LWPOLYLINE", {{10, "1"}, {20, "1"}, {42, "1"}, {10, "1"}, {20, "1"}}));
  EXPECT_TRUE(std::isnan(VerticesOf(0)[0][0]));
  EXPECT_THAT(VerticesOf(0).back(), ElementsAre(1.0, 1.0, 0.0));
}

TEST_F(Bulges, OfNegativeValuesBendToTheLeftByTheirSagitta)
{
  for (const auto& [bulge, sagitta] : {std::pair{"-0.25", 0.25},
                                       {"-0.5", 0.5},
                                       {"-0.95", 0.95},
                                       {"-1.01", 1.01},
                                       {"-2", 2.0},
                                       {"-4", 4.0}}) {
    ImportEntities(TwoVertices(bulge));
    const auto vertices = VerticesOf(0);
    EXPECT_NEAR(vertices.at(0).at(0), 0.0, 1e-9) << bulge;
    EXPECT_NEAR(vertices.at(0).at(1), 0.0, 1e-9) << bulge;
    EXPECT_NEAR(vertices.at(90).at(0), 1.0, 1e-9) << bulge;
    EXPECT_NEAR(vertices.at(90).at(1), sagitta, 1e-9) << bulge;
    EXPECT_NEAR(vertices.at(vertices.size() - 2).at(0), 2.0, 1e-9) << bulge;
    EXPECT_NEAR(vertices.at(vertices.size() - 2).at(1), 0.0, 1e-9) << bulge;
  }
}

TEST_F(Bulges, OfNextToNothingAreArcsAllTheSame)
{
  for (const auto& [bulge, sagitta] : {std::pair{"0.0005", 0.0005}, {"-0.0005", -0.0005}}) {
    ImportEntities(TwoVertices(bulge));
    ASSERT_GE(VerticesOf(0).size(), 182U) << bulge;
    EXPECT_NEAR(VerticesOf(0)[90][1], -sagitta, 1e-6) << bulge;
  }
  ImportEntities(TwoVertices("1e-9"));
  EXPECT_GE(VerticesOf(0).size(), 182U);
  ImportEntities(TwoVertices("-0.0"));
  EXPECT_EQ(VerticesOf(0).size(), 2U);
}

TEST_F(Bulges, BelowTheSmallestArcAreWholeCircles)
{
  // An arc of less than 1e-10 counts as one of no angle, to which a turn is added. Its radius is
  // half of the distance between the ends through the sine of 2e-11.
  ImportEntities(TwoVertices("1e-11"));
  ASSERT_GE(VerticesOf(0).size(), 182U);
  EXPECT_NEAR(VerticesOf(0)[90][1], 1e11, 1.0);
}

TEST_F(Bulges, AreExtrudedOnceWithTheirPolyline)
{
  const auto halfWayAlong = [this](const std::string& normal) {
    ImportEntities(Header(normal) + Vertex(0, 0, Lines({{30, "3"}, {42, "1"}})) +
                   Vertex(2, 0, Lines({{30, "3"}})) + seqEnd);
    return VerticesOf(0).at(90);
  };
  // Without an extrusion it would be (1, -1, 3).
  const auto below = halfWayAlong(Lines({{230, "-1"}}));
  EXPECT_NEAR(below[0], -1.0, 1e-9);
  EXPECT_NEAR(below[1], -1.0, 1e-9);
  EXPECT_EQ(below[2], -3.0);
  const auto sideways = halfWayAlong(Lines({{210, "1"}, {230, "0"}}));
  EXPECT_EQ(sideways[0], 3.0);
  EXPECT_NEAR(sideways[1], 1.0, 1e-9);
  EXPECT_NEAR(sideways[2], -1.0, 1e-9);
}

TEST_F(Bulges, HaveTheirAnglesMeasuredInSpace)
{
  // The ends are 2 apart in the plane and 4 in space, so that a half circle has its centre between
  // them and begins where a direction of length 2 has the part -1 along x: at 120 degrees.
  const std::string up = Lines({{30, "3.4641016151377544"}});
  const double root3 = std::numbers::sqrt3;
  ImportEntities(Header() + Vertex(0, 0, Lines({{42, "1"}})) + Vertex(2, 0, up) + seqEnd);
  auto vertices = VerticesOf(0);
  EXPECT_NEAR(vertices[0][0], 0.0, 1e-6);
  EXPECT_NEAR(vertices[0][1], root3, 1e-6);
  EXPECT_NEAR(vertices[vertices.size() - 2][0], 2.0, 1e-6);
  EXPECT_NEAR(vertices[vertices.size() - 2][1], root3, 1e-6);

  // A third of a circle: the direction between its ends is 60 degrees from x, and the centre lies
  // 2 / sqrt(3) to the left of it.
  ImportEntities(Header() + Vertex(0, 0, Lines({{42, "0.5773502691896257"}})) + Vertex(2, 0, up) +
                 seqEnd);
  vertices = VerticesOf(0);
  const double radius = 4.0 / root3;
  EXPECT_NEAR(vertices[0][0], 0.0, 1e-6);
  EXPECT_NEAR(vertices[0][1], 1.0 / root3 - radius, 1e-6);
  const double cosine = 2.0 / std::sqrt(22.0 / 3.0);  // of the direction to the second end
  EXPECT_NEAR(vertices[vertices.size() - 2][0], radius * cosine, 1e-6);
  EXPECT_NEAR(vertices[vertices.size() - 2][1],
              1.0 / root3 - radius * std::sqrt(1.0 - cosine * cosine), 1e-6);
}

}  // namespace
}  // namespace hullwright
