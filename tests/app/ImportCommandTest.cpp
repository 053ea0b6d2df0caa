#include <gmock/gmock.h>

#include <filesystem>

#include "app/ImportText.h"
#include "model/ShapeText.h"
#include "resources/CommandIds.h"
#include "support/CommandFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ImportCommand : public test::CommandFixture {
protected:
  ImportCommand()
  {
    std::filesystem::create_directories(dataFolder.Path() / "Sondaris" / "Tracing");
    fileDialogs.answer = folder.Write("hull.dxf",
                                      "0\nSECTION\n2\nENTITIES\n"
                                      "0\nLINE\n8\nHull\n10\n1\n20\n2\n11\n3\n21\n4\n"
                                      "0\nTEXT\n1\nWinch\n40\n2\n0\nENDSEC\n0\nEOF\n");
  }

  const OwnedArray<CShape>& ShapesOf(std::size_t group) const
  {
    return app.shapeGroups.at(group)->shapes;
  }

  std::string Log(const char* category) const
  {
    return dataFolder.Read(std::string("Sondaris/Tracing/Trace_") + category + ".txt");
  }

  test::TempFolder folder;
};

TEST_F(ImportCommand, AsksForADrawingByItsExtension)
{
  Run(CommandId::ImportDxf);
  EXPECT_THAT(fileDialogs.asked,
              ElementsAre(testing::Pair(u"dxf", u"AutoCad DXF Files (*.dxf)|*.dxf||")));
}

TEST_F(ImportCommand, WithoutASideInViewMakesAGroupForNone)
{
  app.activeView = ViewSide::None;
  Run(CommandId::ImportDxf);
  Run(CommandId::ImportDxf);
  ASSERT_EQ(app.shapeGroups.size(), 1U);
  EXPECT_EQ(app.shapeGroups[0]->viewCode, ViewSide::None);
  EXPECT_EQ(ShapesOf(0).size(), 4U);
}

TEST_F(ImportCommand, GivenUpDoesNothing)
{
  fileDialogs.answer.reset();
  Run(CommandId::ImportDxf);
  EXPECT_THAT(notified.list, IsEmpty());
  EXPECT_THAT(app.shapeGroups, IsEmpty());
}

TEST_F(ImportCommand, MakesTheGroupOfTheSideInViewAndNotifiesAll)
{
  app.activeView = ViewSide::Left;
  Run(CommandId::ImportDxf);
  ASSERT_EQ(app.shapeGroups.size(), 1U);
  EXPECT_EQ(app.shapeGroups[0]->viewCode, ViewSide::Left);
  ASSERT_EQ(ShapesOf(0).size(), 2U);
  EXPECT_EQ(ShapesOf(0)[0]->vertices[1]->x, 3.0);
  EXPECT_EQ(ShapesOf(0)[0]->attributes->items[0]->value, u"Hull");
  EXPECT_EQ(dynamic_cast<const CShapeText&>(*ShapesOf(0)[1]).text, u"Winch");
  EXPECT_EQ(notified.list.front(), "start");
  const std::vector<std::string> last(notified.list.end() - 4, notified.list.end());
  EXPECT_THAT(last, ElementsAre("end", "repaint", "tree", "modified"));
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ImportCommand, AddsBehindWhatIsThereAndEveryTimeAgain)
{
  AddLine(ViewSide::Top, {{7.0, 7.0, 7.0}});
  Run(CommandId::ImportDxf);
  Run(CommandId::ImportDxf);
  ASSERT_EQ(app.shapeGroups.size(), 1U);
  ASSERT_EQ(ShapesOf(0).size(), 5U);
  EXPECT_EQ(ShapesOf(0)[0]->vertices[0]->x, 7.0);
}

TEST_F(ImportCommand, PrefersAGroupOfAllSidesThatComesFirst)
{
  AddLine(ViewSide::All, {{7.0, 7.0, 7.0}});
  app.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Top));
  Run(CommandId::ImportDxf);
  EXPECT_EQ(ShapesOf(0).size(), 3U);
  EXPECT_THAT(ShapesOf(1), IsEmpty());
}

TEST_F(ImportCommand, OfAFileThatCannotBeReadLeavesNothingButARecord)
{
  fileDialogs.answer = folder.File("missing.dxf");
  Run(CommandId::ImportDxf);
  EXPECT_THAT(notified.list, IsEmpty());
  EXPECT_THAT(app.shapeGroups, IsEmpty());
  EXPECT_THAT(messages.shown, IsEmpty());
  EXPECT_FALSE(document.IsModified());
  EXPECT_THAT(Log("General"), HasSubstr("|1|[DXF] Failed to open AutoCAD DXF file."));
  EXPECT_EQ(Log("Processing"), "(no file)");
}

TEST_F(ImportCommand, OfAFileThatIsNoDrawingCountsAllTheSame)
{
  fileDialogs.answer = folder.Write("letter.dxf", "Dear Sirs\n");
  Run(CommandId::ImportDxf);
  EXPECT_TRUE(document.IsModified());
  EXPECT_THAT(ShapesOf(0), IsEmpty());
  EXPECT_THAT(Log("General"),
              HasSubstr("|32|Successfully loaded the selected AutoCAD DXF file: [ "));
}

TEST_F(ImportCommand, WritesItsRecordsToTheLogs)
{
  Run(CommandId::ImportDxf);
  EXPECT_THAT(Log("Processing"), HasSubstr("added 2 map features to map layer.\r\n"));
  EXPECT_THAT(Log("General"), HasSubstr("1\n1|"));
}

TEST_F(ImportCommand, ReportsToItsCallerWhatItTookInAndPassedOver)
{
  ImportTally tally;
  EXPECT_EQ(app.ImportDrawing(*fileDialogs.answer, tally), 0);
  EXPECT_EQ(tally.polylines, 1U);
  EXPECT_EQ(tally.texts, 1U);
  const auto splines =
      folder.Write("splines.dxf", "0\nSECTION\n2\nENTITIES\n0\nSPLINE\n0\nENDSEC\n");
  EXPECT_EQ(app.ImportDrawing(splines, tally), 0);
  EXPECT_EQ(tally.Shapes(), 0U);
  EXPECT_THAT(tally.ignored.ByKeyword(), ElementsAre(testing::Pair("SPLINE", 1)));
  EXPECT_EQ(app.ImportDrawing(folder.File("missing.dxf"), tally), -1);
  EXPECT_THAT(tally.ignored.ByKeyword(), IsEmpty());
}

TEST_F(ImportCommand, TheStatusBarSaysWhatCameInAndWhatDidNot)
{
  Run(CommandId::ImportDxf);
  fileDialogs.answer = folder.Write("splines.dxf",
                                    "0\nSECTION\n2\nENTITIES\n0\nSPLINE\n8\n0\n0\nSPLINE\n8\n0\n"
                                    "0\nHATCH\n8\n0\n0\nENDSEC\n0\nEOF\n");
  Run(CommandId::ImportDxf);
  fileDialogs.answer = folder.Write("binary.dxf", "AutoCAD Binary DXF\r\n\x1A");
  Run(CommandId::ImportDxf);
  fileDialogs.answer = folder.File("missing.dxf");
  Run(CommandId::ImportDxf);
  EXPECT_THAT(
      widgets.notes,
      ElementsAre(u"1 polyline, 1 text", u"nothing that can be drawn; ignored: 2 SPLINE, 1 HATCH",
                  u"a binary drawing; only drawings in text form can be imported",
                  DescribeUnreadable({})));
}

TEST_F(ImportCommand, TheStatusBarSaysWhenNothingOfTheShapesIsInView)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}});
  const auto importAt = [this](const std::string& x, const std::string& y) {
    widgets.notes.clear();
    fileDialogs.answer =
        folder.Write("line.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n" + x + "\n20\n" + y +
                                     "\n11\n" + x + "\n21\n" + y + "\n0\nENDSEC\n0\nEOF\n");
    Run(CommandId::ImportDxf);
    return widgets.notes.at(0);
  };
  const std::u16string inside = u"1 polyline";
  const std::u16string outside = u"1 polyline; outside the view: Show All";
  EXPECT_EQ(importAt("100", "75"), inside);
  EXPECT_EQ(importAt("-100", "-75"), inside);
  EXPECT_EQ(importAt("100.1", "0"), outside);
  EXPECT_EQ(importAt("-100.1", "0"), outside);
  EXPECT_EQ(importAt("0", "75.1"), outside);
  EXPECT_EQ(importAt("0", "-75.1"), outside);
}

TEST_F(ImportCommand, LeavesTheViewWhereItIs)
{
  const double left = view.viewPort->left;
  Run(CommandId::ImportDxf);
  EXPECT_EQ(view.viewPort->left, left);
}

TEST_F(ImportCommand, ShowsItsProgressInTheFrame)
{
  Run(CommandId::ImportDxf);
  EXPECT_EQ(widgets.calls.front(), "start Loading and processing DXF file, please wait...");
  EXPECT_EQ(widgets.calls.back(), "end");
  ASSERT_GT(widgets.calls.size(), 3U);
  for (std::size_t i = 1; i + 1 < widgets.calls.size(); ++i) {
    EXPECT_THAT(widgets.calls[i], testing::EndsWith(" %"));
  }
}

TEST_F(ImportCommand, WithoutAWindowLeavesTheDesignAlone)
{
  frame.hasWindow = false;
  Run(CommandId::ImportDxf);
  EXPECT_THAT(app.shapeGroups, IsEmpty());
  EXPECT_FALSE(document.IsModified());
}

TEST_F(ImportCommand, OnlyPolylinesAreSaved)
{
  Run(CommandId::ImportDxf);
  const std::u16string path = folder.File("saved.xml");
  ASSERT_TRUE(document.OnSaveDocument(path));
  ASSERT_TRUE(document.OnOpenDocument(path));
  ASSERT_EQ(ShapesOf(0).size(), 1U);
  EXPECT_EQ(ShapesOf(0)[0]->type, ShapeType::Polyline);
  EXPECT_EQ(ShapesOf(0)[0]->style, nullptr);
}

}  // namespace
}  // namespace hullwright
