#include <cmath>
#include <numbers>
#include <tuple>

#include "base/Numbers.h"
#include "dxf/DxfCurves.h"
#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;

constexpr double turn = 0.017453292519943295;  // of one degree, in radians

/// Circles, arcs and ellipses, which become polylines.
class Curves : public DxfFixture {};

TEST_F(Curves, ACircleRunsClockwiseFromTheWestAndIsFlat)
{
  ImportEntities(Entity("CIRCLE", {{10, "10"}, {20, "20"}, {30, "5"}, {40, "2"}}));
  const auto vertices = VerticesOf(0);
  ASSERT_EQ(vertices.size(), 61U);
  EXPECT_THAT(vertices[0], ElementsAre(8.0, 20.0, 0.0));
  EXPECT_NEAR(vertices[15][0], 10.0, 1e-12);
  EXPECT_NEAR(vertices[15][1], 22.0, 1e-12);
  EXPECT_NEAR(vertices[60][0], 8.0, 1e-12);
  EXPECT_THAT(AttributesOf(0), ElementsAre("TYPE=CIRLCE", "LAYER=", "HANDLE="));
}

TEST_F(Curves, ARadiusOfZeroOrLessIsTakenAsItIs)
{
  ImportEntities(Entity("CIRCLE", {{10, "1"}, {40, "0"}}));
  ASSERT_EQ(VerticesOf(0).size(), 61U);
  for (const auto& v : VerticesOf(0)) EXPECT_THAT(v, ElementsAre(1.0, 0.0, 0.0));
  ImportEntities(Entity("CIRCLE", {{40, "-2"}}));
  EXPECT_EQ(VerticesOf(0)[0][0], 2.0);
  ImportEntities(Entity("ARC", {{40, "-2"}, {50, "0"}, {51, "90"}}));
  EXPECT_THAT(VerticesOf(0).front(), ElementsAre(-2.0, 0.0, 0.0));
  EXPECT_NEAR(VerticesOf(0).back()[1], -2.0, 1e-12);
}

TEST_F(Curves, ANormalMirrorsAnArcAndOfACircleTheCentreAlone)
{
  ImportEntities(
      Entity("ARC", {{10, "2"}, {20, "3"}, {40, "1"}, {50, "0"}, {51, "90"}, {230, "-1"}}));
  EXPECT_THAT(VerticesOf(0).front(), ElementsAre(-3.0, 3.0, 0.0));
  EXPECT_NEAR(VerticesOf(0).back()[0], -2.0, 1e-12);
  EXPECT_NEAR(VerticesOf(0).back()[1], 4.0, 1e-12);
  ImportEntities(Entity("CIRCLE", {{10, "2"}, {20, "3"}, {30, "4"}, {40, "1"}, {230, "-1"}}));
  EXPECT_THAT(VerticesOf(0).front(), ElementsAre(-3.0, 3.0, 0.0));
  EXPECT_NEAR(VerticesOf(0)[15][0], -2.0, 1e-12);
  EXPECT_NEAR(VerticesOf(0)[15][1], 4.0, 1e-12);
}

TEST_F(Curves, AnArcGoesCounterClockwiseInSteps)
{
  ImportEntities(
      Entity("ARC", {{10, "10"}, {20, "20"}, {30, "3"}, {40, "2"}, {50, "0"}, {51, "90"}}));
  const auto vertices = VerticesOf(0);
  EXPECT_GE(vertices.size(), 181U);
  EXPECT_LE(vertices.size(), 182U);
  EXPECT_THAT(vertices[0], ElementsAre(12.0, 20.0, 3.0));
  EXPECT_NEAR(vertices[90][0], 10.0 + 2.0 * std::cos(45.0 * turn), 1e-12);
  EXPECT_NEAR(vertices.back()[0], 10.0, 1e-12);
  EXPECT_NEAR(vertices.back()[1], 22.0, 1e-12);
  // The last two coincide, nearly or exactly.
  EXPECT_NEAR(vertices[vertices.size() - 2][0], vertices.back()[0], 1e-9);
  EXPECT_THAT(AttributesOf(0), ElementsAre("TYPE=ARC", "LAYER=", "HANDLE="));
}

TEST_F(Curves, AWholeArcIsOneTurnOfTwoDegreeSteps)
{
  ImportEntities(Entity("ARC", {{40, "1"}, {50, "0"}, {51, "360"}}));
  EXPECT_NEAR(VerticesOf(0)[1][0], std::cos(2.0 * turn), 1e-12);
  EXPECT_NEAR(VerticesOf(0).back()[0], 1.0, 1e-12);
}

TEST_F(Curves, AnArcThroughZeroAddsAFullTurn)
{
  ImportEntities(Entity("ARC", {{40, "1"}, {50, "350"}, {51, "10"}}));
  const auto vertices = VerticesOf(0);
  EXPECT_NEAR(vertices[90][0], 1.0, 1e-12);
  EXPECT_NEAR(vertices.back()[1], std::sin(10.0 * turn), 1e-12);
}

TEST_F(Curves, AnArcThatEndsWhereItStartsIsAFullTurn)
{
  ImportEntities(Entity("ARC", {{40, "1"}, {50, "90"}, {51, "90"}}));
  EXPECT_NEAR(VerticesOf(0)[0][1], 1.0, 1e-12);
  EXPECT_NEAR(VerticesOf(0)[90][1], -1.0, 1e-12);
  EXPECT_NEAR(VerticesOf(0).back()[1], 1.0, 1e-12);
}

TEST_F(Curves, TheStepsOfAnArcAreAdded)
{
  // Rounding lets the 181st vertex pass the end of some arcs, and not that of others.
  for (const auto& [end, count] :
       {std::pair{15.0, 181U}, {30.0, 181U}, {60.0, 181U}, {90.0, 182U}}) {
    const auto arc = MakeArc({}, Extrusion(), 3.0, 0.0, end, false);
    ASSERT_EQ(arc->vertices.size(), count) << end;
    double t = 0.0;
    for (std::size_t i = 0; i + 1 < count; ++i) {
      ASSERT_EQ(arc->vertices[i]->x, 3.0 * std::cos(t)) << end << " " << i;
      ASSERT_EQ(arc->vertices[i]->y, 3.0 * std::sin(t)) << end << " " << i;
      t += end * turn / 180.0;
    }
    EXPECT_EQ(arc->vertices.back()->x, 3.0 * std::cos(end * turn));
    EXPECT_EQ(arc->vertices.back()->y, 3.0 * std::sin(end * turn));
  }
}

TEST_F(Curves, AnArcWhoseStepsMeetItsEndHasThatVertexTwice)
{
  // The steps of most arcs end a rounding error below or above their end; these meet it.
  for (const auto& [start, end] : {std::pair{80.0, 125.0}, {0.0, 205.0}, {55.0, 295.0}}) {
    const auto arc = MakeArc({}, Extrusion(), 1.0, start, end, false);
    ASSERT_EQ(arc->vertices.size(), 182U);
    EXPECT_EQ(arc->vertices[180]->x, arc->vertices[181]->x);
    EXPECT_EQ(arc->vertices[180]->y, arc->vertices[181]->y);
  }
}

TEST_F(Curves, AnArcOfNextToNothingIsAFullTurn)
{
  const auto halfWay = [](double endDegrees, bool clockwise) {
    return MakeArc({}, Extrusion(), 1.0, 0.0, endDegrees, clockwise)->vertices.at(90)->x;
  };
  EXPECT_NEAR(halfWay(0.9e-10 / turn, false), -1.0, 1e-9);
  EXPECT_NEAR(halfWay(1.1e-10 / turn, false), 1.0, 1e-9);
  EXPECT_NEAR(halfWay(-0.9e-10 / turn, true), -1.0, 1e-9);
  EXPECT_NEAR(halfWay(-1.1e-10 / turn, true), 1.0, 1e-9);
}

TEST_F(Curves, AClockwiseArcMayOvershootByOneStepBeforeItReturns)
{
  const auto arc = MakeArc({}, Extrusion(), 1.0, 90.0, 0.0, true);
  ASSERT_GE(arc->vertices.size(), 182U);
  const CShapeVertex& last = *arc->vertices.back();
  const CShapeVertex& beforeLast = *arc->vertices[arc->vertices.size() - 2];
  EXPECT_EQ(last.x, 1.0);
  EXPECT_EQ(last.y, 0.0);
  EXPECT_NEAR(beforeLast.y, -std::sin(0.5 * turn), 1e-9);
}

TEST_F(Curves, AClockwiseArcWhoseStepsMeetTheStepBehindItsEndHasThatVertex)
{
  // The steps of most arcs end a rounding error before or behind that place; these meet it.
  for (const auto& [start, end] : {std::pair{0.0, 155.0}, {5.0, 100.0}, {20.0, 175.0}}) {
    const auto arc = MakeArc({}, Extrusion(), 1.0, start, end, true);
    ASSERT_EQ(arc->vertices.size(), 183U) << start;
    const double step = (start + 360.0 - end) / 180.0 * turn;
    EXPECT_NEAR(arc->vertices[181]->x, std::cos(end * turn - step), 1e-9);
    EXPECT_NEAR(arc->vertices[181]->y, std::sin(end * turn - step), 1e-9);
    EXPECT_NEAR(arc->vertices[182]->x, std::cos(end * turn), 1e-12);
  }
}

TEST_F(Curves, AClockwiseArcWhoseStepsEndBehindThatPlaceStopsAtItsEnd)
{
  const auto arc = MakeArc({}, Extrusion(), 1.0, 0.0, 10.0, true);
  ASSERT_EQ(arc->vertices.size(), 182U);
  EXPECT_NEAR(arc->vertices[180]->x, arc->vertices[181]->x, 1e-9);
}

TEST_F(Curves, TheAnglesOfAnArcAreNotBroughtIntoOneTurn)
{
  const auto verticesOfArc = [this](const std::string& start, const std::string& end) {
    ImportEntities(Entity("ARC", {{40, "1"}, {50, start}, {51, end}}));
    return VerticesOf(0);
  };
  const auto twoTurns = verticesOfArc("0", "720");
  EXPECT_NEAR(twoTurns.at(1).at(0), std::cos(4.0 * turn), 1e-12);
  EXPECT_NEAR(twoTurns.at(1).at(1), std::sin(4.0 * turn), 1e-12);
  // One turn more still ends this one before it begins, so that its end alone is there.
  const auto backwards = verticesOfArc("400", "10");
  ASSERT_EQ(backwards.size(), 1U);
  EXPECT_NEAR(backwards[0][0], std::cos(10.0 * turn), 1e-12);
  EXPECT_NEAR(backwards[0][1], std::sin(10.0 * turn), 1e-12);
  const auto fromBelow = verticesOfArc("-90", "90");
  EXPECT_NEAR(fromBelow.at(0).at(1), -1.0, 1e-12);
  EXPECT_NEAR(fromBelow.at(90).at(0), 1.0, 1e-12);
  EXPECT_NEAR(fromBelow.back()[1], 1.0, 1e-12);
}

TEST_F(Curves, AnArcAlwaysEnds)
{
  for (const bool clockwise : {false, true}) {
    for (const double start :
         {0.0, 1e20, -1e20, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
      for (const double end :
           {0.0, 1e18, -1e18, 1e20, -1e20, 1e300, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        const auto arc = MakeArc({}, Extrusion(), 1.0, start, end, clockwise);
        EXPECT_GE(arc->vertices.size(), 1U);
        EXPECT_LE(arc->vertices.size(), 400U) << start << " " << end;
      }
    }
  }
}

TEST_F(Curves, AWholeEllipseAlongTheAxesIsExact)
{
  ImportEntities(Entity("ELLIPSE", {{10, "10"},
                                    {20, "20"},
                                    {30, "3"},
                                    {11, "4"},
                                    {40, "0.5"},
                                    {41, "0"},
                                    {42, "6.283185307179586"}}));
  const auto vertices = VerticesOf(0);
  ASSERT_EQ(vertices.size(), 61U);
  EXPECT_THAT(vertices[0], ElementsAre(14.0, 20.0, 3.0));
  EXPECT_NEAR(vertices[15][0], 10.0, 1e-12);
  EXPECT_NEAR(vertices[15][1], 22.0, 1e-12);
  EXPECT_NEAR(vertices[30][0], 6.0, 1e-12);
  EXPECT_THAT(AttributesOf(0), ElementsAre("TYPE=ELLIPSE", "LAYER=", "HANDLE="));
}

TEST_F(Curves, APartOfAnEllipseRunsTheOtherWayFromItsStartTakenAsRadians)
{
  ImportEntities(Entity("ELLIPSE", {{11, "1"}, {40, "1"}, {41, "1"}, {42, "2"}}));
  const double start = 57.29577951308232;
  EXPECT_NEAR(VerticesOf(0)[0][0], std::cos(start), 1e-12);
  EXPECT_NEAR(VerticesOf(0)[60][0], std::cos(start - 1.0), 1e-12);
  EXPECT_NEAR(VerticesOf(0)[60][1], -std::sin(start - 1.0), 1e-12);
}

TEST_F(Curves, TheVerticesOfAnEllipseHaveTheBitsOfItsFormulas)
{
  const auto ellipse = MakeEllipse({10.0, 20.0, 3.0}, Extrusion(), 30.0, 4.1, 1.7, 20.0, 200.0);
  const double c = std::cos(30.0 * turn);
  const double s = std::sin(30.0 * turn);
  const double step = (20.0 * turn - 200.0 * turn) / 60.0;
  ASSERT_EQ(ellipse->vertices.size(), 61U);
  for (int i = 0; i <= 60; ++i) {
    const double t = i * step + 20.0;
    const CShapeVertex& v = *ellipse->vertices[static_cast<std::size_t>(i)];
    EXPECT_EQ(v.x, 10.0 + 4.1 * std::cos(t) * c + 1.7 * std::sin(t) * s) << i;
    EXPECT_EQ(v.y, 20.0 - (4.1 * std::cos(t) * s + 1.7 * std::sin(t) * c)) << i;
    EXPECT_EQ(v.z, 3.0) << i;
  }
}

TEST_F(Curves, AnEllipseThatEndsBeforeItStartsGoesOnePastATurn)
{
  ImportEntities(Entity("ELLIPSE", {{11, "1"}, {40, "1"}, {41, "2"}, {42, "1"}}));
  const double start = 2.0 * 57.29577951308232;
  const double step = (start - (57.29577951308232 + 360.0)) * turn;
  EXPECT_NEAR(VerticesOf(0)[60][0], std::cos(start + step), 1e-9);
}

TEST_F(Curves, AnEllipseThatEndsWhereItStartsHasOneVertexManyTimes)
{
  ImportEntities(Entity("ELLIPSE", {{11, "1"}, {40, "1"}, {41, "1"}, {42, "1"}}));
  for (const auto& v : VerticesOf(0)) EXPECT_EQ(v, VerticesOf(0)[0]);
}

TEST_F(Curves, TheAxisOfAnEllipseIsMeasuredInSpaceAndExtruded)
{
  ImportEntities(Entity("ELLIPSE", {{11, "3"}, {31, "4"}, {40, "1"}, {42, "6"}}));
  EXPECT_THAT(VerticesOf(0)[0], ElementsAre(5.0, 0.0, 0.0));
  ImportEntities(Entity("ELLIPSE", {{11, "3"}, {40, "1"}, {42, "6"}, {230, "-1"}}));
  EXPECT_NEAR(VerticesOf(0)[0][0], 3.0, 1e-12);  // turned by the extrusion, and turned back
  // A normal of length 2 stretches what of the axis lies along it from 4 to 8.
  ImportEntities(Entity("ELLIPSE", {{11, "6"}, {31, "4"}, {40, "1"}, {42, "6"}, {230, "2"}}));
  EXPECT_THAT(VerticesOf(0)[0], ElementsAre(10.0, 0.0, 0.0));
  // One that stands upright is not turned.
  ImportEntities(Entity("ELLIPSE", {{31, "4"}, {40, "1"}, {42, "6"}}));
  EXPECT_THAT(VerticesOf(0)[0], ElementsAre(4.0, 0.0, 0.0));
}

TEST_F(Curves, ASlantedEllipseCollapsesIntoALine)
{
  ImportEntities(Entity("ELLIPSE", {{11, "3"}, {21, "3"}, {40, "1"}, {42, "6.283185307179586"}}));
  for (const auto& v : VerticesOf(0)) EXPECT_NEAR(v[0], v[1], 1e-9);
}

TEST_F(Curves, AnEllipseWithoutAnAxisLiesInItsCentre)
{
  ImportEntities(Entity("ELLIPSE", {{10, "5"}, {20, "7"}, {31, "0"}, {40, "1"}, {42, "6"}}));
  ASSERT_EQ(VerticesOf(0).size(), 61U);
  for (const auto& v : VerticesOf(0)) EXPECT_THAT(v, ElementsAre(5.0, 7.0, 0.0));
}

TEST_F(Curves, TheTurnOfAnArcThatPassesZeroIsAddedInRadians)
{
  // Added in degrees it would give other last bits.
  const double wholeTurn = 2.0 * std::numbers::pi;
  for (const auto& [start, end, clockwise] :
       {std::tuple{350.0, 60.0, false}, {100.0, 120.0, true}}) {
    const auto arc = MakeArc({}, Extrusion(), 1.0, start, end, clockwise);
    const double last = clockwise ? end * turn - wholeTurn : end * turn + wholeTurn;
    EXPECT_EQ(arc->vertices.back()->x, std::cos(last)) << end;
    EXPECT_EQ(arc->vertices.back()->y, std::sin(last)) << end;
  }
}

TEST_F(Curves, AnEllipseOfADrawingHasTheBitsOfItsFormulas)
{
  constexpr double degrees = 57.29577951308232;  // of one radian
  for (const char* end : {"5.5", "0.05"}) {      // the second lies before the start
    ImportEntities(Entity("ELLIPSE", {{10, "10.1"},
                                      {20, "20.2"},
                                      {30, "3.3"},
                                      {11, "4.1"},
                                      {21, "-1.2"},
                                      {31, "0.7"},
                                      {40, "0.37"},
                                      {41, "0.1"},
                                      {42, end}}));
    const double x = ParseDouble("4.1");
    const double y = ParseDouble("-1.2");
    const double start = ParseDouble("0.1") * degrees;
    double last = ParseDouble(end) * degrees;
    if (last < start) last += 360.0;
    const double major = std::sqrt(x * x + y * y + 0.7 * 0.7);
    const auto expected = MakeEllipse({10.1, 20.2, 3.3}, Extrusion(), -std::atan2(y, x) * degrees,
                                      major, major * 0.37, start, last);
    const auto vertices = VerticesOf(0);
    ASSERT_EQ(vertices.size(), expected->vertices.size());
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      const CShapeVertex& v = *expected->vertices[i];
      EXPECT_THAT(vertices[i], ElementsAre(v.x, v.y, v.z)) << end << " " << i;
    }
  }
}

TEST_F(Curves, TheCentreOfAnEllipseIsExtrudedTwice)
{
  ImportEntities(Lines(
      {{0, "ELLIPSE"}, {10, "5"}, {11, "1"}, {40, "1"}, {42, "6.283185307179586"}, {230, "-1"}}));
  double sum = 0.0;
  for (std::size_t i = 0; i < 60; ++i) sum += VerticesOf(0)[i][0];
  EXPECT_NEAR(sum / 60.0, 5.0, 1e-9);
}

}  // namespace
}  // namespace hullwright
