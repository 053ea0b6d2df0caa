#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <tuple>
#include <utility>

#include "file/HullwrightDoc.h"
#include "headless/KeptMessages.h"
#include "model/ShapePoint.h"
#include "model/ShapePolyline.h"
#include "support/Fakes.h"
#include "support/System.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

constexpr const char* good =
    "<vessel><units id='9002'/><shapes view='01'><polyline><vertex x='1'/></polyline></shapes>"
    "<gps x='1' y='2' z='3'/><txd x='4'/><piv x='5'/>"
    "<anchors><anchor><id>3</id></anchor></anchors></vessel>";

class Document : public testing::Test {
protected:
  bool Open(std::string_view xml) { return document.OnOpenDocument(folder.Write("in.xml", xml)); }

  test::TempFolder folder;
  KeptMessages messages;
  test::RecordedNotifications window;
  DesignState design;
  CHullwrightDoc document{design, window, messages};
};

TEST_F(Document, OpenReplacesTheDesign)
{
  design.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Rear));
  design.anchors->items.push_back(design.anchors->NewAnchor());
  document.SetModifiedFlag(true);
  ASSERT_TRUE(Open(good));
  ASSERT_EQ(design.shapeGroups.size(), 1U);
  EXPECT_EQ(design.shapeGroups[0]->viewCode, ViewSide::Top);
  EXPECT_TRUE(*design.offsetGps == CShapeVertex(1.0, 2.0, 3.0));
  EXPECT_TRUE(*design.offsetTransducer == CShapeVertex(4.0, 0.0, 0.0));
  EXPECT_TRUE(*design.offsetPivot == CShapeVertex(5.0, 0.0, 0.0));
  ASSERT_EQ(design.anchors->items.size(), 1U);
  EXPECT_EQ(design.anchors->items[0]->id, 3U);
  EXPECT_EQ(design.unitCode, UnitCode{9002});
  EXPECT_FALSE(document.IsModified());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Document, OpenNotifiesRepaintThenTreeForEmptyingAndForFilling)
{
  ASSERT_TRUE(Open(good));
  EXPECT_THAT(window.list, ElementsAre("repaint", "tree", "repaint", "tree"));
}

TEST_F(Document, WhatWasOpenedStandsInTheDesignBeforeTheNotification)
{
  using Seen = std::tuple<UnitCode, double, std::size_t, std::size_t>;
  std::vector<Seen> seen;
  window.onNotification = [&] {
    seen.emplace_back(design.unitCode, design.offsetPivot->x, design.shapeGroups.size(),
                      design.anchors->items.size());
  };
  ASSERT_TRUE(Open(good));
  const Seen emptied(UnitCode::Metre, 0.0, 0, 0);
  const Seen filled(UnitCode{9002}, 5.0, 1, 1);
  EXPECT_THAT(seen, ElementsAre(emptied, emptied, filled, filled));
}

TEST_F(Document, OpenLeavesTheSideInViewAndCarriedFieldsOfOffsets)
{
  design.activeView = ViewSide::Right;
  design.offsetGps->tagA = 7;
  ASSERT_TRUE(Open(good));
  EXPECT_EQ(design.activeView, ViewSide::Right);
  EXPECT_EQ(design.offsetGps->tagA, 7);
}

TEST_F(Document, AMalformedFileAfterAGoodOneKeepsOffsetsAndUnit)
{
  ASSERT_TRUE(Open(good));
  window.list.clear();
  EXPECT_FALSE(Open("<vessel><units id='9003'/><shapes view='02'/><gps x='9'/><anchor/><shapes>"));
  ASSERT_EQ(design.shapeGroups.size(), 1U);
  EXPECT_EQ(design.shapeGroups[0]->viewCode, ViewSide::Bottom);
  EXPECT_TRUE(design.anchors->items.empty());
  EXPECT_EQ(design.offsetGps->x, 1.0);
  EXPECT_EQ(design.unitCode, UnitCode{9002});
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_THAT(window.list, ElementsAre("repaint", "tree"));
}

TEST_F(Document, AFileWithoutAUnitIsInMetres)
{
  ASSERT_TRUE(Open(good));
  ASSERT_TRUE(Open("<vessel/>"));
  EXPECT_EQ(design.unitCode, UnitCode::Metre);
  EXPECT_TRUE(*design.offsetGps == CShapeVertex());
}

TEST_F(Document, AFileThatCannotBeOpenedIsReportedAndChangesNothing)
{
  ASSERT_TRUE(Open(good));
  document.SetModifiedFlag(true);
  window.list.clear();
  EXPECT_FALSE(document.OnOpenDocument(folder.File("missing.xml")));
  EXPECT_FALSE(document.OnOpenDocument(folder.File("")));
  EXPECT_THAT(messages.shown, ElementsAre(u"The file \"" + folder.File("missing.xml") +
                                              u"\" cannot be opened.\nNo such file or directory.",
                                          u"The file \"" + folder.File("") +
                                              u"\" cannot be opened.\nIt is not a file."));
  EXPECT_EQ(design.shapeGroups.size(), 1U);
  EXPECT_TRUE(document.IsModified());
  EXPECT_TRUE(window.list.empty());
}

TEST_F(Document, AFileWithoutReadPermissionIsReported)
{
  const auto path = folder.Write("locked.xml", good);
  std::filesystem::permissions(folder.Path() / "locked.xml", std::filesystem::perms::none);
  const bool allPowerful = test::MayRead(folder.Path() / "locked.xml");
  EXPECT_EQ(document.OnOpenDocument(path), allPowerful);
  EXPECT_EQ(messages.shown.size(), allPowerful ? 0U : 1U);
}

TEST_F(Document, AnEmptyFileEmptiesTheDesignWithoutAMessage)
{
  ASSERT_TRUE(Open(good));
  EXPECT_FALSE(Open(""));
  EXPECT_TRUE(design.shapeGroups.empty());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Document, ReportsWhyAndWhereAnOpenFailed)
{
  EXPECT_FALSE(Open("<vessel>\n</wessel>"));
  EXPECT_EQ(document.OpenProblem(), u"line 2, column 3: mismatched tag");
  EXPECT_EQ(document.OpenError().message, u"mismatched tag");
  EXPECT_EQ(document.OpenError().line, 2);
  EXPECT_EQ(document.OpenError().column, 3);
  EXPECT_FALSE(document.OnOpenDocument(folder.File("missing.xml")));
  EXPECT_EQ(document.OpenProblem(), u"No such file or directory");
  EXPECT_EQ(document.OpenError().message, u"");
  EXPECT_FALSE(Open(""));
  EXPECT_EQ(document.OpenError().message, u"no element found");
  ASSERT_TRUE(Open(good));
  EXPECT_EQ(document.OpenProblem(), u"");
  EXPECT_EQ(document.OpenError().message, u"");
}

TEST_F(Document, NewKeepsOffsetsUnitAndSide)
{
  ASSERT_TRUE(Open(good));
  design.activeView = ViewSide::Left;
  window.list.clear();
  document.SetModifiedFlag(true);
  EXPECT_TRUE(document.OnNewDocument());
  EXPECT_TRUE(design.shapeGroups.empty());
  EXPECT_TRUE(design.anchors->items.empty());
  EXPECT_EQ(design.offsetGps->x, 1.0);
  EXPECT_EQ(design.unitCode, UnitCode{9002});
  EXPECT_EQ(design.activeView, ViewSide::Left);
  EXPECT_FALSE(document.IsModified());
  EXPECT_THAT(window.list, ElementsAre("repaint", "tree"));
}

TEST_F(Document, NewEmptiesTheDesignBeforeItNotifies)
{
  ASSERT_TRUE(Open(good));
  using Seen = std::tuple<std::size_t, std::size_t>;
  std::vector<Seen> seen;
  window.onNotification = [&] {
    seen.emplace_back(design.shapeGroups.size(), design.anchors->items.size());
  };
  document.OnNewDocument();
  EXPECT_THAT(seen, ElementsAre(Seen(0, 0), Seen(0, 0)));
}

TEST_F(Document, BeforeThereIsAWindowEmptyingNotifiesNobody)
{
  window.hasWindow = false;
  document.OnNewDocument();
  EXPECT_TRUE(window.list.empty());
}

TEST_F(Document, SaveWritesTheDesignAndClearsTheModifiedFlag)
{
  ASSERT_TRUE(Open(good));
  window.list.clear();
  EXPECT_TRUE(document.OnSaveDocument(folder.File("out.xml")));
  EXPECT_THAT(window.list, ElementsAre("clean"));
  EXPECT_EQ(folder.Read("out.xml"),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<vessel>\n <units id=\"9002\" />\n"
            " <shapes view=\"01\" >\n  <polyline>\n"
            "   <vertex x=\"1.000\" y=\"0.000\" z=\"0.000\" />\n  </polyline>\n </shapes>\n"
            " <gps x=\"1.000\" y=\"2.000\" z=\"3.000\" />\n"
            " <txd x=\"4.000\" y=\"0.000\" z=\"0.000\" />\n"
            " <piv x=\"5.000\" y=\"0.000\" z=\"0.000\" />\n"
            " <anchors>\n  <anchor>\n   <id>3</id>\n   <name></name>\n"
            "   <attachmentX>0.000</attachmentX>\n   <attachmentY>0.000</attachmentY>\n"
            "  </anchor>\n </anchors>\n</vessel>\n");
}

TEST_F(Document, TheModifiedFlagIsClearedWhenTheFileIsWritten)
{
  std::vector<std::string> files;
  window.onNotification = [&] { files.push_back(folder.Read("out.xml")); };
  document.OnSaveDocument(folder.File("out.xml"));
  ASSERT_EQ(files.size(), 1U);
  EXPECT_TRUE(files[0].ends_with("</vessel>\n")) << files[0];
}

TEST_F(Document, AnEmptySlotEndsTheAnchorsOfASaveWithTheirOwnCursor)
{
  for (const std::uint32_t id : {7U, 8U}) {
    design.anchors->items.push_back(std::make_unique<CAnchor>());
    design.anchors->items.back()->id = id;
    design.anchors->items.push_back(nullptr);
  }
  document.OnSaveDocument(folder.File("out.xml"));
  const std::string text = folder.Read("out.xml");
  EXPECT_THAT(text, testing::HasSubstr("<id>7</id>"));
  EXPECT_THAT(text, testing::Not(testing::HasSubstr("<id>8</id>")));
  EXPECT_EQ(design.anchors->cursor, 2U);
}

TEST_F(Document, SavingToAPathThatCannotBeWrittenCountsAsSaved)
{
  EXPECT_TRUE(document.OnSaveDocument(folder.File("no-folder/out.xml")));
  EXPECT_THAT(window.list, ElementsAre("clean"));
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Document, SavingToAFullDiskIsReportedAndCountsAsSaved)
{
  messages.onShow = [this] { EXPECT_THAT(window.list, ElementsAre()); };
  EXPECT_TRUE(document.OnSaveDocument(u"/dev/full"));
  EXPECT_THAT(messages.shown, ElementsAre(u"Error writing config file!!!"));
  EXPECT_THAT(window.list, ElementsAre("clean"));
}

TEST_F(Document, SavingToAPipeThatNobodyReadsOrToAFolderReachesNobody)
{
  const auto pipe = folder.Path() / "pipe.xml";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  // Would wait for ever.
  EXPECT_TRUE(document.OnSaveDocument(folder.File("pipe.xml")));
  EXPECT_FALSE(document.SavedWhole());
  std::filesystem::create_directory(folder.Path() / "folder.xml");
  EXPECT_TRUE(document.OnSaveDocument(folder.File("folder.xml")));
  EXPECT_FALSE(document.SavedWhole());
  EXPECT_TRUE(std::filesystem::is_fifo(pipe));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "folder.xml"));
}

TEST_F(Document, TheLastSaveIsASaveAndEmptiesTheShapes)
{
  ASSERT_TRUE(Open(good));
  OwnedArray<CShape>& shapes = design.shapeGroups[0]->shapes;
  shapes.push_back(std::make_unique<CShapePoint>());
  for (int i = 0; i < 4; ++i) {
    auto line = std::make_unique<CShapePolyline>();
    for (int j = 0; j < 50'000; ++j) line->AddVertex(j, i, 0.5);
    line->style = std::make_unique<ShapeStyle>();
    shapes.push_back(std::move(line));
  }
  document.OnSaveDocument(folder.File("out.xml"));
  EXPECT_EQ(shapes.back()->vertices.size(), 50'000U);
  document.LetGoAtSave();
  document.OnSaveDocument(folder.File("last.xml"));
  EXPECT_TRUE(document.SavedWhole());
  EXPECT_TRUE(folder.Read("last.xml") == folder.Read("out.xml"));
  ASSERT_EQ(shapes.size(), 6U);
  for (const auto& shape : shapes) EXPECT_TRUE(shape->vertices.empty() && !shape->style);
}

TEST_F(Document, ReportsWhetherASaveReachedTheDisk)
{
  document.OnSaveDocument(u"/dev/full");
  EXPECT_FALSE(document.SavedWhole());
  document.OnSaveDocument(folder.File("out.xml"));
  EXPECT_TRUE(document.SavedWhole());
}

TEST_F(Document, ReportsThatItWasEmptiedAlsoWhenTheOpenFailsLater)
{
  int emptied = 0;
  document.onEmptied = [&] { ++emptied; };
  document.OnOpenDocument(folder.File("missing.xml"));
  document.OnOpenDocument(u"/dev/zero");
  EXPECT_EQ(emptied, 0);
  Open("no xml");
  EXPECT_EQ(emptied, 1);
  document.OnNewDocument();
  EXPECT_EQ(emptied, 2);
}

TEST_F(Document, AReadErrorIsNoFaultOfTheText)
{
  // A regular file that opens and whose first byte can't be read: nothing is mapped there.
  EXPECT_FALSE(document.OnOpenDocument(u"/proc/self/mem"));
  EXPECT_EQ(document.OpenProblem(), u"Input/output error");
  EXPECT_EQ(document.OpenError().line, 0);
  EXPECT_FALSE(document.OpenError().outOfMemory);
}

TEST_F(Document, ANameWithReferencesComesBack)
{
  auto anchor = design.anchors->NewAnchor();
  anchor->name = u"A&B \"\u00FC\" <x>";
  design.anchors->items.push_back(std::move(anchor));
  document.OnSaveDocument(folder.File("out.xml"));
  ASSERT_TRUE(document.OnOpenDocument(folder.File("out.xml")));
  EXPECT_EQ(design.anchors->items.at(0)->name, u"A&B \"\u00FC\" <x>");
}

TEST_F(Document, ANameBeyondTheBasicPlaneMakesAFileThatIsRejected)
{
  auto anchor = design.anchors->NewAnchor();
  anchor->name = u"\U0001F6A2";
  design.anchors->items.push_back(std::move(anchor));
  document.OnSaveDocument(folder.File("out.xml"));
  EXPECT_FALSE(document.OnOpenDocument(folder.File("out.xml")));
}

TEST_F(Document, TheFingerprintIsThatOfEveryVertexOfALargeDesign)
{
  auto line = std::make_unique<CShapePolyline>();
  for (int i = 0; i < 5000; ++i) line->AddVertex(i, i, i);
  CShapePolyline& outline = *line;
  design.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Top));
  design.shapeGroups[0]->shapes.push_back(std::move(line));
  const auto before = document.Fingerprint();
  ASSERT_TRUE(before.has_value());
  EXPECT_EQ(document.Fingerprint(), before);
  for (std::size_t i = 0; i < outline.vertices.size(); i += 499) {
    outline.vertices[i]->y += 0.0004;
    EXPECT_EQ(document.Fingerprint(), before) << i;
    outline.vertices[i]->y += 0.001;
    EXPECT_NE(document.Fingerprint(), before) << i;
    outline.vertices[i]->y = static_cast<double>(i);
  }
  EXPECT_EQ(document.Fingerprint(), before);
  outline.vertices.pop_back();
  EXPECT_NE(document.Fingerprint(), before);
}

TEST_F(Document, TheFingerprintIsThatOfAllASaveWritesButGroupsWithoutPolylines)
{
  ASSERT_TRUE(Open(good));
  auto last = document.Fingerprint();
  ASSERT_TRUE(last.has_value());
  const auto changes = [&] {
    const auto before = std::exchange(last, document.Fingerprint());
    return last != before;
  };
  design.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Rear));
  design.shapeGroups[1]->shapes.push_back(std::make_unique<CShapePoint>());
  EXPECT_FALSE(changes());
  design.shapeGroups[1]->shapes.push_back(std::make_unique<CShapePolyline>());
  EXPECT_TRUE(changes());
  design.unitCode = UnitCode::Metre;
  EXPECT_TRUE(changes());
  design.offsetPivot->x = 6.0;
  EXPECT_TRUE(changes());
  design.anchors->items.clear();
  EXPECT_TRUE(changes());
}

class SampleRoundTrip : public Document, public testing::WithParamInterface<const char*> {};

TEST_P(SampleRoundTrip, IsByteIdentical)
{
  const std::filesystem::path sample =
      std::filesystem::path(HULLWRIGHT_SAMPLES) / (std::string(GetParam()) + ".xml");
  std::filesystem::copy(sample, folder.Path() / "in.xml");
  ASSERT_TRUE(document.OnOpenDocument(folder.File("in.xml")));
  EXPECT_EQ(design.shapeGroups.size(), 6U);
  document.OnSaveDocument(folder.File("out.xml"));
  EXPECT_EQ(folder.Read("out.xml"), folder.Read("in.xml"));
}

INSTANTIATE_TEST_SUITE_P(Samples, SampleRoundTrip,
                         testing::Values("workboat", "catamaran", "dredger"));

}  // namespace
}  // namespace hullwright
