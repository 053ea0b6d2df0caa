#include <gmock/gmock.h>

#include "resources/CommandIds.h"
#include "support/ViewFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::Pair;

class PolylineTool : public test::ViewFixture {
protected:
  void Begin() { view.OnCommand(CommandId::DrawPolyline); }
  void Move(std::int32_t x, std::int32_t y) { view.OnMouseMove(false, {x, y}); }
  void Click(std::int32_t x, std::int32_t y)
  {
    Move(x, y);
    view.OnLButtonDown({x, y});
    view.OnLButtonUp({x, y});
  }

  const CShape& Finished() const { return *design.shapeGroups.at(0)->shapes.at(0); }
};

TEST_F(PolylineTool, TwoPressesAndARightPressGiveATwoVertexPolyline)
{
  Begin();
  EXPECT_TRUE(view.drawing);
  Click(400, 300);
  Click(500, 260);
  EXPECT_TRUE(host.events.empty());
  view.OnRButtonDown({600, 100});
  ASSERT_EQ(Finished().vertices.size(), 2U);
  EXPECT_TRUE(*Finished().vertices[0] == CShapeVertex(0.0, 0.0, 0.0));
  EXPECT_TRUE(*Finished().vertices[1] == CShapeVertex(25.0, 10.0, 0.0));
  EXPECT_EQ(Finished().style, nullptr);
  EXPECT_FALSE(view.drawing);
  EXPECT_EQ(view.newShape, nullptr);
  EXPECT_EQ(view.lastPoint, ClientPoint{});
  EXPECT_EQ(view.cursorPoint, (ClientPoint{500, 260}));
}

TEST_F(PolylineTool, APressReadsTheGridSettingsOnce)
{
  Begin();
  Click(400, 300);
  host.gridReadings = 0;
  view.OnLButtonDown({500, 260});
  EXPECT_EQ(view.newShape->vertices.size(), 2U);
  EXPECT_EQ(host.gridReadings, 1);
}

TEST_F(PolylineTool, AFinishedPolylineIsDrawnFromThenOn)
{
  Begin();
  Click(400, 300);
  Click(500, 260);
  view.OnRButtonDown({600, 100});
  for (int frame = 0; frame < 2; ++frame) {
    view.Repaint();
    EXPECT_EQ(recorder.Count("geometry"), 1);
  }
}

TEST_F(PolylineTool, FinishingNotifiesRepaintAndTreeButDoesNotModify)
{
  Begin();
  Click(400, 300);
  view.OnRButtonDown({1, 1});
  EXPECT_THAT(host.events, ElementsAre("changed"));
}

TEST_F(PolylineTool, ARightPressAtOnceGivesAnEmptyPolyline)
{
  Begin();
  view.OnRButtonDown({1, 1});
  EXPECT_TRUE(Finished().vertices.empty());
  EXPECT_EQ(Finished().type, ShapeType::Polyline);
}

TEST_F(PolylineTool, EachVertexRepaintsAndThePolylineShowsFromTheSecondOn)
{
  Begin();
  Click(400, 300);
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(recorder.Count("geometry"), 0);
  Click(500, 300);
  EXPECT_EQ(Frames(), 2);
  EXPECT_EQ(recorder.Count("geometry"), 1);
}

TEST_F(PolylineTool, BeginningTwiceKeepsWhatIsThere)
{
  Begin();
  Click(400, 300);
  Begin();
  EXPECT_EQ(view.newShape->vertices.size(), 1U);
}

TEST_F(PolylineTool, TheVertexIsTheBandsFreeEndAndNotThePress)
{
  host.grid.snap = 1;
  Begin();
  Move(414, 300);                  // world 3.5, snapped to 2.5, pixel 410
  view.OnLButtonDown({419, 306});  // elsewhere in the cell
  EXPECT_TRUE(*view.newShape->vertices.at(0) == CShapeVertex(2.5, 0.0, 0.0));
  EXPECT_EQ(view.lastPoint, (ClientPoint{410, 300}));
}

TEST_F(PolylineTool, APressBeforeAnyMoveIsTheUpperLeftCorner)
{
  Begin();
  view.OnLButtonDown({400, 300});
  EXPECT_TRUE(*view.newShape->vertices.at(0) == CShapeVertex(-100.0, 75.0, 0.0));
}

TEST_F(PolylineTool, APressOnAnItemAddsNothing)
{
  AddLine({{0.0, 0.0, 0.0}});
  Begin();
  Click(400, 300);
  EXPECT_TRUE(view.newShape->vertices.empty());
}

TEST_F(PolylineTool, ItsOwnVerticesCannotBePicked)
{
  Begin();
  Click(400, 300);
  Click(400, 300);
  EXPECT_EQ(view.newShape->vertices.size(), 2U);
}

TEST_F(PolylineTool, TheToolIsIgnoredWhileDrawing)
{
  host.cursorTool = CursorTool::ZoomIn;
  Begin();
  Click(400, 300);
  EXPECT_EQ(view.viewPort->width, 200.0);
}

TEST_F(PolylineTool, TheBandIsErasedAndDrawnFromTheLastVertexToTheSnappedPosition)
{
  host.grid.snap = 1;
  Begin();
  Move(400, 300);
  EXPECT_TRUE(pointer.lines.empty());
  Click(400, 300);
  pointer.lines.clear();
  Move(432, 301);
  Move(452, 299);
  EXPECT_THAT(pointer.lines, ElementsAre(Pair(ClientPoint{400, 300}, ClientPoint{400, 300}),
                                         Pair(ClientPoint{400, 300}, ClientPoint{430, 300}),
                                         Pair(ClientPoint{400, 300}, ClientPoint{430, 300}),
                                         Pair(ClientPoint{400, 300}, ClientPoint{450, 300})));
}

TEST_F(PolylineTool, WithTheFixedEndInTheFirstColumnNoBandIsDrawnButVerticesAreAdded)
{
  Begin();
  Click(0, 300);
  Click(400, 300);
  EXPECT_EQ(view.newShape->vertices.size(), 2U);
  EXPECT_TRUE(pointer.lines.empty());
}

TEST_F(PolylineTool, AfterwardsTheNextMoveClearsTheFreeEnd)
{
  Begin();
  Click(400, 300);
  view.OnRButtonDown({1, 1});
  Move(20, 20);
  EXPECT_EQ(view.cursorPoint, ClientPoint{});
}

TEST_F(PolylineTool, ThePolylineLandsOnTheSideInViewAtItsEnd)
{
  Begin();
  Click(400, 300);
  design.activeView = ViewSide::Front;
  view.OnRButtonDown({1, 1});
  EXPECT_EQ(design.shapeGroups.at(0)->viewCode, ViewSide::Front);
}

TEST_F(PolylineTool, AnItemCanBeDraggedWhileDrawing)
{
  CShapePolyline& line = AddLine({{50.0, 0.0, 0.0}});
  Begin();
  Move(600, 300);
  view.OnLButtonDown({600, 300});
  view.OnMouseMove(true, {640, 300});
  view.OnLButtonUp({640, 300});
  EXPECT_EQ(line.vertices[0]->x, 60.0);
  EXPECT_TRUE(view.drawing);
  EXPECT_TRUE(view.newShape->vertices.empty());
}

}  // namespace
}  // namespace hullwright
