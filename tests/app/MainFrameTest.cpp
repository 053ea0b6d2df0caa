#include <gmock/gmock.h>

#include <optional>

#include "resources/CommandIds.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class MainFrame : public test::AppFixture {};

TEST_F(MainFrame, PassesEveryCodeButTheTreesOnToTheView)
{
  frame.Notify(Notification::RepaintDesign, 5);
  EXPECT_EQ(Frames(), 1);
  frame.Notify(Notification::RebuildTree, 0);
  frame.Notify(1044, 50);
  frame.Notify(0, 0);
  EXPECT_EQ(Frames(), 1);
}

TEST_F(MainFrame, ShowsTheProgressOfAnImport)
{
  frame.Notify(1046, reinterpret_cast<std::intptr_t>("Loading"));
  frame.Notify(1044, 50);
  frame.Notify(1045, 0);
  EXPECT_THAT(widgets.calls, ElementsAre("start Loading", "50 %", "end"));
  frame.Notify(1046, 0);  // without a text there is nothing to show
  EXPECT_EQ(widgets.calls.size(), 3U);
}

TEST_F(MainFrame, WithoutAViewANotificationIsDropped)
{
  CMainFrame bare(app, widgets);
  bare.NotifyDesignChanged();
  EXPECT_EQ(Frames(), 0);
}

TEST_F(MainFrame, MarksItsDocument)
{
  app.SetModifiedFlag(true);
  EXPECT_TRUE(document.IsModified());
  CMainFrame bare(app, widgets);
  bare.SetModifiedFlag(false);
  EXPECT_TRUE(document.IsModified());
}

struct SideCase {
  int command;
  std::int32_t code;
};

class SideCommand : public MainFrame, public testing::WithParamInterface<SideCase> {};

TEST_P(SideCommand, BringsTheSideIntoViewAndOntoTheDropDown)
{
  EXPECT_TRUE(frame.OnCommand(GetParam().command));
  EXPECT_EQ(app.activeView, GetParam().code);
  EXPECT_THAT(widgets.calls,
              ElementsAre("image " + std::to_string(GetParam().command), "invalidate"));
  EXPECT_EQ(frame.viewButtonImage, GetParam().command);
  EXPECT_EQ(Frames(), 1);
  EXPECT_FALSE(document.IsModified());
}

INSTANTIATE_TEST_SUITE_P(Sides, SideCommand,
                         testing::Values(SideCase{32804, 1}, SideCase{32805, 2}, SideCase{32802, 4},
                                         SideCase{32803, 8}, SideCase{32806, 16},
                                         SideCase{32807, 32}));

TEST_F(MainFrame, AnotherCodeLeavesTheImage)
{
  app.SetViewSide(63);
  EXPECT_EQ(app.activeView, 63);
  EXPECT_THAT(widgets.calls, ElementsAre("invalidate"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(MainFrame, ASideChangeKeepsToolAndViewRectangle)
{
  app.cursorTool = CursorTool::Move;
  view.OnMouseWheel(120, {100, 100});
  const double left = view.viewPort->left;
  frame.OnCommand(Command::ViewLeft);
  EXPECT_EQ(app.cursorTool, CursorTool::Move);
  EXPECT_EQ(view.viewPort->left, left);
}

TEST_F(MainFrame, CursorModesExcludeEachOtherAndDoNotRepaint)
{
  EXPECT_FALSE(frame.QueryCommand(Command::CursorZoomIn).checked);
  frame.OnCommand(Command::CursorZoomIn);
  EXPECT_EQ(app.cursorTool, 1);
  EXPECT_TRUE(frame.QueryCommand(Command::CursorZoomIn).checked);
  frame.OnCommand(Command::CursorZoomOut);
  EXPECT_EQ(app.cursorTool, 2);
  EXPECT_FALSE(frame.QueryCommand(Command::CursorZoomIn).checked);
  frame.OnCommand(Command::CursorMove);
  EXPECT_EQ(app.cursorTool, 8);
  frame.OnCommand(Command::CursorMove);
  EXPECT_EQ(app.cursorTool, 8);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(MainFrame, TheDrawCommandIsCheckedWhileDrawing)
{
  EXPECT_FALSE(frame.QueryCommand(Command::DrawPolyline).checked);
  EXPECT_TRUE(frame.OnCommand(Command::DrawPolyline));
  EXPECT_TRUE(frame.QueryCommand(Command::DrawPolyline).checked);
  view.OnRButtonDown({1, 1});
  EXPECT_FALSE(frame.QueryCommand(Command::DrawPolyline).checked);
}

TEST_F(MainFrame, CommandsWithoutAHandlerAreDisabledAndDoNothing)
{
  for (const int id : {Command::EditUndo, Command::EditRedo, Command::EditCut, Command::EditCopy,
                       Command::EditPaste, Command::FilePrint, 1}) {
    EXPECT_FALSE(frame.QueryCommand(id).enabled) << id;
    EXPECT_FALSE(frame.OnCommand(id)) << id;
  }
  EXPECT_EQ(Frames(), 0);
}

TEST_F(MainFrame, ADragIsToldToRepaintTreeAndDocument)
{
  view.OnMouseMove(false, {440, 300});  // the GNSS antenna
  view.OnMouseMove(true, {480, 300});
  view.OnLButtonUp({480, 300});
  EXPECT_EQ(app.offsetGps->x, 20.0);
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(Frames(), 2);
}

TEST_F(MainFrame, ANewDesignDuringAHoverLeavesNothingToDrag)
{
  auto line = std::make_unique<CShapePolyline>();
  line->AddVertex(0.0, 0.0, 0.0);
  GetShapes(app.shapeGroups, 1)->shapes.push_back(std::move(line));
  view.OnMouseMove(false, {400, 300});
  ASSERT_EQ(view.hitKind, HitKind::Vertex);
  document.OnNewDocument();
  view.OnMouseMove(true, {420, 300});
  view.OnLButtonUp({420, 300});
  EXPECT_EQ(view.hitVertex, PickedItem(ReleasedItem{}));
}

TEST_F(MainFrame, ALookIsShownThenStoredAndBearsTheMark)
{
  EXPECT_EQ(app.applicationLook, 210);
  EXPECT_TRUE(frame.QueryCommand(210).checked);
  EXPECT_TRUE(frame.OnCommand(216));
  EXPECT_THAT(widgets.calls, ElementsAre("look 216"));
  EXPECT_EQ(settings.values["Workspace/ApplicationLook"], 216);
  EXPECT_TRUE(frame.QueryCommand(216).checked);
  EXPECT_FALSE(frame.QueryCommand(210).checked);
  EXPECT_TRUE(frame.OnCommand(213));
  EXPECT_EQ(app.applicationLook, 213);
}

/// Looks into the settings at the moment that a look is shown.
class WatchingWidgets : public test::FakeWidgets {
public:
  explicit WatchingWidgets(const MemorySettings& settings) : settings_(settings) {}
  void ApplyLook(int look) override
  {
    FakeWidgets::ApplyLook(look);
    storedBefore = settings_.written;
  }
  std::optional<std::vector<std::string>> storedBefore;

private:
  const MemorySettings& settings_;
};

TEST_F(MainFrame, ALookIsStoredOnlyAfterItIsShown)
{
  WatchingWidgets watching(settings);
  CMainFrame watched(app, watching);
  watched.OnApplicationLook(206);
  EXPECT_THAT(watching.calls, ElementsAre("look 206"));
  EXPECT_EQ(watching.storedBefore, std::vector<std::string>());
  EXPECT_THAT(settings.written, ElementsAre("Workspace/ApplicationLook"));
  EXPECT_EQ(settings.values["Workspace/ApplicationLook"], 206);
}

TEST_F(MainFrame, AStoredLookOf219MarksNoEntryOfTheMenu)
{
  settings.values["Workspace/ApplicationLook"] = 219;
  app.LoadLook();
  EXPECT_EQ(app.applicationLook, 219);
  for (const int id : {205, 206, 207, 208, 209, 210, 215, 216, 217, 218}) {
    EXPECT_FALSE(frame.QueryCommand(id).checked) << id;
  }
}

TEST(PaneWidths, GiveThePromptTheRestEvenIfThatIsNegative)
{
  EXPECT_EQ(PaneWidths(1280), (std::array<int, 3>{780, 250, 250}));
  EXPECT_EQ(PaneWidths(400), (std::array<int, 3>{-100, 250, 250}));
}

}  // namespace
}  // namespace hullwright
