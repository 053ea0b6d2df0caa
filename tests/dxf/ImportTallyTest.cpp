#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class Tally : public DxfFixture {
protected:
  const auto& Ignored() const { return file->tally.ignored; }
};

TEST_F(Tally, ShapesAreCountedByKind)
{
  ImportEntities(Lines({{0, "LINE"},
                        {0, "CIRCLE"},
                        {0, "LWPOLYLINE"},
                        {0, "POINT"},
                        {0, "SOLID"},
                        {0, "SOLID"},
                        {0, "TEXT"}}));
  EXPECT_EQ(file->tally.polylines, 3U);
  EXPECT_EQ(file->tally.points, 1U);
  EXPECT_EQ(file->tally.areas, 2U);
  EXPECT_EQ(file->tally.texts, 1U);
  EXPECT_EQ(file->tally.Shapes(), 7U);
  EXPECT_THAT(Ignored(), IsEmpty());
}

TEST_F(Tally, SkippedAndUnknownEntitiesAreCounted)
{
  ImportEntities(Lines({{0, "SPLINE"}, {8, "A"}, {70, "0"}, {0, "RAY"}, {5, "1F"}, {70, "0"}}) +
                 Lines({{10, "0"}, {20, "0"}, {0, "RAY"}, {0, "LINE"}, {0, "HATCH"}}) +
                 Lines({{2, "SOLID"}, {0, "SPLINE"}, {0, "3DSOLID"}, {1, "0"}, {310, "00"}}));
  EXPECT_THAT(Ignored(),
              ElementsAre(Pair("3DSOLID", 1), Pair("HATCH", 1), Pair("RAY", 2), Pair("SPLINE", 2)));
  EXPECT_EQ(file->tally.Shapes(), 1U);
}

TEST_F(Tally, AValueThatReadsLikeAKeywordIsNone)
{
  // In an entity without a reader such a value starts one, but only its own keyword was ignored.
  ImportEntities(Lines({{0, "RAY"}, {8, "HATCH"}, {10, "1"}, {0, "RAY"}, {8, "RAY"}, {0, "RAY"}}));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("RAY", 3)));
}

TEST_F(Tally, ALineBehindWhatOnlyReadsAsZeroIsNoKeyword)
{
  // The reader of the line takes the word for a group 0; so the count behind it is not sure.
  ImportEntities("0\nLINE\nword\nRAY\n8\nA\n   0\nRAY\n");
  EXPECT_THAT(Ignored(), ElementsAre(Pair("RAY", 1)));
}

TEST_F(Tally, BlanksAroundCodesAndKeywordsDoNotCount)
{
  ImportEntities("  0\nRAY\n 0 \nRAY \n");
  EXPECT_THAT(Ignored(), ElementsAre(Pair("RAY", 2)));
}

TEST_F(Tally, TheFirstCodeOfASectionIsNoKeyword)
{
  // The section before ends behind a group 0, and this one begins with a word.
  ImportEntities("RAY\n0\nLINE\n");
  Import(Entities("0\nRAY\n0\n") + Entities("RAY\n0\nLINE\n"));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("RAY", 1)));
}

TEST_F(Tally, TheContentOfABlockCountsOnce)
{
  const std::string insert = Lines({{0, "INSERT"}, {2, "b"}});
  Import(Blocks(Block("b", Lines({{0, "ELLIPSE"}, {40, "1"}, {0, "SPLINE"}, {0, "LINE"}}))) +
         Entities(insert + insert));
  EXPECT_THAT(Ignored(), ElementsAre(Pair("ELLIPSE", 1), Pair("SPLINE", 1)));
  EXPECT_EQ(file->tally.polylines, 2U);
}

TEST_F(Tally, EntitiesOnHiddenLayersAreCounted)
{
  Import(LayerTable(LayerRecord("off", -1, 0)) +
         Entities(Lines({{0, "LINE"}, {8, "off"}, {0, "TEXT"}, {8, "off"}, {0, "LWPOLYLINE"}}) +
                  Lines({{8, "off"}, {0, "POLYLINE"}, {8, "off"}, {0, "VERTEX"}, {0, "SEQEND"}}) +
                  Lines({{0, "INSERT"}, {8, "off"}, {0, "LINE"}, {8, "on"}})));
  EXPECT_EQ(file->tally.onHiddenLayers, 5U);
  EXPECT_EQ(file->tally.polylines, 1U);
}

TEST_F(Tally, EntitiesOfThePaperSpaceAreCounted)
{
  const std::string header = Lines({{0, "BLOCK"}, {2, "*Paper_Space"}, {67, "1"}});
  const std::string content = Lines({{0, "LINE"}, {0, "LINE"}, {67, "1"}, {0, "ENDBLK"}});
  Import(Blocks(header + content) + Entities(Lines({{0, "TEXT"}, {67, "1"}, {0, "POINT"}})));
  EXPECT_EQ(file->tally.inPaperSpace, 3U);
  EXPECT_EQ(file->tally.Shapes(), 1U);
}

TEST_F(Tally, InsertsOfUnknownBlocksAreCounted)
{
  Import(Blocks(Block("b", Lines({{0, "LINE"}}))) +
         Entities(Lines({{0, "INSERT"}, {2, "B"}, {0, "INSERT"}, {2, "b"}, {0, "INSERT"}})));
  EXPECT_EQ(file->tally.unknownBlocks, 2U);
  EXPECT_EQ(file->tally.polylines, 1U);
}

TEST_F(Tally, InsertsThatTheBudgetCutsAreCounted)
{
  layer = std::make_unique<CLayer>();
  file = std::make_unique<CFileDxf>(&window, log);
  file->copyBudget = 1000;
  const std::string insert = Lines({{0, "INSERT"}, {2, "b"}});
  const std::string text =
      Blocks(Block("b", Lines({{0, "LINE"}}))) + Entities(insert + insert + insert + insert);
  EXPECT_EQ(file->Import(folder.Write("drawing.dxf", text), layer.get()), 0);
  EXPECT_EQ(file->tally.cutInserts + file->tally.polylines, 4U);
  EXPECT_EQ(file->tally.polylines, 1U);
}

TEST_F(Tally, KeywordsAreFewShortAndPrintable)
{
  std::string records;
  for (std::size_t i = 0; i < ImportTally::mostKeywords + 5; ++i) {
    records += "0\nK" + std::to_string(i) + "\n";
  }
  ImportEntities(Lines({{0, std::string(200, 'X')}, {0, "\x1B[2J\xE4"}}) + records + "0\nK3\n");
  EXPECT_EQ(Ignored().size(), ImportTally::mostKeywords);
  EXPECT_EQ(file->tally.ignoredOthers, 7U);
  EXPECT_EQ(Ignored().at("K3"), 2U);
  EXPECT_EQ(Ignored().count(std::string(ImportTally::longestKeyword, 'X')), 1U);
  EXPECT_EQ(Ignored().count("?[2J?"), 1U);
}

TEST_F(Tally, ABinaryDrawingIsKnownByItsFirstWords)
{
  EXPECT_EQ(Import(std::string("AutoCAD Binary DXF\r\n\x1A\0SECTION\n", 30)), 0);
  EXPECT_TRUE(file->tally.isBinary);
  EXPECT_FALSE(file->tally.IsDrawing());
  ImportEntities(Lines({{999, "AutoCAD Binary DXF"}}));
  EXPECT_FALSE(file->tally.isBinary);
}

TEST_F(Tally, AFileWithoutSectionsIsNoDrawing)
{
  EXPECT_EQ(Import("Notes on the INTERSECTION\nof hull and deck\n"), 0);
  EXPECT_FALSE(file->tally.IsDrawing());
  EXPECT_EQ(Import("0\nSECTION \n2\nHEADER\n0\nENDSEC\n"), 0);
  EXPECT_TRUE(file->tally.IsDrawing());
  EXPECT_EQ(Import("0\nMYSECTION\n2\nENTITIES\n0\nLINE\n"), 0);
  EXPECT_TRUE(file->tally.IsDrawing()) << "shapes came out";
}

TEST_F(Tally, APartThatALineTooLongEndsIsCounted)
{
  const std::string tooLong(300, 'x');
  ImportEntities(Lines({{0, "LINE"}, {0, "MLINE"}, {2, tooLong}, {0, "LINE"}}));
  EXPECT_EQ(file->tally.polylines, 1U);
  EXPECT_EQ(file->tally.cutParts, 1U);
  Import(Blocks(Block("a", Lines({{0, "MLINE"}, {2, tooLong}, {0, "LINE"}}))) +
         Entities(Lines({{0, "LINE"}})));
  EXPECT_EQ(file->tally.cutParts, 1U);
}

TEST_F(Tally, ADrawingThatSimplyEndsIsNotCutShort)
{
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHull\n");
  EXPECT_EQ(file->tally.cutParts, 0U);
  Import("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nHull\n0");
  EXPECT_EQ(file->tally.cutParts, 0U);
}

}  // namespace
}  // namespace hullwright
