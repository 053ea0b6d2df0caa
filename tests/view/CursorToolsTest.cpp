#include <gmock/gmock.h>

#include "base/Code.h"
#include "resources/CommandIds.h"
#include "support/ViewFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class View : public test::ViewFixture {};

TEST_F(View, BeginsIdle)
{
  const CHullwrightView fresh(design, host, {messages, pointer, pointer, pointer});
  EXPECT_FALSE(fresh.dragging);
  EXPECT_FALSE(fresh.drawing);
  EXPECT_EQ(fresh.hitKind, HitKind::None);
  EXPECT_EQ(fresh.viewPort, nullptr);
  EXPECT_EQ(fresh.newShape, nullptr);
  EXPECT_TRUE(fresh.statusText.empty());
  EXPECT_EQ(fresh.dragVertex, PickedItem());
  EXPECT_EQ(fresh.hitVertex, PickedItem());
  EXPECT_EQ(fresh.cursorPoint, ClientPoint{});
  EXPECT_EQ(fresh.lastPoint, ClientPoint{});
  EXPECT_EQ(fresh.menuPoint, ClientPoint{});
}

TEST_F(View, CreationHangsTheCanvasOnTheViewPort)
{
  EXPECT_EQ(view.viewPort.get(), design.viewPort);
  ASSERT_NE(view.viewPort->canvas, nullptr);
  EXPECT_NE(view.viewPort->canvas->Target(), nullptr);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(View, ACanvasThatFailsIsReportedAndTheViewGoesOn)
{
  DesignState other;
  GiveViewPort(other);
  CHullwrightView blind(other, host, {messages, pointer, pointer, pointer});
  blind.OnCreate(nullptr);
  EXPECT_THAT(messages.shown,
              ElementsAre(u"Failed to initialize Canvas, hWnd == nullptr or window is invalid!"));
  blind.OnSize(800, 600);
  blind.OnMouseWheel(120, {400, 300});
  EXPECT_EQ(other.viewPort->width, 150.0);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(View, AFrameThatFailsIsNeitherReportedNorRepeated)
{
  recorder.failing = DrawingFailure::FrameEnd;
  recorder.failCode = recreateTarget;
  view.Repaint();
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(Frames(), 1);
}

TEST_F(View, WithoutAViewPortThereIsNoCanvasAndNothingHappens)
{
  DesignState other;
  host.cursorTool = CursorTool::ZoomIn;
  CHullwrightView blind(other, host, {messages, pointer, pointer, pointer});
  blind.OnCreate(&recorder);
  blind.OnSize(800, 600);
  blind.OnMouseMove(false, {1, 1});
  EXPECT_EQ(blind.statusText, u"X: +00.00 Y: +00.00");
  blind.OnLButtonDown({1, 1});
  blind.OnMouseWheel(-120, {1, 1});
  blind.OnCommand(CommandId::ShowAll);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(Frames(), 0);
}

TEST_F(View, ItsEndDestroysTheViewPort)
{
  DesignState other;
  GiveViewPort(other);
  {
    CHullwrightView shortLived(other, host, {messages, pointer, pointer, pointer});
    shortLived.OnCreate(&recorder);
  }
  EXPECT_EQ(other.viewPort, nullptr);
}

TEST_F(View, AResizeReachesTargetAndViewPortAndRepaints)
{
  view.OnSize(400, 100);
  EXPECT_EQ(recorder.Lines().front(), "resize 400 100");
  EXPECT_EQ(view.viewPort->screenWidth, 400.0);
  EXPECT_EQ(view.viewPort->height, 50.0);
  EXPECT_EQ(Frames(), 1);
}

struct ToolCase {
  CursorTool tool;
  double width;
  double centreX;
  int frames;
};

std::ostream& operator<<(std::ostream& out, const ToolCase& row)
{
  return out << "tool " << NumberOf(row.tool);
}

class Tool : public View, public testing::WithParamInterface<ToolCase> {};

TEST_P(Tool, ActsOnALeftPressOnEmptySpace)
{
  host.cursorTool = GetParam().tool;
  view.OnLButtonDown({600, 300});
  EXPECT_NEAR(view.viewPort->width, GetParam().width, 1e-9);
  EXPECT_NEAR((view.viewPort->left + view.viewPort->right) * 0.5, GetParam().centreX, 1e-9);
  EXPECT_EQ(Frames(), GetParam().frames);
}

INSTANTIATE_TEST_SUITE_P(Tools, Tool,
                         testing::Values(ToolCase{CursorTool::None, 200.0, 0.0, 0},
                                         ToolCase{CursorTool::ZoomIn, 150.0, 50.0, 1},
                                         ToolCase{CursorTool::ZoomOut, 800.0 / 3.0, 50.0, 1},
                                         ToolCase{CursorTool::Move, 200.0, 50.0, 1},
                                         ToolCase{CursorTool{4}, 200.0, 0.0, 0}));

TEST_F(View, APressOnAVertexWithAToolDoesNotZoom)
{
  AddLine({{0.0, 0.0, 0.0}});
  host.cursorTool = CursorTool::ZoomIn;
  view.OnLButtonDown({400, 300});
  EXPECT_EQ(view.viewPort->width, 200.0);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(View, TheWheelZoomsOneStepWhateverItsDelta)
{
  view.OnMouseWheel(480, {400, 300});
  EXPECT_EQ(view.viewPort->width, 150.0);
  view.OnMouseWheel(-1, {400, 300});
  EXPECT_DOUBLE_EQ(view.viewPort->width, 200.0);
  view.OnMouseWheel(0, {400, 300});
  EXPECT_DOUBLE_EQ(view.viewPort->width, 150.0);
  EXPECT_EQ(Frames(), 3);
}

TEST_F(View, TheWheelZoomsOnAVertexToo)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnMouseWheel(120, {400, 300});
  EXPECT_EQ(view.viewPort->width, 150.0);
}

TEST_F(View, TheWheelIsIgnoredWhileDrawing)
{
  view.OnCommand(CommandId::DrawPolyline);
  view.OnMouseWheel(120, {400, 300});
  EXPECT_EQ(view.viewPort->width, 200.0);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(View, TheStatusTextHasASignAndIsFilledWithZeros)
{
  view.OnMouseMove(false, {406, 309});
  EXPECT_EQ(view.statusText, u"X: +01.50 Y: -02.25");
  view.OnMouseMove(false, {800, 300});
  EXPECT_EQ(view.statusText, u"X: +100.00 Y: +00.00");
}

TEST_F(View, TheStatusTextShowsTheSnappedPosition)
{
  host.grid.snap = 1;
  view.OnMouseMove(false, {406, 309});
  EXPECT_EQ(view.statusText, u"X: +02.50 Y: -02.50");
}

TEST_F(View, AMoveWithoutADragDoesNotRepaint)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnMouseMove(false, {400, 300});
  view.OnMouseMove(true, {10, 10});
  view.OnMouseMove(false, {500, 500});
  EXPECT_EQ(Frames(), 1);  // the one move with the button held on the vertex
}

TEST_F(View, TheCursorIsACrossAndOverAnItemAHand)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnSetCursor();
  view.OnMouseMove(false, {10, 10});
  EXPECT_THAT(pointer.shapes, ElementsAre(CursorShape::Cross));
  view.OnSetCursor();
  view.OnMouseMove(false, {400, 300});
  EXPECT_THAT(pointer.shapes,
              ElementsAre(CursorShape::Cross, CursorShape::Cross, CursorShape::Hand));
  view.OnMouseMove(true, {420, 300});
  pointer.shapes.clear();
  view.OnSetCursor();
  EXPECT_THAT(pointer.shapes, ElementsAre(CursorShape::Hand));
}

TEST_F(View, ActsOnTheRepaintNotificationOnly)
{
  view.OnUser(Notification::RebuildTree);
  view.OnUser(Notification{});
  EXPECT_EQ(Frames(), 0);
  view.OnUser(Notification::RepaintDesign);
  EXPECT_EQ(Frames(), 1);
}

TEST_F(View, ShowAllFitsTheGroupInView)
{
  AddLine({{-60.0, -3.0, 0.0}, {60.0, 3.0, 0.0}});
  view.OnCommand(CommandId::ShowAll);
  EXPECT_EQ(view.viewPort->left, -80.0);
  EXPECT_EQ(view.viewPort->right, 80.0);
  EXPECT_EQ(Frames(), 1);
}

TEST_F(View, ShowAllWithoutShapesLeavesTheViewButMakesTheGroup)
{
  view.OnCommand(CommandId::ShowAll);
  EXPECT_EQ(view.viewPort->width, 200.0);
  EXPECT_EQ(Frames(), 0);
  ASSERT_EQ(design.shapeGroups.size(), 1U);
  EXPECT_EQ(design.shapeGroups[0]->viewCode, ViewSide::Right);
}

TEST_F(View, ShowAllWithShapesThatHaveNoExtentDoesNotHang)
{
  AddLine({});
  host.grid.show = 1;
  view.OnCommand(CommandId::ShowAll);
  view.OnMouseMove(false, {5, 5});
  EXPECT_EQ(Frames(), 1);
}

TEST_F(View, CommandsOfOthersDoNothing)
{
  view.OnCommand(CommandId::CursorZoomIn);
  view.OnCommand(CommandId{32799});
  EXPECT_FALSE(view.drawing);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(View, TheUnitsPaneShowsTheLongName)
{
  EXPECT_EQ(view.UnitsPaneText(), u"Units: ");
  host.unitName = u"metre";
  EXPECT_EQ(view.UnitsPaneText(), u"Units: metre");
}

}  // namespace
}  // namespace hullwright
