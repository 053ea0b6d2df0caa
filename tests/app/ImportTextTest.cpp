#include "app/ImportText.h"

#include <gtest/gtest.h>

namespace hullwright {
namespace {

TEST(ImportText, ReportsShapesAndWhatWasIgnoredTheMostFirst)
{
  ImportTally tally;
  tally.polylines = 355;
  tally.texts = 12;
  EXPECT_EQ(DescribeImport(tally), u"355 polylines, 12 texts");
  tally.ignored = KeywordCounts({{"HATCH", 3}, {"RAY", 1}, {"SPLINE", 985}, {"XLINE", 1}});
  EXPECT_EQ(DescribeImport(tally),
            u"355 polylines, 12 texts; ignored: 985 SPLINE, 3 HATCH, 1 RAY, 1 XLINE");
  tally.ignored = KeywordCounts({{"HATCH", 3}, {"RAY", 1}, {"XLINE", 1}}, 7);
  EXPECT_EQ(DescribePassedOver(tally), u"ignored: 3 HATCH, 1 RAY, 1 XLINE, 7 others");
}

TEST(ImportText, OneOfAKindIsNotMany)
{
  ImportTally tally;
  tally.polylines = tally.points = tally.areas = tally.texts = 1;
  EXPECT_EQ(DescribeShapes(tally), u"1 polyline, 1 point, 1 area, 1 text");
  tally.polylines = tally.points = tally.areas = tally.texts = 2;
  EXPECT_EQ(DescribeShapes(tally), u"2 polylines, 2 points, 2 areas, 2 texts");
  tally = {};
  tally.onHiddenLayers = tally.unknownBlocks = tally.cutInserts = 1;
  tally.withoutMemory = tally.beyondLimit = tally.cutParts = 1;
  EXPECT_EQ(DescribePassedOver(tally),
            u"left out: 1 on a hidden layer, 1 insert of an unknown block, "
            u"1 insert for want of memory, 1 part for want of memory, "
            u"1 record beyond the limit of 25 million vertices, "
            u"1 part behind a line that is too long");
}

TEST(ImportText, ReportsWhatReadersLeftOut)
{
  ImportTally tally;
  tally.hasSections = true;
  tally.ignored = KeywordCounts({{"SPLINE", 2}});
  tally.onHiddenLayers = 2;
  tally.inPaperSpace = 3;
  tally.unknownBlocks = 4;
  tally.cutInserts = 5;
  tally.withoutMemory = 6;
  tally.beyondLimit = 7;
  tally.cutParts = 8;
  EXPECT_EQ(DescribeImport(tally),
            u"nothing that can be drawn; ignored: 2 SPLINE; left out: 2 on hidden layers, "
            u"3 in paper space, 4 inserts of unknown blocks, 5 inserts for want of memory, 6 parts "
            u"for want of memory, "
            u"7 records beyond the limit of 25 million vertices, "
            u"8 parts behind lines that are too long");
}

TEST(ImportText, NamesFilesThatAreNoDrawings)
{
  ImportTally tally;
  EXPECT_EQ(DescribeImport(tally), u"not a drawing: it has no SECTION");
  tally.isBinary = true;
  EXPECT_EQ(DescribeImport(tally), u"a binary drawing; only drawings in text form can be imported");
  tally = {};
  tally.hasSections = true;
  EXPECT_EQ(DescribeImport(tally), u"nothing that can be drawn");
  EXPECT_EQ(DescribePassedOver(tally), u"");
}

}  // namespace
}  // namespace hullwright
