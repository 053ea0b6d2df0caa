#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string unitLine = Lines(
    {{0, "LINE"}, {5, "A1"}, {8, "part"}, {62, "1"}, {10, "1"}, {20, "0"}, {30, "2"}, {11, "2"}});

std::string Insert(const std::string& name, const std::string& more = {})
{
  return Entity("INSERT", {{2, name}}) + more;
}

class Inserts : public DxfFixture {};

TEST_F(Inserts, CopyEveryShapeWithTheNamesOfBoth)
{
  Import(Blocks(Block("B", unitLine + unitLine)) +
         Entities(Insert("B", Lines({{5, "C3"}, {8, "deck"}, {62, "3"}, {66, "1"}}))));
  ASSERT_EQ(ShapeCount(), 2U);
  for (const std::size_t i : {0U, 1U}) {
    EXPECT_THAT(AttributesOf(i), ElementsAre("LAYER=part", "HANDLE=A1", "LAYER=deck", "HANDLE=C3"));
    EXPECT_EQ(layer->shapes->shapes[i]->tag, 0xC3);
    EXPECT_EQ(ColourOf(i), 0xFFU);  // as it was resolved in the block
  }
  EXPECT_THAT(Records(), Contains(HasSubstr("added 2 map features")));
  EXPECT_EQ(BlockOf("B").shapes[0]->tag, 0xA1);
}

TEST_F(Inserts, WithoutAHandleLeaveTheirCopiesWithoutATag)
{
  Import(Blocks(Block("B", unitLine)) + Entities(Insert("B", Lines({{8, "deck"}}))));
  EXPECT_EQ(At(0).tag, 0);
  EXPECT_THAT(AttributesOf(0), ElementsAre("LAYER=part", "HANDLE=A1", "LAYER=deck", "HANDLE="));
}

TEST_F(Inserts, HaveTheirNamesInTheCodePage)
{
  Import(Blocks(Block("B", unitLine)) +
         Entities(Insert("B", Lines({{5, "C3\xFC"}, {8, "Br\xFCgge"}}))));
  EXPECT_EQ(At(0).tag, 0xC3);
  EXPECT_THAT(AttributesOf(0),
              ElementsAre("LAYER=part", "HANDLE=A1", "LAYER=Br\xC3\xBCgge", "HANDLE=C3\xC3\xBC"));
}

TEST_F(Inserts, ScaleThenTurnThenMove)
{
  Import(Blocks(Block("B", unitLine)) + Entities(Insert("B", Lines({{50, "90"}, {10, "10"}}))));
  EXPECT_NEAR(VerticesOf(0)[0][0], 10.0, 1e-12);
  EXPECT_NEAR(VerticesOf(0)[0][1], 1.0, 1e-12);
  Import(Blocks(Block("B", unitLine)) +
         Entities(Insert(
             "B", Lines({{41, "3"}, {42, "5"}, {43, "7"}, {50, "90"}, {20, "1"}, {30, "100"}}))));
  EXPECT_NEAR(VerticesOf(0)[0][1], 4.0, 1e-12);
  EXPECT_EQ(VerticesOf(0)[0][2], 114.0);
}

TEST_F(Inserts, AScaleOfMinusOneMirrorsAndOfZeroCollapses)
{
  Import(Blocks(Block("B", unitLine)) +
         Entities(Insert("B", Lines({{41, "-1"}})) + Insert("B", Lines({{41, "0"}}))));
  EXPECT_EQ(VerticesOf(0)[0][0], -1.0);
  EXPECT_EQ(VerticesOf(1)[1][0], 0.0);
}

TEST_F(Inserts, AnArrayGivesOneCopyAndTheNormalPlaysNoPart)
{
  Import(Blocks(Block("B", unitLine)) +
         Entities(Insert("B", Lines({{70, "3"}, {71, "4"}, {44, "5"}, {45, "5"}, {230, "-1"}}))));
  ASSERT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(VerticesOf(0)[0][0], 1.0);
}

TEST_F(Inserts, WithoutAScaleKeepTheSizeAndEachScaleIsForItsOwnAxis)
{
  const std::string block = Blocks(Block("B", Entity("LINE", {{10, "1"}, {20, "2"}, {30, "3"}})));
  const auto firstVertex = [&](const std::string& scale) {
    Import(block + Entities(Insert("B", scale)));
    return VerticesOf(0).at(0);
  };
  EXPECT_THAT(firstVertex({}), ElementsAre(1.0, 2.0, 3.0));
  EXPECT_THAT(firstVertex(Lines({{41, "5"}})), ElementsAre(5.0, 2.0, 3.0));
  EXPECT_THAT(firstVertex(Lines({{42, "5"}})), ElementsAre(1.0, 10.0, 3.0));
  EXPECT_THAT(firstVertex(Lines({{43, "5"}})), ElementsAre(1.0, 2.0, 15.0));
}

TEST_F(Inserts, HaveTheirPlaceInTheWorldWhateverTheirNormal)
{
  Import(
      Blocks(Block("B", unitLine)) +
      Entities(Insert("B", Lines({{10, "10"}, {20, "20"}, {30, "30"}, {230, "-1"}})) +
               Insert("B", Lines({{10, "10"}, {20, "20"}, {30, "30"}, {210, "1"}, {230, "0"}}))));
  EXPECT_THAT(VerticesOf(0)[0], ElementsAre(11.0, 20.0, 32.0));
  EXPECT_THAT(VerticesOf(1)[0], ElementsAre(11.0, 20.0, 32.0));
}

TEST_F(Inserts, OfEntitiesByBlockStayBlack)
{
  const std::string byBlock = Entity("LINE", {{8, "0"}, {62, "0"}});
  Import(LayerTable(LayerRecord("0", 3, 0) + LayerRecord("deck", 2, 0)) +
         Blocks(Block("B", byBlock)) + Entities(Insert("B", Lines({{8, "deck"}, {62, "1"}}))));
  EXPECT_EQ(ColourOf(0), 0U);
  EXPECT_EQ(At(0).style->fillColour, 0U);
}

TEST_F(Inserts, TheBasePointOfTheBlockPlaysNoPart)
{
  Import(
      Blocks(Entity("BLOCK", {{2, "B"}, {10, "100"}, {20, "100"}}) + unitLine + Entity("ENDBLK")) +
      Entities(Insert("B")));
  EXPECT_EQ(VerticesOf(0)[0][0], 1.0);
}

TEST_F(Inserts, AnInsertedTextKeepsItsHeightAndItsAngle)
{
  Import(Blocks(Block("B", Entity("TEXT", {{1, "Crane"}, {10, "1"}, {40, "2"}, {50, "30"}}))) +
         Entities(Insert("B", Lines({{41, "3"}, {42, "3"}, {50, "90"}}))));
  const auto& label = At<CShapeText>(0);
  EXPECT_EQ(label.height, 2.0);
  EXPECT_EQ(label.angle, 330.0);
  EXPECT_NEAR(label.vertices[0]->y, 3.0, 1e-12);
}

TEST_F(Inserts, OfUnknownLaterOrDifferentlySpelledBlocksAddNothing)
{
  Import(Entities(Insert("B")) + Blocks(Block("B", unitLine)) +
         Entities(Insert("b") + Insert("B ") + Insert("")));
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(Inserts, OnAHiddenLayerOrInPaperSpaceAddNothing)
{
  Import(LayerTable(LayerRecord("off", -1, 0)) + Blocks(Block("B", unitLine)) +
         Entities(Insert("B", Lines({{8, "off"}})) + Insert("B", Lines({{67, "1"}})) +
                  Insert("B", Lines({{67, "2"}}))));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Inserts, OfABlockWhoseHeaderIsOnAFrozenLayerAreMade)
{
  Import(LayerTable(LayerRecord("frozen", 1, 1)) +
         Blocks(Entity("BLOCK", {{8, "frozen"}, {2, "B"}}) + unitLine + Entity("ENDBLK")) +
         Entities(Insert("B")));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Inserts, MakeNoLayer)
{
  Import(Blocks(Block("empty", "") + Block("B", unitLine)) +
         Entities(Insert("empty", Lines({{8, "deck"}})) + Insert("B", Lines({{8, "deck"}}))));
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(Layers().size(), 1U);
  EXPECT_TRUE(Layers().contains("part"));
}

TEST_F(Inserts, NestAndComposeTheirTransforms)
{
  Import(Blocks(Block("inner", unitLine) +
                Block("outer", Insert("inner", Lines({{10, "10"}, {8, "x"}, {5, "1"}})))) +
         Entities(Insert("outer", Lines({{41, "2"}, {8, "y"}, {5, "2"}}))));
  EXPECT_EQ(VerticesOf(0)[0][0], 22.0);
  EXPECT_THAT(AttributesOf(0),
              ElementsAre("LAYER=part", "HANDLE=A1", "LAYER=x", "HANDLE=1", "LAYER=y", "HANDLE=2"));
}

TEST_F(Inserts, OfThemselvesAndOfLaterBlocksFindNothing)
{
  Import(Blocks(Block("A", unitLine + Insert("A") + Insert("B")) + Block("B", unitLine)) +
         Entities(Insert("A")));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Inserts, AttributesThatFollowAreTextsOfTheirOwn)
{
  Import(Blocks(Block("B", unitLine)) +
         Entities(Insert("B", Lines({{66, "1"}, {10, "5"}})) +
                  Entity("ATTRIB", {{1, "No. 7"}, {10, "1"}}) + Entity("SEQEND") + unitLine));
  ASSERT_EQ(ShapeCount(), 3U);
  EXPECT_EQ(At<CShapeText>(1).text, u"No. 7");
  EXPECT_EQ(VerticesOf(1)[0][0], 1.0);
}

}  // namespace
}  // namespace hullwright
