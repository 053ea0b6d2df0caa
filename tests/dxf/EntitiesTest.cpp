#include <cmath>

#include "dxf/Extrusion.h"
#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;

class PlainEntities : public DxfFixture {};

// ---------------------------------------------------------------------------------------------------
// What all entities have in common

TEST_F(PlainEntities, ALineHasBothEndsAndItsNames)
{
  ImportEntities(Entity("LINE", {{5, "1F\xE4"},
                                 {8,
                                  "D\xE4"
                                  "ck"},
                                 {62, "1"},
                                 {39, "9"},
                                 {10, "1.5"},
                                 {20, "-2"},
                                 {30, "3"},
                                 {11, "4"},
                                 {21, "5"},
                                 {31, "6"}}));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(At(0).type, ShapeType::Polyline);
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.5, -2.0, 3.0), ElementsAre(4.0, 5.0, 6.0)));
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=D\xC3\xA4"
                                           "ck",
                                           "HANDLE=1F\xC3\xA4"));
  EXPECT_EQ(At(0).tag, 0x1F);
  EXPECT_EQ(At(0).style->lineColour, 0x0000FFU);
  EXPECT_EQ(At(0).style->fillColour, 0x0000FFU);
  EXPECT_EQ(At(0).style->lineWidth, 1.0F);
  EXPECT_EQ(At(0).style->styleCode, 7);
}

TEST_F(PlainEntities, GroupsThatAreMissingAreZeroAndEmpty)
{
  ImportEntities(Entity("LINE"));
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(0.0, 0.0, 0.0), ElementsAre(0.0, 0.0, 0.0)));
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=", "HANDLE="));
  EXPECT_EQ(At(0).tag, 0);
  EXPECT_EQ(ColourOf(0), 0U);
}

TEST_F(PlainEntities, AHandleIsReadAsHexadecimalAndSaturates)
{
  for (const auto& [handle, tag] : {std::pair<const char*, std::int32_t>{"FFFFFFFFF", 2147483647},
                                    {"7fffffff", 2147483647},
                                    {"xyz", 0},
                                    {"12G", 0x12},
                                    {"-1", -1},
                                    {"", 0}}) {
    ImportEntities(Entity("LINE", {{5, handle}}));
    EXPECT_EQ(At(0).tag, tag) << handle;
  }
}

TEST_F(PlainEntities, ApplicationDataPlaysNoPartInAnyRecord)
{
  const std::string data = Lines({{102, "{A"}, {62, "3"}, {102, "}"}});
  const std::string red = Lines({{62, "1"}});
  for (const char* keyword : {"LINE", "POINT", "ARC", "CIRCLE", "ELLIPSE", "SOLID", "3DFACE",
                              "TEXT", "MTEXT", "ATTRIB", "ATTDEF", "LWPOLYLINE", "POLYLINE"}) {
    for (const std::string& groups : {red + data, data + red}) {
      ImportEntities(Entity(keyword) + groups + Entity("SEQEND"));
      ASSERT_EQ(ShapeCount(), 1U) << keyword;
      EXPECT_EQ(ColourOf(0), 0xFFU) << keyword;
    }
  }
  ImportEntities(
      Entity("LWPOLYLINE",
             {{10, "1"}, {20, "1"}, {102, "{A"}, {70, "1"}, {10, "5"}, {20, "5"}, {102, "}"}}));
  EXPECT_THAT(VerticesOf(0), ElementsAre(ElementsAre(1.0, 1.0, 0.0)));
}

TEST_F(PlainEntities, OnlyAPaperSpaceMarkOfExactlyOneDrops)
{
  for (const auto& [mark, shapes] :
       {std::pair{"1", 0U}, {"0", 1U}, {"2", 1U}, {"-1", 1U}, {" 1x", 0U}}) {
    ImportEntities(Entity("LINE", {{67, mark}}));
    EXPECT_EQ(ShapeCount(), shapes) << mark;
  }
}

TEST_F(PlainEntities, AGroupThatComesAgainReplacesItsValue)
{
  ImportEntities(Entity("LINE", {{10, "1"}, {10, "2"}}));
  EXPECT_EQ(VerticesOf(0)[0][0], 2.0);
}

TEST_F(PlainEntities, KeywordsCountAsWholeLinesInTheirCase)
{
  ImportEntities("0\nLINE \n0\nline\n0\nXLINE\n" + Entity("RAY", {{10, "1"}}));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(PlainEntities, AHatchGivesNothingOfItsBoundary)
{
  ImportEntities(Entity("HATCH", {{8, "A"}, {2, "LINE"}, {10, "1"}}));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(PlainEntities, AnUnknownEntityIsWalkedLineByLine)
{
  ImportEntities(Entity("3DSOLID", {{1, "LINE"}, {10, "5"}}));
  EXPECT_EQ(ShapeCount(), 1U);
  ImportEntities(Entity("3DSOLID", {{1, "text ENDSEC"}}) + Entity("LINE"));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(PlainEntities, ANormalStraightDownTurnsEveryEntityOver)
{
  const Pairs where = {{10, "2"},  {20, "3"},  {30, "4"},  {40, "0"},
                       {210, "0"}, {220, "0"}, {230, "-1"}};
  for (const char* keyword : {"LINE", "ARC", "3DFACE"}) {
    ImportEntities(Entity(keyword) + Lines(where));
    EXPECT_THAT(VerticesOf(0).at(0), ElementsAre(-2.0, 3.0, -4.0)) << keyword;
  }
  ImportEntities(Entity("SOLID") + Lines(where));
  const CShapeVertex& corner = *At<CShapePolygon>(0).rings.at(0)->vertices.at(0);
  EXPECT_TRUE(corner == CShapeVertex(-2.0, 3.0, -4.0));
  ImportEntities(Entity("POINT") + Lines(where));
  EXPECT_TRUE(At<CShapePoint>(0).position == CShapeVertex(-2.0, 3.0, -4.0));
  ImportEntities(Entity("CIRCLE") + Lines(where));
  EXPECT_THAT(VerticesOf(0).at(0), ElementsAre(-2.0, 3.0, 0.0));
  ImportEntities(Entity("TEXT") + Lines(where));
  EXPECT_THAT(VerticesOf(0).at(0), ElementsAre(-2.0, 3.0, -4.0));
}

TEST_F(PlainEntities, TheExtrusionIsRoundedToSinglePrecision)
{
  DxfPoint point{1000000.0, 2000000.0, 0.0};
  point = Extrusion(DxfPoint{0.6, 0.0, 0.8})(point);
  // The x axis is (0, 1, 0) and the y axis (-0.8, 0, 0.6), whose parts are rounded.
  const double minusEightTenths = -0.8F;
  const double sixTenths = 0.6F;
  EXPECT_EQ(point.x, minusEightTenths * 2000000.0);
  EXPECT_EQ(point.y, 1000000.0);
  EXPECT_EQ(point.z, sixTenths * 2000000.0);
}

TEST_F(PlainEntities, EveryComponentOfTheExtrusionIsRounded)
{
  // Compilers have been seen to drop some of these roundings in an optimised build.
  const DxfPoint normal = {0.3, 0.1, 0.9};
  for (const DxfPoint& unit :
       {DxfPoint{1.0, 0.0, 0.0}, DxfPoint{0.0, 1.0, 0.0}, DxfPoint{0.0, 0.0, 1.0}}) {
    DxfPoint point = unit;
    point = Extrusion(normal)(point);
    for (const double component : {point.x, point.y, point.z}) {
      volatile auto rounded = static_cast<float>(component);
      EXPECT_EQ(component, static_cast<double>(rounded)) << component;
    }
  }
  DxfPoint far = {1000000.0, 2000000.0, 0.0};
  far = Extrusion(normal)(far);
  EXPECT_EQ(far.x, -2106310.337781906);
  EXPECT_EQ(far.y, 351989.15004730225);
  EXPECT_EQ(far.z, 662993.5503005981);
}

TEST_F(PlainEntities, TheProductsOfTheExtrusionAreAddedInTheOrderOfTheAxes)
{
  // Each of the other orders rounds one of these differently.
  const DxfPoint place = Extrusion({0.3, 0.1, 0.9})({123456.789, 654321.987, 12.345});
  EXPECT_EQ(place.x, -624681.9541436268);
  EXPECT_EQ(place.y, -78092.42679296843);
  EXPECT_EQ(place.z, 216916.7391001416);
}

TEST_F(PlainEntities, AnAxisOfTheExtrusionIsRoundedAfterTheNextOneWasMade)
{
  DxfPoint point{0.0, 1.0, 0.0};
  point = Extrusion(DxfPoint{0.1, 0.9, 0.5})(point);
  EXPECT_EQ(static_cast<float>(point.x), -0.05337909236550331F);
}

TEST_F(PlainEntities, TheExtrusionChangesItsAxisAtOneSixtyFourth)
{
  DxfPoint slanted{1.0, 0.0, 0.0};
  slanted = Extrusion(DxfPoint{0.015625, 0.0, 1.0})(slanted);
  EXPECT_EQ(slanted.y, 1.0);
  DxfPoint upright{1.0, 0.0, 0.0};
  upright = Extrusion(DxfPoint{0.015624, 0.0, 1.0})(upright);
  EXPECT_NEAR(upright.x, 1.0, 1e-3);
  DxfPoint sideways{1.0, 0.0, 0.0};
  sideways = Extrusion(DxfPoint{0.0, 0.015625, 1.0})(sideways);
  EXPECT_EQ(sideways.x, -1.0);
  DxfPoint hardly{1.0, 0.0, 0.0};
  hardly = Extrusion(DxfPoint{0.0, 0.015624, 1.0})(hardly);
  EXPECT_EQ(hardly.x, 1.0);
  // The axis is at a right angle to the normal.
  const DxfPoint nearly = Extrusion(DxfPoint{0.01, 0.0, 1.0})({1.0, 0.0, 0.0});
  EXPECT_EQ(nearly.z, static_cast<double>(static_cast<float>(-0.01 / std::sqrt(1.0001))));
  // Neither the normal nor its length is mended.
  DxfPoint high{0.0, 0.0, 1.0};
  high = Extrusion(DxfPoint{0.0, 0.0, 2.0})(high);
  EXPECT_EQ(high.z, 2.0);
}

TEST_F(PlainEntities, OnlyANormalThatIsExactlyUprightChangesNothing)
{
  const DxfPoint point = Extrusion(DxfPoint{0.001, 0.0, 1.0})({0.0, 0.0, 1000.0});
  EXPECT_EQ(point.x, static_cast<double>(0.001F) * 1000.0);
  EXPECT_EQ(point.z, 1000.0);
}

TEST_F(PlainEntities, TheExtrusionCanBeSwitchedOff)
{
  const std::string turnedOver = Entities(Entity("LINE", {{10, "1"}, {230, "-1"}}));
  Import(turnedOver, {.ignoreExtrusion = true});
  EXPECT_EQ(VerticesOf(0).at(0).at(0), 1.0);
  Import(turnedOver);
  EXPECT_EQ(VerticesOf(0).at(0).at(0), -1.0);
}

// ---------------------------------------------------------------------------------------------------
// Colours

TEST_F(PlainEntities, ColoursComeFromTheTableOrAreBlack)
{
  for (const auto& [index, colour] : {std::pair<const char*, std::uint32_t>{"3", 0x00FF00},
                                      {"0", 0},
                                      {"255", 0xFFFFFF},
                                      {"-3", 0},
                                      {"257", 0},
                                      {"256", 0}}) {
    ImportEntities(Entity("LINE", {{62, index}}));
    EXPECT_EQ(ColourOf(0), colour) << index;
  }
}

TEST_F(PlainEntities, ALayersColourOutOfRangeIsBlack)
{
  Import(LayerTable(LayerRecord("A", 256, 0)) + Entities(Entity("LINE", {{8, "A"}})));
  EXPECT_EQ(ColourOf(0), 0U);
}

TEST_F(PlainEntities, CirclesAndEllipsesAreBlackInsteadOfByLayer)
{
  const std::string table = LayerTable(LayerRecord("A", 1, 0));
  for (const auto& [keyword, colour] :
       {std::pair<const char*, std::uint32_t>{"CIRCLE", 0}, {"ELLIPSE", 0}, {"ARC", 0xFF}}) {
    Import(table + Entities(Entity(keyword, {{8, "A"}})));
    EXPECT_EQ(ColourOf(0), colour) << keyword;
    Import(table + Entities(Entity(keyword, {{8, "A"}, {62, "256"}})));
    EXPECT_EQ(ColourOf(0), 0xFFU) << keyword;
  }
  ImportEntities(Entity("CIRCLE", {{8, "A"}}));
  EXPECT_EQ(Layers().at("A").colour, ColourIndex{0});
}

// ---------------------------------------------------------------------------------------------------
// The single entities

TEST_F(PlainEntities, APointHasAPositionAndNoVertices)
{
  ImportEntities(Entity("POINT", {{10, "1"}, {20, "2"}, {30, "3"}, {8, "A"}, {5, "B"}}));
  EXPECT_EQ(At<CShapePoint>(0).type, ShapeType::Point);
  EXPECT_TRUE(At<CShapePoint>(0).position == CShapeVertex(1.0, 2.0, 3.0));
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=A", "HANDLE=B"));
}

TEST_F(PlainEntities, ASolidIsOneRingOfItsCornersInFileOrder)
{
  ImportEntities(Entity("SOLID", {{10, "0"},
                                  {20, "0"},
                                  {11, "1"},
                                  {21, "0"},
                                  {12, "0"},
                                  {22, "1"},
                                  {13, "1"},
                                  {23, "1"},
                                  {33, "7"},
                                  {62, "1"}}));
  const auto& solid = At<CShapePolygon>(0);
  EXPECT_EQ(solid.type, ShapeType::Polygon);
  ASSERT_EQ(solid.rings.size(), 1U);
  const auto& corners = solid.rings[0]->vertices;
  ASSERT_EQ(corners.size(), 4U);
  EXPECT_TRUE(*corners[2] == CShapeVertex(0.0, 1.0, 0.0));  // crosswise, as drawn: a bow-tie
  EXPECT_TRUE(*corners[3] == CShapeVertex(1.0, 1.0, 7.0));
  EXPECT_EQ(ColourOf(0), 0xFFU);
}

TEST_F(PlainEntities, ASolidOfThreeCornersHasItsFourthAtTheOrigin)
{
  ImportEntities(Entity("SOLID", {{10, "5"}, {11, "6"}, {12, "7"}}));
  EXPECT_TRUE(*At<CShapePolygon>(0).rings[0]->vertices.at(3) == CShapeVertex(0.0, 0.0, 0.0));
}

TEST_F(PlainEntities, AFaceIsAClosedLineWithItsMark)
{
  ImportEntities(Entity(
      "3DFACE",
      {{10, "1"}, {20, "1"}, {30, "1"}, {11, "2"}, {12, "3"}, {13, "4"}, {70, "15"}, {5, "A1"}}));
  ASSERT_EQ(VerticesOf(0).size(), 5U);
  EXPECT_EQ(VerticesOf(0).front(), VerticesOf(0).back());
  EXPECT_THAT(AttributesOf(0), ElementsAre("ENTITY=3DFACE", "LAYER=", "HANDLE=A1"));
}

}  // namespace
}  // namespace hullwright
