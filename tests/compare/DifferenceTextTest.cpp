#include "compare/DifferenceText.h"

#include "support/DesignPair.h"

namespace hullwright::test {
namespace {

std::string SideName(ViewSide side) { return side == ViewSide::Top ? "top" : "other"; }

class DifferenceText : public DesignPair {
protected:
  std::string Text() const
  {
    const DifferenceNames names = {{"metre (EPSG 9001)", "foot (EPSG 9002)"}, SideName};
    return DescribeDifferences(Compare(), names, options.tolerance);
  }
};

TEST_F(DifferenceText, IsEmptyWithoutDifferences) { EXPECT_EQ(Text(), ""); }

TEST_F(DifferenceText, NamesOffsetsAndAnchorsWithOldAndNewNumbers)
{
  current.offsetGps->y = 0.25;
  AddAnchor(former, 1, u"Bow", 1.0, 2.0);
  AddAnchor(former, 2, u"Stern", 1.0, 2.0);
  AddAnchor(current, 1, u"Prow\n", 4.0, 6.0);
  AddAnchor(current, 3, u"Side", 1.0, 2.0);
  EXPECT_EQ(Text(),
            "  GNSS antenna  10.000, 0.000, 0.000 -> 10.000, 0.250, 0.000, moved by 0.250\n"
            "  anchor 1 \"Prow\\u000A\"  was anchor 1 \"Bow\"; 1.000, 2.000 -> 4.000, 6.000, "
            "moved by 5.000\n"
            "  anchor 3 \"Side\"  added at 1.000, 2.000\n"
            "  anchor 2 \"Stern\"  removed from 1.000, 2.000\n");
}

TEST_F(DifferenceText, OfAnotherUnitSaysWhatWasDoneToTheNumbers)
{
  current.unitCode = UnitCode{9002};
  EXPECT_EQ(
      Text(),
      "  unit          metre (EPSG 9001) -> foot (EPSG 9002); all numbers are the same, so that "
      "every length changed\n");
  current.offsetGps->x = 10.0 / 0.3048;
  current.offsetTransducer->x = -10.0 / 0.3048;
  current.offsetPivot->y = 10.0 / 0.3048;
  EXPECT_EQ(Text(),
            "  unit          metre (EPSG 9001) -> foot (EPSG 9002); the former numbers are shown "
            "converted\n");
}

TEST_F(DifferenceText, ListsVerticesThatChanged)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
  EXPECT_EQ(
      Text(),
      "  top           polyline 1 changed: 1 vertex moved, 1 vertex added, 4 -> 5\n"
      "                  vertex 2: 1.000, 0.000, 0.000 -> 1.000, 1.000, 0.000, moved by 1.000\n"
      "                  vertex 5: added at 4.000, 0.000, 0.000\n");
}

TEST_F(DifferenceText, ListsVerticesThatWereRemovedByTheirFormerNumbers)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {3, 0, 0}});
  EXPECT_EQ(Text(),
            "  top           polyline 1 changed: 1 vertex removed, 4 -> 3\n"
            "                  vertex 3 of before: removed from 2.000, 0.000, 0.000\n");
}

TEST_F(DifferenceText, ShowsTheFirstDozenVerticesOnly)
{
  CShapePolyline& formerLine = AddFormer(ViewSide::Top, {{0, 0, 0}});
  CShapePolyline& currentLine = AddCurrent(ViewSide::Top, {{0, 0, 0}});
  for (int i = 1; i < 40; ++i) {
    formerLine.AddVertex(i, 0.0, 0.0);
    currentLine.AddVertex(i, i < 20 ? 0.0 : 1.0, 0.0);
  }
  EXPECT_NE(Text().find("polyline 1 changed: 20 vertices moved of 40\n"), std::string::npos);
  EXPECT_NE(Text().find("vertex 32: "), std::string::npos);
  EXPECT_EQ(Text().find("vertex 33: "), std::string::npos);
  EXPECT_NE(Text().find("\n                  and 8 more\n"), std::string::npos);
}

TEST_F(DifferenceText, PutsWhatMovedTogetherOnOneLine)
{
  for (int i = 0; i < 6; ++i) {
    const double x = i * i;
    AddFormer(ViewSide::Top, {{x, 0, 0}, {x + i + 1.0, 2, 0}});
    AddCurrent(ViewSide::Top,
               {{x + 3.0, i == 2 ? 9.0 : 4.0, 0}, {x + i + 4.0, i == 2 ? 11.0 : 6.0, 0}});
  }
  EXPECT_EQ(Text(),
            "  top           polylines 1, 2, 4-6 moved by 5.000 (dX +3.000, dY +4.000, dZ 0.000)\n"
            "  top           polyline 3 moved by 9.487 (dX +3.000, dY +9.000, dZ 0.000)\n");
}

TEST_F(DifferenceText, GivesWaysTheirSignAndNoneToWhatIsShownAsZero)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 2, 0}});
  AddCurrent(ViewSide::Top, {{-0.0004, -0.25, 0.0004}, {0.9996, 1.75, 0.0004}});
  AddFormer(ViewSide::Bottom, {{0, 0, 0}, {3, 0, 0}});
  AddCurrent(ViewSide::Bottom, {{0.25, 0, 0}, {3.25, 0, 0}});
  EXPECT_EQ(Text(),
            "  top           polyline 1 moved by 0.250 (dX 0.000, dY -0.250, dZ 0.000)\n"
            "  other         polyline 1 moved by 0.250 (dX +0.250, dY 0.000, dZ 0.000)\n");
}

TEST_F(DifferenceText, OfNumbersAsTheyStandSaysSo)
{
  Differences differences;
  differences.unit = {{}, false, false};
  const DifferenceNames names = {{"foot ($INSUNITS 2)", "metre (EPSG 9001)"}, SideName};
  EXPECT_EQ(DescribeDifferences(differences, names, 0.001),
            "  unit          foot ($INSUNITS 2) -> metre (EPSG 9001); the numbers are compared as "
            "they stand\n");
}

TEST_F(DifferenceText, SaysWhatWasAddedRemovedTurnedAndColoured)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {1, 2, 0}});
  AddCurrent(ViewSide::Top, {{1, 2, 0}, {1, 0, 0}, {0, 0, 0}});
  AddFormer(ViewSide::Top, {{20, 0, 0}, {21, 0, 0}});
  AddCurrent(ViewSide::Top, {});
  AddToBoth(ViewSide::Top, {{50, 50, 0}});
  current.shapeGroups[0]->shapes[2]->style = std::make_unique<ShapeStyle>();
  current.shapeGroups[0]->shapes[2]->style->lineColour = 0x0000FF;
  current.shapeGroups[0]->shapes[2]->style->lineWidth = 2.5F;
  EXPECT_EQ(
      Text(),
      "  top           polyline 1 changed, the same vertices from the last to the first\n"
      "  top           polyline 2 added, without vertices\n"
      "  top           polyline 3 changed, colour #000000 -> #FF0000, line width 1 -> 2.5\n"
      "  top           polyline 2 removed: 2 vertices, from 20.000, 0.000 to 21.000, 0.000\n");
}

TEST(DifferenceNumbers, HaveTheDecimalsThatTheToleranceNeeds)
{
  EXPECT_EQ(FormatWithin(1.23456789, 0.5), "1.235");
  EXPECT_EQ(FormatWithin(1.23456789, 0.001), "1.235");
  EXPECT_EQ(FormatWithin(1.23456789, 0.00002), "1.23457");
  EXPECT_EQ(FormatWithin(1.23456789, 0.0), "1.23456789");
}

}  // namespace
}  // namespace hullwright::test
