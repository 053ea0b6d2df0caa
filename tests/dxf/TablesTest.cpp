#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::Contains;
using testing::HasSubstr;

constexpr std::uint32_t red = 0x0000FF;
constexpr std::uint32_t green = 0x00FF00;

std::string LineOn(const std::string& layer, int colour = 256)
{
  return Entity("LINE", {{8, layer}, {62, std::to_string(colour)}, {11, "1"}});
}

class Tables : public DxfFixture {};

TEST_F(Tables, ALayerKeepsNameColourAndFlags)
{
  Import(LayerTable(LayerRecord("Hull", 3, 5) + LayerRecord("hull", -7, 0)));
  ASSERT_EQ(Layers().size(), 2U);
  const CFileDxfLayer& frozen = Layers().at("Hull");
  EXPECT_EQ(frozen.colour, ColourIndex{3});
  EXPECT_TRUE(frozen.frozen);
  EXPECT_FALSE(frozen.off);
  const CFileDxfLayer& off = Layers().at("hull");
  EXPECT_EQ(off.colour, ColourIndex{-7});
  EXPECT_TRUE(off.off);
  EXPECT_FALSE(off.frozen);
  EXPECT_THAT(Records(), Contains(HasSubstr("found 2 DXF layers.")));
}

TEST_F(Tables, EntitiesOnALayerThatIsOffOrFrozenAreLeftOut)
{
  const std::string table = LayerTable(LayerRecord("off", -7, 0) + LayerRecord("frozen", 7, 1) +
                                       LayerRecord("locked", 1, 4) + LayerRecord("plain", 1, 0) +
                                       LayerRecord("byBlock", 0, 0));
  for (const auto& [layerName, shapes] : {std::pair{"off", 0U},
                                          {"frozen", 0U},
                                          {"locked", 1U},
                                          {"plain", 1U},
                                          {"byBlock", 1U},
                                          {"unknown", 1U}}) {
    Import(table + Entities(LineOn(layerName)));
    EXPECT_EQ(ShapeCount(), shapes) << layerName;
  }
}

TEST_F(Tables, ALayerOfColourZeroIsNotOff)
{
  Import(LayerTable(LayerRecord("A", 0, 0)) + Entities(LineOn("A")));
  EXPECT_FALSE(Layers().at("A").off);
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Tables, TheFirstLayerOfANameStays)
{
  Import(LayerTable(LayerRecord("A", 1, 0) + LayerRecord("A", 3, 1)) + Entities(LineOn("A")));
  EXPECT_EQ(ColourOf(0), red);
  EXPECT_THAT(Records(), Contains(HasSubstr("found 1 DXF layers.")));
}

TEST_F(Tables, NamesDifferByCaseAndByABlank)
{
  Import(LayerTable(LayerRecord("0", -1, 0)) + Entities(LineOn("0 ") + LineOn("0")));
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(Tables, TheHeaderOfTheTableIsNoLayerButShowsThatThereIsATable)
{
  Import(LayerTable("") + Entities(LineOn("A", 3) + LineOn("A")));
  EXPECT_TRUE(Layers().empty());
  EXPECT_EQ(ColourOf(1), 0U);
}

TEST_F(Tables, WithoutATableTheFirstEntityMakesItsLayer)
{
  ImportEntities(LineOn("A", 3) + LineOn("A") + LineOn("A", 1));
  EXPECT_EQ(ColourOf(0), green);
  EXPECT_EQ(ColourOf(1), green);
  EXPECT_EQ(ColourOf(2), red);
  EXPECT_EQ(Layers().at("A").colour, ColourIndex{3});
}

TEST_F(Tables, AnEntityByLayerMakesABlackLayer)
{
  ImportEntities(LineOn("A") + LineOn("A", 1) + LineOn("A"));
  EXPECT_EQ(Layers().at("A").colour, ColourIndex::ByLayer);
  EXPECT_EQ(ColourOf(2), 0U);
}

TEST_F(Tables, AnImplicitLayerIsNeverHidden)
{
  ImportEntities(LineOn("A", -3) + LineOn("A"));
  EXPECT_EQ(ShapeCount(), 2U);
  EXPECT_FALSE(Layers().at("A").off);
  EXPECT_EQ(ColourOf(0), 0U);
}

TEST_F(Tables, EntitiesBeforeTheTableSeeNoLayers)
{
  Import(Entities(LineOn("A", 1)) + LayerTable(LayerRecord("A", -3, 0)) + Entities(LineOn("A")));
  // The entity made the layer, so the record of the table comes too late.
  EXPECT_EQ(ShapeCount(), 2U);
  EXPECT_EQ(ColourOf(1), red);
}

TEST_F(Tables, AnyLineThatBeginsWithTheWordStartsARecord)
{
  Import(Section("TABLES", "LAYERED\n2\nA\n62\n1\n0\n xLAYER\n2\nB\n") + Entities(LineOn("A")));
  EXPECT_EQ(Layers().size(), 1U);
  EXPECT_EQ(ColourOf(0), red);
}

TEST_F(Tables, ALineMayStartARecordAndEndTheSection)
{
  Import("0\nSECTION\n2\nTABLES\nLAYER ENDSEC\n2\nA\n62\n1\n0\n" + Entities(LineOn("A")));
  EXPECT_EQ(ColourOf(0), red);
}

TEST_F(Tables, ValuesOfALayerHaveTheShortLimit)
{
  const std::string name(255, 'n');
  Import(LayerTable(LayerRecord(name, 1, 0)));
  EXPECT_TRUE(Layers().contains(name));
  // One byte more: the value counts as it stands, and its empty rest ends the record.
  Import(LayerTable(LayerRecord(name + "n", 1, 0)));
  EXPECT_EQ(Layers().at(name + "n").colour, ColourIndex{0});
}

TEST_F(Tables, OtherGroupsOfALayerPlayNoPart)
{
  Import(LayerTable(Entity(
      "LAYER",
      {{5, "1F"}, {102, "{A"}, {2, "A"}, {290, "0"}, {62, "1"}, {6, "CONTINUOUS"}, {370, "-3"}})));
  EXPECT_EQ(Layers().at("A").colour, ColourIndex{1});
}

// ---------------------------------------------------------------------------------------------------
// Blocks

class BlockTable : public DxfFixture {};

TEST_F(BlockTable, ABlockKeepsItsHeaderAndItsShapes)
{
  Import(Blocks(Entity("BLOCK", {{5, "2A"},
                                 {8, "Deck"},
                                 {2, "Bollard"},
                                 {70, "0"},
                                 {10, "4"},
                                 {20, "5"},
                                 {30, "6"},
                                 {62, "3"}}) +
                LineOn("A") + LineOn("B") + Entity("ENDBLK")));
  const CFileDxfBlock& block = BlockOf("Bollard");
  EXPECT_EQ(block.name, "Bollard");
  EXPECT_EQ(block.handle, "2A");
  EXPECT_EQ(block.layerName, "Deck");
  EXPECT_EQ(block.baseX, 4.0);
  EXPECT_EQ(block.baseY, 5.0);
  EXPECT_EQ(block.colour, ColourIndex{3});
  EXPECT_EQ(block.shapes.size(), 2U);
  EXPECT_EQ(ShapeCount(), 0U);
}

TEST_F(BlockTable, TheFirstBlockOfANameStays)
{
  Import(Blocks(Block("B", LineOn("A")) + Block("B", LineOn("A") + LineOn("A"))));
  EXPECT_EQ(BlockOf("B").shapes.size(), 1U);
  EXPECT_THAT(Records(), Contains(HasSubstr("cached 1 blocks.")));
}

TEST_F(BlockTable, PaperSpaceIsNotKeptButModelSpaceAndTheNamelessAre)
{
  Import(Blocks(Entity("BLOCK", {{67, "1"}, {2, "*Paper_Space"}}) + Entity("ENDBLK") +
                Entity("BLOCK", {{67, "3"}, {2, "*Model_Space"}}) + Entity("ENDBLK") +
                Entity("BLOCK", {{2, "*U1"}}) + Entity("ENDBLK") + Entity("BLOCK", {{70, "1"}}) +
                Entity("ENDBLK")));
  EXPECT_EQ(file->Drawing().blocks.size(), 3U);
  EXPECT_TRUE(file->Drawing().blocks.contains(""));
  EXPECT_FALSE(file->Drawing().blocks.contains("*Paper_Space"));
  EXPECT_THAT(Records(), Contains(HasSubstr("cached 3 blocks.")));
}

/// Whether a keyword starts a reader inside a block: its pair of one blind group swallows the line
/// "LINE" that follows. A line that comes of it nevertheless lacks the handle in front.
struct KeywordCase {
  const char* word;
  bool inBlocks;
};

std::ostream& operator<<(std::ostream& out, const KeywordCase& row) { return out << row.word; }

class EachKeyword : public DxfFixture, public testing::WithParamInterface<KeywordCase> {
protected:
  static std::string Trap() { return Entity(GetParam().word, {{5, "1"}, {1000, "LINE"}}); }

  static bool IsTrapped(const CShape& shape)
  {
    return shape.type == ShapeType::Polyline && shape.vertices.size() == 2 && shape.tag == 0;
  }
};

TEST_P(EachKeyword, OfTheEntitiesKeepsItsPairsTogether)
{
  ImportEntities(Trap());
  for (const auto& shape : layer->shapes->shapes) EXPECT_FALSE(IsTrapped(*shape));
}

TEST_P(EachKeyword, InABlockIsKnownOrWalkedLineByLine)
{
  Import(Blocks(Block("B", Trap())));
  const auto& shapes = BlockOf("B").shapes;
  EXPECT_EQ(!shapes.empty() && IsTrapped(*shapes.back()), !GetParam().inBlocks);
}

INSTANTIATE_TEST_SUITE_P(
    All, EachKeyword,
    testing::Values(
        KeywordCase{"VERTEX", true}, KeywordCase{"SPLINE", false}, KeywordCase{"LWPOLYLINE", true},
        KeywordCase{"POLYLINE", true}, KeywordCase{"MTEXT", true}, KeywordCase{"ELLIPSE", false},
        KeywordCase{"TEXT", true}, KeywordCase{"SOLID", true}, KeywordCase{"POINT", true},
        KeywordCase{"LINE", true}, KeywordCase{"ARC", true}, KeywordCase{"CIRCLE", true},
        KeywordCase{"SEQEND", true}, KeywordCase{"HATCH", true}, KeywordCase{"INSERT", true},
        KeywordCase{"ATTRIB", true}, KeywordCase{"ATTDEF", true}, KeywordCase{"3DFACE", true},
        KeywordCase{"VIEWPORT", true}, KeywordCase{"LEADER", true}, KeywordCase{"WIPEOUT", false},
        KeywordCase{"MULTILEADER", false}, KeywordCase{"DIMENSION", true},
        KeywordCase{"ARC_DIMENSION", false}, KeywordCase{"OLE2FRAME", false},
        KeywordCase{"IMAGE", false}));

TEST_F(BlockTable, AnEllipseInABlockIsLost)
{
  const std::string ellipse = Entity("ELLIPSE", {{11, "5"}, {40, "1"}, {42, "6.283185307179586"}});
  Import(Blocks(Block("B", ellipse)) + Entities(ellipse));
  EXPECT_TRUE(BlockOf("B").shapes.empty());
  EXPECT_EQ(ShapeCount(), 1U);
}

TEST_F(BlockTable, AnyLineWithTheWordEndsABlock)
{
  Import(Blocks(Entity("BLOCK", {{2, "B"}}) + LineOn("A") + "0\nxENDBLKx\n" + LineOn("A")));
  EXPECT_EQ(BlockOf("B").shapes.size(), 1U);
}

TEST_F(BlockTable, TheEndOfASectionDoesNotEndABlock)
{
  Import(Blocks(Block("B", LineOn("A") + "0\nENDSEC\n" + LineOn("A"))));
  EXPECT_EQ(BlockOf("B").shapes.size(), 2U);
}

TEST_F(BlockTable, ItsHeaderReadsApplicationDataAsPairs)
{
  Import(Blocks(Entity("BLOCK", {{2, "B"}, {102, "{X"}, {2, "C"}, {102, "}"}}) + Entity("ENDBLK")));
  EXPECT_TRUE(file->Drawing().blocks.contains("C"));
}

TEST_F(BlockTable, AnyLineThatBeginsWithTheWordStartsABlock)
{
  Import(Section("BLOCKS", "BLOCK_X\n2\nB\n0\nENDBLK\n"));
  EXPECT_TRUE(file->Drawing().blocks.contains("B"));
}

TEST_F(BlockTable, ABlockThatTheTextEndsInIsKept)
{
  Import("0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n" + LineOn("A"));
  EXPECT_EQ(BlockOf("B").shapes.size(), 1U);
  EXPECT_THAT(Records(), Contains(HasSubstr("cached 1 blocks.")));
}

TEST_F(BlockTable, ABlockOnAFrozenLayerStillHasItsShapes)
{
  Import(LayerTable(LayerRecord("frozen", 1, 1)) +
         Blocks(Entity("BLOCK", {{8, "frozen"}, {2, "B"}}) + LineOn("A") + LineOn("frozen") +
                Entity("ENDBLK")));
  EXPECT_EQ(BlockOf("B").shapes.size(), 1U);
}

TEST_F(BlockTable, NothingIsLeftForTheNextImport)
{
  Import(LayerTable(LayerRecord("A", 1, 0)) + Blocks(Block("B", LineOn("A"))));
  ImportEntities(LineOn("A") + Entity("INSERT", {{2, "B"}}));
  EXPECT_EQ(ShapeCount(), 1U);
  EXPECT_EQ(ColourOf(0), 0U);
}

}  // namespace
}  // namespace hullwright
