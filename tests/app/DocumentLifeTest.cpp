#include "app/DocumentLife.h"

#include <gmock/gmock.h>

#include <limits>
#include <new>

#include "app/NonFiniteNumbers.h"
#include "model/ShapePoint.h"
#include "support/AppFixture.h"
#include "support/FailingNew.h"
#include "support/System.h"
#include "system/FormerVersions.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();

class FakeDocumentDialogs : public IDocumentDialogs {
public:
  std::optional<std::u16string> AskDesignToOpen(std::u16string_view) override { return toOpen; }
  std::optional<std::u16string> AskDesignToSave(std::u16string_view, std::u16string_view) override
  {
    return toSave;
  }
  LeaveAnswer AskToLeave(std::u16string_view name) override
  {
    asked.emplace_back(name);
    return answer;
  }
  std::optional<std::u16string> toOpen;
  std::optional<std::u16string> toSave;
  LeaveAnswer answer = LeaveAnswer::Stay;
  std::vector<std::u16string> asked;
};

class KeptRecentFiles : public IRecentFiles {
public:
  std::vector<std::u16string> Read() const override { return files; }
  void Write(const std::vector<std::u16string>& paths) override { files = paths; }
  std::vector<std::u16string> files;
};

constexpr const char* boat =
    "<vessel><units id='9001'/><shapes view='01'><polyline><vertex x='1'/><vertex x='2'/>"
    "</polyline></shapes><gps x='1'/><txd x='2'/><piv x='3'/></vessel>";

class Life : public test::AppFixture {
protected:
  Life() { life.KeepRecentFiles(4); }

  bool OpenBoat() { return life.Open(folder.Write("boat.xml", boat)); }

  /// Whether leaving the design as it is asks a question.
  bool Asks()
  {
    documentDialogs.asked.clear();
    documentDialogs.answer = LeaveAnswer::Stay;
    const bool left = life.MayLeave();
    EXPECT_EQ(left, documentDialogs.asked.empty());
    return !left;
  }

  CShapeVertex& FirstVertex() { return *app.shapeGroups[0]->shapes[0]->vertices[0]; }

  test::TempFolder folder;
  FakeDocumentDialogs documentDialogs;
  KeptRecentFiles recentFiles;
  FormerVersions formerVersions{folder.Path() / "state"};
  bool isDrawing = false;
  std::string heldAtMessage;  ///< by the file, when the user was notified
  DocumentLife life{document, app, {documentDialogs, recentFiles, formerVersions, widgets, [this] {
                                      return isDrawing;
                                    }}};
};

TEST_F(Life, ADesignThatMemoryEndedForHasNoFileNameAndIsReported)
{
  const std::u16string path = folder.Write("boat.xml", boat);
  bool failed = true;
  bool leftOut = false;
  for (std::size_t which = 1; failed && !leftOut; ++which) {
    const test::FailingNew memory(which);
    try {
      life.Open(path);
    } catch (const std::bad_alloc&) {
      // Of what is around the reading.
    }
    failed = test::FailingNew::Stop();
    leftOut = document.LeftOutParts() != 0;
  }
  ASSERT_TRUE(leftOut);
  EXPECT_EQ(life.Name(), u"Untitled");
  EXPECT_EQ(
      widgets.notes.back(),
      u"\"boat.xml\" was opened without 1 part, for want of memory. It has no file name now.");
  documentDialogs.toSave = folder.File("other.xml");
  EXPECT_TRUE(life.Save());
  EXPECT_EQ(folder.Read("boat.xml"), boat);
}

TEST_F(Life, AnUntouchedDesignNeverAsks)
{
  EXPECT_FALSE(Asks());
  ASSERT_TRUE(OpenBoat());
  EXPECT_FALSE(Asks());
  life.New();
  EXPECT_FALSE(Asks());
  ASSERT_TRUE(OpenBoat());
  ASSERT_TRUE(life.Save());
  EXPECT_FALSE(Asks());
  EXPECT_FALSE(life.Open(folder.Write("bad.xml", "<vessel><shapes/><gps x='9'/>")));
  EXPECT_FALSE(Asks());
}

TEST_F(Life, AModifiedDesignAsksThoughItWouldBeSavedAsItIs)
{
  ASSERT_TRUE(OpenBoat());
  document.SetModifiedFlag(true);
  EXPECT_TRUE(Asks());
  EXPECT_THAT(documentDialogs.asked, ElementsAre(u"boat.xml"));
}

TEST_F(Life, EveryChangeOfWhatASaveWritesAsksWithoutAFlag)
{
  ASSERT_TRUE(OpenBoat());
  const auto changed = [this](auto change, auto back) {
    change();
    EXPECT_FALSE(document.IsModified());
    const bool asks = Asks();
    back();
    EXPECT_FALSE(Asks());
    return asks;
  };
  EXPECT_TRUE(changed([&] { FirstVertex().z = 0.001; }, [&] { FirstVertex().z = 0.0; }));
  EXPECT_TRUE(changed([&] { app.offsetGps->x = 7.0; }, [&] { app.offsetGps->x = 1.0; }));
  EXPECT_TRUE(changed([&] { app.offsetPivot->z = 1.0; }, [&] { app.offsetPivot->z = 0.0; }));
  EXPECT_TRUE(
      changed([&] { app.unitCode = UnitCode{9002}; }, [&] { app.unitCode = UnitCode::Metre; }));
  EXPECT_TRUE(changed([&] { app.anchors->items.push_back(app.anchors->NewAnchor()); },
                      [&] { app.anchors->Clear(); }));
  EXPECT_TRUE(changed([&] { app.shapeGroups[0]->viewCode = ViewSide::Bottom; },
                      [&] { app.shapeGroups[0]->viewCode = ViewSide::Top; }));
}

TEST_F(Life, WhatNoSaveWritesIsNotAskedFor)
{
  ASSERT_TRUE(OpenBoat());
  app.activeView = ViewSide::Right;
  FirstVertex().x += 0.0001;
  app.anchors->enabled = false;
  app.shapeGroups[0]->shapes.push_back(std::make_unique<CShapePoint>());
  GetShapes(app.shapeGroups, ViewSide::Bottom);  // as a side gets that is only looked at
  EXPECT_FALSE(Asks());
}

TEST_F(Life, APolylineThatIsBeingDrawnIsAskedForAndMissedByASave)
{
  ASSERT_TRUE(OpenBoat());
  isDrawing = true;
  EXPECT_TRUE(Asks());
  EXPECT_TRUE(life.Save());
  EXPECT_THAT(widgets.notes,
              ElementsAre(u"\"boat.xml\" was saved without the polyline that is being drawn"));
  EXPECT_TRUE(Asks());
  isDrawing = false;
  EXPECT_FALSE(Asks());
}

TEST_F(Life, AnswersDecideWhetherTheDesignIsLeft)
{
  ASSERT_TRUE(OpenBoat());
  app.unitCode = UnitCode{9002};
  documentDialogs.answer = LeaveAnswer::Stay;
  life.New();
  EXPECT_EQ(app.shapeGroups.size(), 1U);
  EXPECT_FALSE(life.Open(folder.Write("other.xml", boat)));
  documentDialogs.answer = LeaveAnswer::Save;
  life.New();
  EXPECT_NE(folder.Read("boat.xml").find("9002"), std::string::npos);
  EXPECT_TRUE(app.shapeGroups.empty());
  app.unitCode = UnitCode{9003};
  documentDialogs.answer = LeaveAnswer::Discard;
  EXPECT_TRUE(OpenBoat());
  EXPECT_EQ(app.unitCode, UnitCode::Metre);
}

TEST_F(Life, ChangesThatWereGivenUpForAFileThatCannotBeOpenedAreAskedForAgain)
{
  app.unitCode = UnitCode{9002};
  documentDialogs.answer = LeaveAnswer::Discard;
  EXPECT_FALSE(life.Open(folder.File("missing.xml")));
  EXPECT_TRUE(Asks());
}

TEST_F(Life, AFailedSaveCountsForTheFlagAndIsAskedForAgain)
{
  ASSERT_TRUE(OpenBoat());
  document.SetModifiedFlag(true);
  app.unitCode = UnitCode{9002};
  documentDialogs.toSave = folder.File("missing/boat.xml");
  EXPECT_FALSE(life.SaveAs());
  EXPECT_FALSE(document.IsModified());
  EXPECT_THAT(widgets.notes,
              ElementsAre(u"Nothing was saved to \"boat.xml\": No such file or directory."));
  EXPECT_TRUE(Asks());
  EXPECT_EQ(life.Name(), u"boat.xml");
  EXPECT_THAT(recentFiles.files, ElementsAre(folder.File("boat.xml")));
  documentDialogs.answer = LeaveAnswer::Save;
  EXPECT_FALSE(life.MayLeave());
}

TEST_F(Life, ASaveThatFailsHalfwayGivesTheFileBackWhatItHeldAndNamesTheCopy)
{
  ASSERT_TRUE(OpenBoat());
  for (int i = 0; i < 1000; ++i) {
    app.shapeGroups[0]->shapes.push_back(app.shapeGroups[0]->shapes[0]->Clone());
  }
  messages.onShow = [this] { heldAtMessage = folder.Read("boat.xml"); };
  {
    const test::FileSizeLimit limit(4096);
    EXPECT_FALSE(life.Save());
  }
  EXPECT_THAT(messages.shown, ElementsAre(u"Error writing config file!!!"));
  EXPECT_EQ(heldAtMessage, boat);
  EXPECT_EQ(folder.Read("boat.xml"), boat);
  ASSERT_EQ(widgets.notes.size(), 1U);
  EXPECT_TRUE(widgets.notes[0].starts_with(
      u"Nothing was saved to \"boat.xml\": File too large. Former file: " +
      folder.File("state/boat.")));
  EXPECT_TRUE(widgets.notes[0].ends_with(u".xml. The file is as it was."));
  EXPECT_TRUE(Asks());
}

/// A file that can't be given its bytes back.
class TornFile : public IFormerVersions {
public:
  std::u16string Keep(std::u16string_view) override { return u"/state/boat.xml"; }
  void Release() override {}
  Restored PutBack() override { return Restored::Damaged; }
};

TEST_F(Life, AFileThatCannotBeGivenItsBytesBackIsReportedAsDamaged)
{
  TornFile torn;
  DocumentLife other{document, app, {documentDialogs, recentFiles, torn, widgets, {}}};
  documentDialogs.toSave = folder.File("missing/boat.xml");
  EXPECT_FALSE(other.SaveAs());
  EXPECT_THAT(widgets.notes,
              ElementsAre(u"Nothing was saved to \"boat.xml\": No such file or directory. Former "
                          u"file: /state/boat.xml. The file is damaged."));
}

TEST_F(Life, TheNextSaveGoesWhereAFailedOneWasMeantToGo)
{
  ASSERT_TRUE(OpenBoat());
  documentDialogs.toSave = folder.File("later/ship.xml");
  EXPECT_FALSE(life.SaveAs());
  EXPECT_EQ(life.Name(), u"ship.xml");
  std::filesystem::create_directory(folder.Path() / "later");
  EXPECT_TRUE(life.Save());
  EXPECT_EQ(folder.Read("boat.xml"), boat);
  EXPECT_NE(folder.Read("later/ship.xml"), "(no file)");
}

TEST_F(Life, ADesignWithNumbersThatAreNotFiniteIsSavedAndTheFirstIsNamed)
{
  ASSERT_TRUE(OpenBoat());
  EXPECT_TRUE(life.Save());
  EXPECT_THAT(widgets.notes, IsEmpty());
  app.shapeGroups[0]->shapes[0]->vertices[1]->y = infinity;
  app.offsetGps->x = -infinity;
  EXPECT_TRUE(life.Save());
  EXPECT_THAT(widgets.notes,
              ElementsAre(u"\"boat.xml\" was saved, but it holds numbers that are not finite (2): "
                          u"polyline 1 (top), point 2"));
}

TEST_F(Life, EveryNumberThatASaveWritesIsLookedThrough)
{
  const auto place = [this](double& number) {
    const double before = std::exchange(number, std::numeric_limits<double>::quiet_NaN());
    const NonFiniteNumbers found = FindNonFiniteNumbers(app);
    number = before;
    EXPECT_EQ(found.count, 1U);
    return found.first;
  };
  ASSERT_TRUE(OpenBoat());
  GetShapes(app.shapeGroups, ViewSide::Rear)
      ->shapes.push_back(app.shapeGroups[0]->shapes[0]->Clone());
  app.anchors->items.push_back(app.anchors->NewAnchor());
  EXPECT_EQ(place(FirstVertex().x), u"polyline 1 (top), point 1");
  EXPECT_EQ(place(FirstVertex().z), u"polyline 1 (top), point 1");
  EXPECT_EQ(place(app.shapeGroups[1]->shapes[0]->vertices[1]->y), u"polyline 1 (rear), point 2");
  app.shapeGroups[1]->viewCode = ViewSide::All;
  EXPECT_EQ(place(app.shapeGroups[1]->shapes[0]->vertices[0]->y),
            u"polyline 1 (all sides), point 1");
  app.shapeGroups[1]->viewCode = ViewSide{5};
  EXPECT_EQ(place(app.shapeGroups[1]->shapes[0]->vertices[0]->y), u"polyline 1 (view 05), point 1");
  EXPECT_EQ(place(app.offsetGps->y), u"GNSS antenna offset");
  EXPECT_EQ(place(app.offsetTransducer->z), u"echo sounder offset");
  EXPECT_EQ(place(app.offsetPivot->x), u"pivot offset");
  EXPECT_EQ(place(app.anchors->items[0]->attachmentY), u"anchor #1");
  app.shapeGroups[0]->shapes[0]->type = ShapeType::Point;
  FirstVertex().x = infinity;
  EXPECT_EQ(FindNonFiniteNumbers(app).count, 0U);
}

}  // namespace
}  // namespace hullwright
