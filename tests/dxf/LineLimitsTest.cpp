#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;

const std::string aLine =
    Lines({{0, "LINE"}, {8, "Hull"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}});

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
    ImportEntities(Lines({{0, "LINE"}, {10, "1"}}) + std::string(length - 2, ' ') + "20\n5\n");
    return VerticesOf(0).at(0).at(1);
  };
  EXPECT_EQ(yBehind(255), 5.0);
  EXPECT_EQ(yBehind(256), 0.0);
}

TEST_F(LineLimits, ALineOfTheTablesHas255Bytes)
{
  const auto layersBehind = [this](std::size_t length) {
    Import(Section("TABLES", Filler(length) + LayerRecord("A", 1, 0)));
    return file->layers.size();
  };
  EXPECT_EQ(layersBehind(255), 1U);
  EXPECT_EQ(layersBehind(256), 0U);
}

TEST_F(LineLimits, ALineInsideABlockHas255Bytes)
{
  const auto shapesBehind = [this](std::size_t length) {
    Import(Blocks(Block("B", "0\n" + Filler(length) + aLine)));
    return file->blocks.at("B")->shapes.size();
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
    ImportEntities(Lines({{0, "LINE"}, {102, "{A"}}) + Filler(length) + aLine);
    return ShapeCount();
  };
  EXPECT_EQ(shapesWith(255), 1U);  // no brace comes any more, so that everything belongs to it
  EXPECT_EQ(shapesWith(256), 2U);  // the empty rest of the line ends the record
}

}  // namespace
}  // namespace hullwright
