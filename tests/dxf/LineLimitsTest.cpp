#include "support/DxfPolylines.h"

namespace hullwright {
namespace {

using namespace test;

const std::string aLine = Entity("LINE", {{8, "Hull"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}});

/// How long a line may be depends on who reads it: 255 bytes or 511. A longer one ends what is
/// being read.
class LineLimits : public DxfFixture {
protected:
  /// A line that says nothing, with its end.
  static std::string Filler(std::size_t length) { return std::string(length, 'x') + "\n"; }
};

TEST_F(LineLimits, ACodeHas255Bytes)
{
  const auto yBehind = [this](std::size_t length) {
    ImportEntities(Entity("LINE", {{10, "1"}}) + std::string(length - 2, ' ') + "20\n5\n");
    return VerticesOf(0).at(0).at(1);
  };
  EXPECT_EQ(yBehind(255), 5.0);
  EXPECT_EQ(yBehind(256), 0.0);
}

TEST_F(LineLimits, ALineOfTheTablesHas255Bytes)
{
  const auto layersBehind = [this](std::size_t length) {
    Import(Section("TABLES", Filler(length) + LayerRecord("A", 1, 0)));
    return Layers().size();
  };
  EXPECT_EQ(layersBehind(255), 1U);
  EXPECT_EQ(layersBehind(256), 0U);
}

TEST_F(LineLimits, ALineInsideABlockHas255Bytes)
{
  const auto shapesBehind = [this](std::size_t length) {
    Import(Blocks(Block("B", "0\n" + Filler(length) + aLine)));
    return BlockOf("B").shapes.size();
  };
  EXPECT_EQ(shapesBehind(255), 1U);
  EXPECT_EQ(shapesBehind(256), 0U);
}

TEST_F(LineLimits, CodeAndNameOfASectionHave511BytesAndALongerOneEndsTheImport)
{
  const auto shapesIn = [this](const std::string& code, const std::string& name) {
    Import("0\nSECTION\n" + code + "\n" + name + "\n" + aLine + "0\nENDSEC\n" + Entities(aLine));
    return ShapeCount();
  };
  EXPECT_EQ(shapesIn(std::string(511, '2'), "ENTITIES"), 2U);
  EXPECT_EQ(shapesIn(std::string(512, '2'), "ENTITIES"), 0U);
  EXPECT_EQ(shapesIn("2", "ENTITIES" + std::string(503, ' ')), 2U);
  EXPECT_EQ(shapesIn("2", "ENTITIES" + std::string(504, ' ')), 0U);
}

TEST_F(LineLimits, ALineOfApplicationDataHas255Bytes)
{
  const auto shapesWith = [this](std::size_t length) {
    ImportEntities(Entity("LINE", {{102, "{A"}}) + Filler(length) + aLine);
    return ShapeCount();
  };
  EXPECT_EQ(shapesWith(255), 1U);  // no brace comes any more, so that everything belongs to it
  EXPECT_EQ(shapesWith(256), 2U);  // the empty rest of the line ends the record
}

TEST_F(LineLimits, AValueOfAnEntityHas511Bytes)
{
  for (const char* keyword : {"LINE", "POINT", "ARC", "CIRCLE", "ELLIPSE", "SOLID", "3DFACE",
                              "TEXT", "MTEXT", "ATTRIB", "ATTDEF"}) {
    const auto colourBehind = [&](std::size_t length) {
      ImportEntities(Entity(keyword) + "999\n" + Filler(length) + Lines({{62, "1"}}));
      return ColourOf(0);
    };
    EXPECT_EQ(colourBehind(511), 0xFFU) << keyword;
    EXPECT_EQ(colourBehind(512), 0U) << keyword;
  }
}

TEST_F(LineLimits, AValueOfAVertexHas511Bytes)
{
  const auto xBehind = [this](std::size_t length) {
    ImportEntities(Header() + Entity("VERTEX") + "999\n" + Filler(length) + Lines({{10, "5"}}) +
                   seqEnd);
    return VerticesOf(0).at(0).at(0);
  };
  EXPECT_EQ(xBehind(511), 5.0);
  EXPECT_EQ(xBehind(512), 0.0);
}

TEST_F(LineLimits, AValueOfThePolylinesHeaderHas511Bytes)
{
  const auto colourBehind = [this](std::size_t length) {
    ImportEntities(Header("999\n" + Filler(length) + Lines({{62, "1"}})) + triangle + seqEnd);
    return ColourOf(0);
  };
  EXPECT_EQ(colourBehind(511), 0xFFU);
  EXPECT_EQ(colourBehind(512), 0U);
}

TEST_F(LineLimits, AValueOfThePolylinesEndHas511Bytes)
{
  const auto shapesBehind = [this](std::size_t length) {
    ImportEntities(Header() + triangle + Entity("SEQEND") + "999\n" + Filler(length) +
                   Lines({{1000, "LINE"}}));
    return ShapeCount();
  };
  EXPECT_EQ(shapesBehind(511), 1U);
  EXPECT_EQ(shapesBehind(512), 2U);  // the value is taken for a keyword
}

TEST_F(LineLimits, AValueOfABlocksHeaderAndOfAnInsertionHas511Bytes)
{
  const auto shapesBehind = [this](std::size_t inHeader, std::size_t inInsert) {
    Import(Blocks(Entity("BLOCK") + "999\n" + Filler(inHeader) + Lines({{2, "B"}}) + aLine +
                  Entity("ENDBLK")) +
           Entities(Entity("INSERT") + "999\n" + Filler(inInsert) + Lines({{2, "B"}})));
    return ShapeCount();
  };
  EXPECT_EQ(shapesBehind(511, 511), 1U);
  EXPECT_EQ(shapesBehind(512, 511), 0U);
  EXPECT_EQ(shapesBehind(511, 512), 0U);
}

}  // namespace
}  // namespace hullwright
