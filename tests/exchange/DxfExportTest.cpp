#include "exchange/DxfExport.h"

#include <limits>
#include <map>
#include <sstream>

#include "base/Bits.h"
#include "base/Numbers.h"
#include "exchange/DesignFixture.h"
#include "support/DxfFixture.h"

namespace hullwright::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr DxfForm r12{DxfVersion::R12};
constexpr DxfForm r2000{DxfVersion::R2000};

class DxfExportTest : public DxfFixture, public DesignFixture {
protected:
  std::string Bytes(const DxfForm& form = r2000) const { return MakeDxf(Gather(), form).bytes; }

  /// Imports what is exported; the shapes that are polylines must be those of the design.
  void ExpectSameLines(const DxfForm& form)
  {
    ASSERT_EQ(Import(Bytes(form)), 0);
    std::size_t at = 0;
    for (const ExportedPolyline& line : Gather().polylines) {
      ExpectSameLine(*line.shape, At<>(at++));
    }
  }

  static void ExpectSameLine(const CShape& line, const CShape& imported)
  {
    ASSERT_EQ(line.vertices.size(), imported.vertices.size());
    for (std::size_t i = 0; i < line.vertices.size(); ++i) {
      for (const auto axis : {&CShapeVertex::x, &CShapeVertex::y, &CShapeVertex::z}) {
        EXPECT_TRUE(SameBits(line.vertices[i].get()->*axis, imported.vertices[i].get()->*axis))
            << "vertex " << i << ": " << imported.vertices[i].get()->*axis;
      }
    }
    EXPECT_EQ(LineColourOf(line), imported.style->lineColour);
    EXPECT_EQ(LineWidthOf(line), imported.style->lineWidth);
  }

  /// How often a group stands in a drawing.
  static std::size_t Count(const std::string& drawing, int code, const std::string& value)
  {
    const std::string group = "\n" + std::to_string(code) + "\n" + value + "\n";
    std::size_t count = 0;
    for (std::size_t at = drawing.find(group); at != std::string::npos;
         at = drawing.find(group, at + 1)) {
      ++count;
    }
    return count;
  }
};

TEST_F(DxfExportTest, TheReaderOfDrawingsGivesTheSameLines)
{
  constexpr double largest = std::numeric_limits<double>::max();
  constexpr double smallest = std::numeric_limits<double>::denorm_min();
  AddLine(design, ViewSide::Top, {{0.1, -0.0, 0}, {1.0 / 3.0, 1e-7, 0}, {-12345.678, 1e21, 0}});
  AddLine(design, ViewSide::Left, {{largest, smallest, 0}, {-largest, -smallest, 0}});
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 0, 0}});     // closed
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {-0.0, 0, 0}});  // not quite
  AddLine(design, ViewSide::Rear, {{0, 0, 0}, {0, 0, 0}});
  AddLine(design, ViewSide::Rear, {{0, 0, 1.5}, {4, 0, 0}, {4, 3, -2}, {0, 0, 1.5}});  // in space
  Style(AddLine(design, ViewSide::Rear, {{0, 0, 0}, {4, 0, 0}}), 0x0000FF, 7.5F);
  Style(AddLine(design, ViewSide::Rear, {{0, 0, 1}, {4, 0, 0}}), 0xFF0000, 0.1F);
  AddLine(design, ViewSide{3}, {{1, 2, 0}, {3, 4, 0}});
  AddAnchor(1, u"LINE\\P\u00E4^J", 1.0, 2.0);
  for (const DxfForm& form : {r12, r2000, DxfForm{.layering = DxfLayering::Kind}}) {
    ExpectSameLines(form);
    EXPECT_EQ(ShapeCount(), 9U + 2U * 4U);
    EXPECT_EQ(Tally().onHiddenLayers + Tally().inPaperSpace, 0U);
  }
}

TEST_F(DxfExportTest, AClosedLineHasTheFlagAndNotItsLastVertex)
{
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 0, 0}});
  EXPECT_THAT(Bytes(), HasSubstr("\n90\n3\n70\n1\n"));
  EXPECT_THAT(Bytes(r12), HasSubstr("\n70\n1\n0\nVERTEX\n"));
  EXPECT_EQ(Count(Bytes(r12), 0, "VERTEX"), 3U);
}

TEST_F(DxfExportTest, ALineInSpaceIsWrittenVertexByVertexAndOpen)
{
  AddLine(design, ViewSide::Top, {{0, 0, 1}, {4, 0, 1}, {4, 3, 1}, {0, 0, 1}});
  const std::string drawing = Bytes();
  EXPECT_THAT(drawing, Not(HasSubstr("LWPOLYLINE")));
  EXPECT_EQ(Count(drawing, 100, "AcDb3dPolylineVertex"), 4U);
  EXPECT_EQ(Count(drawing, 70, "8"), 1U);
}

TEST_F(DxfExportTest, EachSideHasALayerOrAllHaveOne)
{
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  AddLine(design, ViewSide::Left, {{0, 0, 0}, {1, 0, 0}});
  AddLine(design, ViewSide{3}, {{0, 0, 0}, {1, 0, 0}});
  AddAnchor(1, u"Bow", 0.0, 0.0);
  const auto layers = [this](const DxfForm& form) {
    EXPECT_EQ(Import(Bytes(form)), 0);
    std::vector<std::string> names;
    for (const auto& entry : Layers()) names.push_back(entry.first);
    return names;
  };
  for (const DxfVersion version : {DxfVersion::R12, DxfVersion::R2000}) {
    EXPECT_THAT(layers({version, DxfLayering::Side}),
                ElementsAre("0", "anchors", "left", "offsets", "top", "view-03"));
    EXPECT_THAT(layers({version, DxfLayering::Kind}),
                ElementsAre("0", "anchors", "offsets", "polylines"));
  }
}

TEST_F(DxfExportTest, EntitiesAndLayersBeginWithWhatTheyAre)
{
  RemoveOffsets();
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  EXPECT_THAT(Bytes(r12), HasSubstr("\n0\nPOLYLINE\n8\ntop\n62\n"));
  EXPECT_THAT(Bytes(), HasSubstr("\n0\nLWPOLYLINE\n5\n40\n330\n17\n100\nAcDbEntity\n8\ntop\n62\n"));
  EXPECT_THAT(Bytes(),
              HasSubstr("\n2\nLAYER\n5\n1\n330\n0\n100\nAcDbSymbolTable\n70\n2\n0\nLAYER\n5\n41\n"
                        "330\n1\n100\nAcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n2\n0\n"
                        "70\n0\n62\n7\n6\nContinuous\n"));
}

TEST_F(DxfExportTest, AColourIsTheNearestIndexAndBesideItItself)
{
  CShapePolyline& line = AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  EXPECT_THAT(Bytes(), HasSubstr("\n62\n7\n100\nAcDbPolyline\n"));  // black has no other
  Style(line, 0x0102FE, 1.0F);                                      // nearly red
  EXPECT_THAT(Bytes(), HasSubstr("\n62\n1\n420\n16646657\n"));
  EXPECT_THAT(Bytes(r12), HasSubstr("\n62\n1\n66\n1\n"));
  Style(line, 0x010101, 1.0F);  // nearest to the index that would take the colour of a block
  EXPECT_THAT(Bytes(), HasSubstr("\n62\n7\n420\n65793\n"));
}

TEST_F(DxfExportTest, AThinLineHasNoWidth)
{
  CShapePolyline& line = AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  EXPECT_THAT(Bytes(), HasSubstr("\n43\n0.0\n"));
  EXPECT_THAT(Bytes(r12), HasSubstr("\n70\n0\n0\nVERTEX\n"));
  Style(line, 0, 3.0F);
  EXPECT_THAT(Bytes(), HasSubstr("\n43\n1.5\n"));
  EXPECT_THAT(Bytes(r12), HasSubstr("\n70\n0\n40\n1.5\n41\n1.5\n0\nVERTEX\n"));
}

TEST_F(DxfExportTest, OffsetsAndAnchorsArePointsWithTexts)
{
  RemoveOffsets();
  design.offsetGps = std::make_unique<CShapeVertex>(1.25, -2.5, 8.3);
  AddAnchor(12, u"Bow \u00E4", 3.0, 4.0);
  AddAnchor(13, u"", 3.0, 4.0);
  for (const DxfForm& form : {r12, r2000}) {
    ASSERT_EQ(Import(Bytes(form)), 0);
    ASSERT_EQ(ShapeCount(), 6U);
    const CShapeVertex& place = At<CShapePoint>(0).position;
    EXPECT_EQ(place, CShapeVertex(1.25, -2.5, 8.3));
    EXPECT_EQ(At<CShapeText>(1).text, u"GNSS antenna");
    EXPECT_EQ(At<CShapePoint>(2).position, CShapeVertex(3.0, 4.0, 0.0));
    EXPECT_EQ(At<CShapeText>(3).text, u"12 Bow \u00E4");
    EXPECT_EQ(At<CShapeText>(5).text, u"13");
  }
  // A text has the mark of its class twice, before its place and behind its words.
  EXPECT_THAT(Bytes(), HasSubstr("\n100\nAcDbText\n10\n"));
  EXPECT_THAT(Bytes(), HasSubstr("\n1\nGNSS antenna\n100\nAcDbText\n"));
}

TEST_F(DxfExportTest, TheHeaderHasVersionUnitAndExtents)
{
  AddLine(design, ViewSide::Top, {{-20, 2, 5}, {30, -4, -6}});
  EXPECT_THAT(Bytes(), HasSubstr("\n9\n$ACADVER\n1\nAC1015\n"));
  EXPECT_THAT(Bytes(), HasSubstr("\n9\n$INSUNITS\n70\n6\n9\n$MEASUREMENT\n70\n1\n"));
  EXPECT_THAT(Bytes(r12), HasSubstr("\n9\n$ACADVER\n1\nAC1009\n"));
  EXPECT_THAT(Bytes(r12), Not(HasSubstr("$INSUNITS")));
  for (const DxfForm& form : {r12, r2000}) {
    EXPECT_THAT(
        Bytes(form),
        HasSubstr(
            "$EXTMIN\n10\n-20.0\n20\n-4.0\n30\n-6.0\n9\n$EXTMAX\n10\n30.0\n20\n"
            "10.0\n30\n5.0\n9\n$LIMMIN\n10\n-20.0\n20\n-4.0\n9\n$LIMMAX\n10\n30.0\n20\n10.0\n"));
  }
  const auto unit = [this](int code) {
    design.unitCode = UnitCode{code};
    return Bytes();
  };
  EXPECT_THAT(unit(9002), HasSubstr("$INSUNITS\n70\n2\n"));
  EXPECT_THAT(unit(9003), HasSubstr("$INSUNITS\n70\n21\n"));
  EXPECT_THAT(unit(9036), HasSubstr("$INSUNITS\n70\n7\n"));
  EXPECT_THAT(unit(9005), HasSubstr("unit EPSG 9005"));
  EXPECT_THAT(unit(9005), HasSubstr("$INSUNITS\n70\n0\n"));
}

TEST_F(DxfExportTest, TheWindowShowsTheWholeBoxAndTextsCanBeReadInIt)
{
  AddLine(design, ViewSide::Top, {{-20, 2, 5}, {30, -4, -6}});  // with the offsets 50 by 14
  EXPECT_THAT(Bytes(), HasSubstr("\n12\n5.0\n22\n3.0\n"));
  EXPECT_THAT(Bytes(), HasSubstr("\n40\n60.0\n41\n1.34\n"));
  EXPECT_THAT(Bytes(), HasSubstr("\n0\nTABLE\n2\nVPORT\n5\n8\n330\n0\n100\nAcDbSymbolTable\n70\n1\n"
                                 "0\nVPORT\n5\n23\n330\n8\n"));
  for (const DxfForm& form : {r12, r2000}) {
    EXPECT_THAT(Bytes(form), HasSubstr("$PDMODE\n70\n3\n9\n$PDSIZE\n40\n0.5\n"));
    ASSERT_EQ(Import(Bytes(form)), 0);
    EXPECT_EQ(At<CShapeText>(2).height, 0.5);
    EXPECT_THAT(VerticesOf(2), ElementsAre(ElementsAre(10.5, 0.5, 0.0)));
  }
}

TEST_F(DxfExportTest, AnEmptyDesignAndOneOfHugeCoordinatesHaveFiniteNumbers)
{
  RemoveOffsets();
  EXPECT_THAT(Bytes(), HasSubstr("$EXTMIN\n10\n0.0\n"));
  AddAnchor(2, u"Stern", 3.0, 4.0);  // which has no height
  EXPECT_THAT(Bytes(), HasSubstr("$EXTMIN\n10\n3.0\n20\n4.0\n30\n0.0\n"));
  constexpr double largest = std::numeric_limits<double>::max();
  AddLine(design, ViewSide::Top, {{-largest, -largest, 0}, {largest, largest, 0}});
  AddAnchor(1, u"Bow", largest, largest);
  EXPECT_THAT(Bytes(), Not(HasSubstr("\ninf")));
  EXPECT_THAT(Bytes(), Not(HasSubstr("\nnan")));
}

TEST_F(DxfExportTest, EveryHandleIsItsOwnAndBelowTheNextOne)
{
  AddLine(design, ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  AddLine(design, ViewSide::Left, {{0, 0, 1}, {1, 0, 0}});
  const std::string drawing = Bytes();
  std::map<std::string, int> handles;
  std::istringstream lines(drawing);
  std::string code;
  std::string value;
  std::uint32_t highest = 0;
  std::uint32_t seed = 0;
  while (std::getline(lines, code) && std::getline(lines, value)) {
    if (code == "9" && value == "$HANDSEED") {
      std::getline(lines, code);
      std::getline(lines, value);
      seed = ParseUInt32(value, 16);
    } else if (code == "5" || code == "105") {
      EXPECT_EQ(++handles[value], 1) << value;
      highest = std::max(highest, ParseUInt32(value, 16));
    }
  }
  EXPECT_EQ(seed, highest + 1);
  EXPECT_GT(handles.size(), 40U);
}

}  // namespace
}  // namespace hullwright::test
