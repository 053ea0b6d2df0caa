#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class Tallies : public DxfFixture {
protected:
  const KeywordCounts::Map& Ignored() const { return Tally().ignored.ByKeyword(); }
};

TEST_F(Tallies, ShapesAreCountedByKind)
{
  ImportEntities(Entity("LINE") + Entity("CIRCLE") + Entity("LWPOLYLINE") + Entity("POINT") +
                 Entity("SOLID") + Entity("SOLID") + Entity("TEXT"));
  EXPECT_EQ(Tally().polylines, 3U);
  EXPECT_EQ(Tally().points, 1U);
  EXPECT_EQ(Tally().areas, 2U);
  EXPECT_EQ(Tally().texts, 1U);
  EXPECT_EQ(Tally().Shapes(), 7U);
  EXPECT_THAT(Ignored(), IsEmpty());
}

TEST_F(Tallies, SkippedAndUnknownEntitiesAreCounted)
{
  ImportEntities(Entity("SPLINE", {{8, "A"}, {70, "0"}}) + Entity("OTHER", {{5, "1F"}, {70, "0"}}) +
                 Lines({{10, "0"}, {20, "0"}, {0, "OTHER"}, {0, "LINE"}, {0, "HATCH"}}) +
                 Lines({{2, "SOLID"}, {0, "SPLINE"}, {0, "3DSOLID"}, {1, "0"}, {310, "00"}}));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("3DSOLID", 1), Pair("HATCH", 1), Pair("OTHER", 2),
                                     Pair("SPLINE", 2)));
  EXPECT_EQ(Tally().Shapes(), 1U);
}

TEST_F(Tallies, EntitiesOfTheSectionsAreCountedAndThoseOfBlocksAreNot)
{
  Import(Blocks(Block("b", Entity("ARC") + Entity("OTHER"))) +
         Entities(Entity("LINE") + Entity("OTHER", {{8, "LINE"}, {70, "0"}}) + Entity("HATCH")) +
         Entities(Entity("POLYLINE") + Entity("VERTEX") + Entity("SEQEND") + Entity("LINE")));
  EXPECT_THAT(Tally().entities.ByKeyword(),
              ElementsAre(Pair("HATCH", 1), Pair("LINE", 2), Pair("OTHER", 1), Pair("POLYLINE", 1),
                          Pair("SEQEND", 1), Pair("VERTEX", 1)));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("HATCH", 1), Pair("OTHER", 2)));
}

TEST_F(Tallies, CountEveryEntityOfATextThatGoesWhileItIsRead)
{
  constexpr std::size_t lines = 100'000;
  std::string records;
  for (std::size_t i = 0; i < lines; ++i) {
    records += Entity("LINE", {{10, std::to_string(i)}, {20, "1"}, {11, "2"}, {21, "3"}});
  }
  ASSERT_GT(records.size(), std::size_t{3'000'000});  // it goes a megabyte at a time
  ImportEntities(records);
  EXPECT_THAT(Tally().entities.ByKeyword(), ElementsAre(Pair("LINE", lines)));
  ASSERT_EQ(ShapeCount(), lines);
  for (std::size_t i = 0; i < lines; ++i) {
    ASSERT_EQ(At(i).vertices.front()->x, static_cast<double>(i));
  }
}

TEST_F(Tallies, HaveTheExtentsOfTheShapes)
{
  ImportEntities(Entity("LINE", {{10, "1"}, {20, "-7"}, {11, "-2"}, {21, "3"}}) +
                 Entity("POINT", {{10, "1e30"}, {20, "2"}}) + Entity("SPLINE", {{10, "-9"}}));
  EXPECT_EQ(Tally().extents.minX, -2.0);
  EXPECT_EQ(Tally().extents.minY, -7.0);
  EXPECT_EQ(Tally().extents.maxX, 1e30);
  EXPECT_EQ(Tally().extents.maxY, 3.0);
  ImportEntities(Entity("POINT", {{10, "1e30"}, {20, "-1e30"}}));
  EXPECT_EQ(Tally().extents.minX, 1e30);
  EXPECT_EQ(Tally().extents.maxY, -1e30);
  ImportEntities("");
  EXPECT_GT(Tally().extents.minX, Tally().extents.maxX);
  EXPECT_GT(Tally().extents.minY, Tally().extents.maxY);
}

TEST_F(Tallies, AValueThatReadsLikeAKeywordIsNone)
{
  // In an entity without a reader such a value starts one, but only its own keyword was ignored.
  ImportEntities(Entity("OTHER", {{8, "HATCH"}, {10, "1"}}) + Entity("OTHER", {{8, "OTHER"}}) +
                 Entity("OTHER"));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("OTHER", 3)));
}

TEST_F(Tallies, ALineBehindWhatOnlyReadsAsZeroIsNoKeyword)
{
  // The reader of the line takes the word for a group 0; so the count behind it is not sure.
  ImportEntities("0\nLINE\nword\nOTHER\n8\nA\n   0\nOTHER\n");
  EXPECT_THAT(Ignored(), ElementsAre(Pair("OTHER", 1)));
}

TEST_F(Tallies, BlanksAroundCodesAndKeywordsDoNotCount)
{
  ImportEntities("  0\nOTHER\n 0 \nOTHER \n");
  EXPECT_THAT(Ignored(), ElementsAre(Pair("OTHER", 2)));
}

TEST_F(Tallies, TheFirstCodeOfASectionIsNoKeyword)
{
  // The section before ends behind a group 0, and this one begins with a word.
  ImportEntities("OTHER\n0\nLINE\n");
  Import(Entities("0\nOTHER\n0\n") + Entities("OTHER\n0\nLINE\n"));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("OTHER", 1)));
}

TEST_F(Tallies, TheContentOfABlockCountsOnce)
{
  const std::string insert = Entity("INSERT", {{2, "b"}});
  Import(Blocks(Block("b", Entity("ELLIPSE", {{40, "1"}}) + Entity("SPLINE") + Entity("LINE"))) +
         Entities(insert + insert));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("ELLIPSE", 1), Pair("SPLINE", 1)));
  EXPECT_EQ(Tally().polylines, 2U);
}

TEST_F(Tallies, EntitiesOnHiddenLayersAreCounted)
{
  Import(LayerTable(LayerRecord("off", -1, 0)) +
         Entities(Entity("LINE", {{8, "off"}}) + Entity("TEXT", {{8, "off"}}) +
                  Entity("LWPOLYLINE") +
                  Lines({{8, "off"}, {0, "POLYLINE"}, {8, "off"}, {0, "VERTEX"}, {0, "SEQEND"}}) +
                  Entity("INSERT", {{8, "off"}}) + Entity("LINE", {{8, "on"}})));
  EXPECT_EQ(Tally().onHiddenLayers, 5U);
  EXPECT_EQ(Tally().polylines, 1U);
}

TEST_F(Tallies, EntitiesOfThePaperSpaceAreCounted)
{
  const std::string header = Entity("BLOCK", {{2, "*Paper_Space"}, {67, "1"}});
  const std::string content = Entity("LINE") + Entity("LINE", {{67, "1"}}) + Entity("ENDBLK");
  Import(Blocks(header + content) + Entities(Entity("TEXT", {{67, "1"}}) + Entity("POINT")));
  EXPECT_EQ(Tally().inPaperSpace, 3U);
  EXPECT_EQ(Tally().Shapes(), 1U);
}

TEST_F(Tallies, InsertsOfUnknownBlocksAreCounted)
{
  Import(Blocks(Block("b", Entity("LINE"))) +
         Entities(Entity("INSERT", {{2, "B"}}) + Entity("INSERT", {{2, "b"}}) + Entity("INSERT")));
  EXPECT_EQ(Tally().unknownBlocks, 2U);
  EXPECT_EQ(Tally().polylines, 1U);
}

TEST_F(Tallies, InsertsThatTheBudgetCutsAreCounted)
{
  const std::string insert = Entity("INSERT", {{2, "b"}});
  Import(Blocks(Block("b", Entity("LINE"))) + Entities(insert + insert + insert + insert),
         {.copyBudget = 1000});
  EXPECT_EQ(Tally().cutInserts + Tally().polylines, 4U);
  EXPECT_EQ(Tally().polylines, 1U);
}

TEST_F(Tallies, KeywordsAreFewShortAndPrintable)
{
  std::string records;
  for (std::size_t i = 0; i < KeywordCounts::mostKeywords + 5; ++i) {
    records += "0\nK" + std::to_string(i) + "\n";
  }
  ImportEntities(Entity(std::string(200, 'X')) + Entity("\x1B[2J\xE4") + records + "0\nK3\n");
  EXPECT_EQ(Ignored().size(), KeywordCounts::mostKeywords);
  EXPECT_EQ(Tally().ignored.Others(), 7U);
  EXPECT_EQ(Ignored().at("K3"), 2U);
  EXPECT_EQ(Ignored().count(std::string(32, 'X')), 1U);
  EXPECT_EQ(Ignored().count("?[2J?"), 1U);
}

TEST(KeywordCounts, TakeAKeywordWithALetterOfEitherCase)
{
  KeywordCounts counts;
  for (const char* keyword : {"A", "Z", "a", "z", "@", "[", "`", "{", "7", ""}) {
    counts.Count(keyword);
  }
  EXPECT_THAT(counts.ByKeyword(),
              ElementsAre(Pair("A", 1), Pair("Z", 1), Pair("a", 1), Pair("z", 1)));
}

TEST_F(Tallies, ABinaryDrawingIsKnownByItsFirstWords)
{
  EXPECT_EQ(Import(std::string("AutoCAD Binary DXF\r\n\x1A\0SECTION\n", 30)), 0);
  EXPECT_TRUE(Tally().isBinary);
  EXPECT_FALSE(Tally().IsDrawing());
  ImportEntities(Lines({{999, "AutoCAD Binary DXF"}}));
  EXPECT_FALSE(Tally().isBinary);
  EXPECT_EQ(Import(""), -1);
  EXPECT_FALSE(Tally().isBinary);
}

TEST_F(Tallies, AFileWithoutSectionsIsNoDrawing)
{
  EXPECT_EQ(Import("Notes on the INTERSECTION\nof hull and deck\n"), 0);
  EXPECT_FALSE(Tally().IsDrawing());
  EXPECT_EQ(Import("0\nSECTION \n2\nHEADER\n0\nENDSEC\n"), 0);
  EXPECT_TRUE(Tally().IsDrawing());
  EXPECT_EQ(Import("0\nMYSECTION\n2\nENTITIES\n0\nLINE\n"), 0);
  EXPECT_TRUE(Tally().IsDrawing()) << "shapes came out";
}

TEST_F(Tallies, APartThatALineTooLongEndsIsCounted)
{
  const std::string tooLong(300, 'x');
  ImportEntities(Entity("LINE") + Entity("MLINE", {{2, tooLong}}) + Entity("LINE"));
  EXPECT_EQ(Tally().polylines, 1U);
  EXPECT_EQ(Tally().cutParts, 1U);
  Import(Blocks(Block("a", Entity("MLINE", {{2, tooLong}}) + Entity("LINE"))) +
         Entities(Entity("LINE")));
  EXPECT_EQ(Tally().cutParts, 1U);
}

TEST_F(Tallies, ADrawingThatSimplyEndsIsNotCutShort)
{
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHull\n");
  EXPECT_EQ(Tally().cutParts, 0U);
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHull\n0");
  EXPECT_EQ(Tally().cutParts, 0U);
}

}  // namespace
}  // namespace hullwright
