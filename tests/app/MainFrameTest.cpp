#include <gmock/gmock.h>

#include <optional>
#include <ostream>

#include "base/Code.h"
#include "resources/CommandIds.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class MainFrame : public test::AppFixture {};

TEST_F(MainFrame, PassesEveryCodeButTheTreesOnToTheView)
{
  frame.Notify(Notification::RepaintDesign);
  EXPECT_EQ(Frames(), 1);
  frame.Notify(Notification::RebuildTree);
  frame.Notify(Notification{});
  EXPECT_EQ(Frames(), 1);
}

TEST_F(MainFrame, ShowsTheProgressOfAnImport)
{
  frame.StartProgress("Loading");
  frame.ShowProgress(50);
  frame.EndProgress();
  EXPECT_THAT(widgets.calls, ElementsAre("start Loading", "50 %", "end"));
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
  CommandId command;
  ViewSide side;
};

std::ostream& operator<<(std::ostream& out, const SideCase& row)
{
  return out << "command " << NumberOf(row.command);
}

class SideCommand : public MainFrame, public testing::WithParamInterface<SideCase> {};

TEST_P(SideCommand, BringsTheSideIntoViewAndOntoTheDropDown)
{
  EXPECT_TRUE(frame.OnCommand(GetParam().command));
  EXPECT_EQ(app.activeView, GetParam().side);
  EXPECT_THAT(widgets.calls,
              ElementsAre("image " + std::to_string(NumberOf(GetParam().command)), "invalidate"));
  EXPECT_EQ(frame.viewButtonImage, GetParam().command);
  EXPECT_EQ(Frames(), 1);
  EXPECT_FALSE(document.IsModified());
}

INSTANTIATE_TEST_SUITE_P(Sides, SideCommand,
                         testing::Values(SideCase{CommandId{32804}, ViewSide::Top},
                                         SideCase{CommandId{32805}, ViewSide::Bottom},
                                         SideCase{CommandId{32802}, ViewSide::Right},
                                         SideCase{CommandId{32803}, ViewSide::Left},
                                         SideCase{CommandId{32806}, ViewSide::Front},
                                         SideCase{CommandId{32807}, ViewSide::Rear}));

TEST_F(MainFrame, AnotherCodeLeavesTheImage)
{
  app.SetViewSide(ViewSide::All);
  EXPECT_EQ(app.activeView, ViewSide::All);
  EXPECT_THAT(widgets.calls, ElementsAre("invalidate"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(MainFrame, ASideChangeKeepsToolAndViewRectangle)
{
  app.cursorTool = CursorTool::Move;
  view.OnMouseWheel(120, {100, 100});
  const double left = view.viewPort->left;
  frame.OnCommand(CommandId::ViewLeft);
  EXPECT_EQ(app.cursorTool, CursorTool::Move);
  EXPECT_EQ(view.viewPort->left, left);
}

TEST_F(MainFrame, CursorModesExcludeEachOtherAndDoNotRepaint)
{
  EXPECT_FALSE(frame.QueryCommand(CommandId::CursorZoomIn).checked);
  frame.OnCommand(CommandId::CursorZoomIn);
  EXPECT_EQ(app.cursorTool, CursorTool::ZoomIn);
  EXPECT_TRUE(frame.QueryCommand(CommandId::CursorZoomIn).checked);
  frame.OnCommand(CommandId::CursorZoomOut);
  EXPECT_EQ(app.cursorTool, CursorTool::ZoomOut);
  EXPECT_FALSE(frame.QueryCommand(CommandId::CursorZoomIn).checked);
  frame.OnCommand(CommandId::CursorMove);
  EXPECT_EQ(app.cursorTool, CursorTool::Move);
  frame.OnCommand(CommandId::CursorMove);
  EXPECT_EQ(app.cursorTool, CursorTool::Move);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(MainFrame, TheDrawCommandIsCheckedWhileDrawing)
{
  EXPECT_FALSE(frame.QueryCommand(CommandId::DrawPolyline).checked);
  EXPECT_TRUE(frame.OnCommand(CommandId::DrawPolyline));
  EXPECT_TRUE(frame.QueryCommand(CommandId::DrawPolyline).checked);
  view.OnRButtonDown({1, 1});
  EXPECT_FALSE(frame.QueryCommand(CommandId::DrawPolyline).checked);
}

TEST_F(MainFrame, CommandsWithoutAHandlerAreDisabledAndDoNothing)
{
  for (const CommandId id :
       {CommandId::EditUndo, CommandId::EditRedo, CommandId::EditCut, CommandId::EditCopy,
        CommandId::EditPaste, CommandId::FilePrint, CommandId{1}}) {
    EXPECT_FALSE(frame.QueryCommand(id).enabled) << NumberOf(id);
    EXPECT_FALSE(frame.OnCommand(id)) << NumberOf(id);
  }
  EXPECT_EQ(Frames(), 0);
}

TEST_F(MainFrame, ADragNotifiesRepaintTreeAndDocument)
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
  GetShapes(app.shapeGroups, ViewSide::Top)->shapes.push_back(std::move(line));
  view.OnMouseMove(false, {400, 300});
  ASSERT_EQ(view.hitKind, HitKind::Vertex);
  document.OnNewDocument();
  view.OnMouseMove(true, {420, 300});
  view.OnLButtonUp({420, 300});
  EXPECT_EQ(view.hitVertex, PickedItem(ReleasedItem{}));
}

TEST_F(MainFrame, ALookIsShownThenStoredAndBearsTheMark)
{
  EXPECT_EQ(app.applicationLook, Look::VisualStudio2008);
  EXPECT_TRUE(frame.QueryCommand(CommandOf(Look::VisualStudio2008)).checked);
  EXPECT_TRUE(frame.OnCommand(CommandId{216}));
  EXPECT_THAT(widgets.calls, ElementsAre("look 216"));
  EXPECT_EQ(settings.values["Workspace/ApplicationLook"], 216);
  EXPECT_TRUE(frame.QueryCommand(CommandOf(Look::Black)).checked);
  EXPECT_FALSE(frame.QueryCommand(CommandOf(Look::VisualStudio2008)).checked);
  EXPECT_TRUE(frame.OnCommand(CommandId{213}));
  EXPECT_EQ(app.applicationLook, Look{213});
}

/// Looks at application and settings at the moment that a look is shown.
class WatchingWidgets : public test::FakeWidgets {
public:
  WatchingWidgets(const CHullwrightApp& app, const MemorySettings& settings)
      : app_(app), settings_(settings)
  {
  }
  void ApplyLook(Look look) override
  {
    FakeWidgets::ApplyLook(look);
    lookThen = app_.applicationLook;
    storedBefore = settings_.written;
  }
  std::optional<Look> lookThen;
  std::optional<std::vector<std::string>> storedBefore;

private:
  const CHullwrightApp& app_;
  const MemorySettings& settings_;
};

TEST_F(MainFrame, ALookIsStoredOnlyAfterItIsShown)
{
  WatchingWidgets watching(app, settings);
  CMainFrame watched(app, watching);
  watched.OnApplicationLook(Look{206});
  EXPECT_THAT(watching.calls, ElementsAre("look 206"));
  EXPECT_EQ(watching.lookThen, Look{206});
  EXPECT_EQ(watching.storedBefore, std::vector<std::string>());
  EXPECT_THAT(settings.written, ElementsAre("Workspace/ApplicationLook"));
  EXPECT_EQ(settings.values["Workspace/ApplicationLook"], 206);
}

TEST_F(MainFrame, AStoredLookOf219MarksNoEntryOfTheMenu)
{
  settings.values["Workspace/ApplicationLook"] = 219;
  app.LoadLook();
  EXPECT_EQ(app.applicationLook, Look::Windows7);
  for (const int id : {205, 206, 207, 208, 209, 210, 215, 216, 217, 218}) {
    EXPECT_FALSE(frame.QueryCommand(CommandId{id}).checked) << id;
  }
}

TEST(PaneWidths, GiveThePromptTheRestEvenIfThatIsNegative)
{
  EXPECT_EQ(PaneWidths(1280), (std::array<int, 3>{780, 250, 250}));
  EXPECT_EQ(PaneWidths(400), (std::array<int, 3>{-100, 250, 250}));
}

TEST(PaneWidths, WrapAroundForTheLeastNumber)
{
  // As a constant expression, in which an overflow would not compile.
  constexpr auto widths = PaneWidths(std::numeric_limits<int>::min());
  EXPECT_EQ(widths, (std::array<int, 3>{std::numeric_limits<int>::max() - 499, 250, 250}));
}

}  // namespace
}  // namespace hullwright
