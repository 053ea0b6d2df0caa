#include <gmock/gmock.h>

#include "base/Code.h"
#include "model/ShapePoint.h"
#include "support/ViewFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class Picking : public test::ViewFixture {
protected:
  void Hover(std::int32_t x, std::int32_t y) { view.OnMouseMove(false, {x, y}); }
  void Drag(std::int32_t x, std::int32_t y) { view.OnMouseMove(true, {x, y}); }

  HitKind KindAt(std::int32_t x, std::int32_t y)
  {
    Hover(x, y);
    return view.hitKind;
  }
};

TEST_F(Picking, TheBoxTakesFivePixelsBeforeAndFourBehind)
{
  AddLine({{-75.0, 50.0, 0.0}});  // pixel (100, 100)
  EXPECT_EQ(KindAt(105, 100), HitKind::Vertex);
  EXPECT_EQ(KindAt(106, 100), HitKind::None);
  EXPECT_EQ(KindAt(96, 100), HitKind::Vertex);
  EXPECT_EQ(KindAt(95, 100), HitKind::None);
  EXPECT_EQ(KindAt(100, 105), HitKind::Vertex);
  EXPECT_EQ(KindAt(100, 95), HitKind::None);
}

TEST_F(Picking, TheFirstInOrderWinsAndNotTheNearest)
{
  CShapePolyline& first = AddLine({{0.0, 0.0, 0.0}});
  AddLine({{0.5, 0.0, 0.0}});
  Hover(402, 300);
  EXPECT_EQ(view.dragVertex, PickedItem(first.vertices[0].get()));
}

TEST_F(Picking, OnTheTopSideOffsetsGoBeforeAnchorsAndThoseBeforeVertices)
{
  design.activeView = ViewSide::Top;
  AddLine({{50.0, 50.0, 0.0}, {60.0, 50.0, 0.0}});
  AddAnchor(50.0, 50.0);
  *design.offsetPivot = CShapeVertex(50.0, 50.0, 0.0);
  EXPECT_EQ(KindAt(600, 100), HitKind::Pivot);
  *design.offsetTransducer = CShapeVertex(50.0, 50.0, 0.0);
  EXPECT_EQ(KindAt(600, 100), HitKind::Transducer);
  *design.offsetGps = CShapeVertex(50.0, 50.0, 0.0);
  EXPECT_EQ(KindAt(600, 100), HitKind::Gps);
  design.offsetGps.reset();
  design.offsetTransducer.reset();
  design.offsetPivot.reset();
  EXPECT_EQ(KindAt(600, 100), HitKind::Anchor);
  design.anchors->Clear();
  view.DropReleasedItems();
  EXPECT_EQ(KindAt(600, 100), HitKind::Vertex);
}

TEST_F(Picking, OtherSidesOfferVerticesOnly)
{
  for (const ViewSide side : eachViewSide) {
    if (side == ViewSide::Top) continue;
    design.activeView = side;
    AddLine({{50.0, 50.0, 0.0}});
    EXPECT_EQ(KindAt(440, 300), HitKind::None) << NumberOf(side);
    EXPECT_EQ(KindAt(600, 100), HitKind::Vertex) << NumberOf(side);
  }
  AddAnchor(0.0, 0.0);
  EXPECT_EQ(KindAt(400, 300), HitKind::None);
  EXPECT_EQ(KindAt(440, 300), HitKind::None);
  design.activeView = ViewSide::All;
  EXPECT_EQ(KindAt(400, 300), HitKind::Anchor);
  EXPECT_EQ(KindAt(440, 300), HitKind::Gps);
}

TEST_F(Picking, PointsOfferNoVertices)
{
  auto point = std::make_unique<CShapePoint>();
  GetShapes(design.shapeGroups, design.activeView)->shapes.push_back(std::move(point));
  EXPECT_EQ(KindAt(400, 300), HitKind::None);
}

TEST_F(Picking, PickingMakesNoGroup)
{
  Hover(400, 300);
  EXPECT_TRUE(design.shapeGroups.empty());
}

TEST_F(Picking, TheEndOfAHoverKeepsTheItemHitLast)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  Hover(500, 500);
  EXPECT_EQ(view.hitKind, HitKind::None);
  EXPECT_EQ(view.dragVertex, PickedItem());
  EXPECT_EQ(view.hitVertex, PickedItem(line.vertices[0].get()));
}

TEST_F(Picking, ADragMovesTheVertexAndKeepsItsZ)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 7.0}});
  Hover(400, 300);
  view.OnLButtonDown({400, 300});
  Drag(480, 340);
  EXPECT_TRUE(view.dragging);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(20.0, -10.0, 7.0));
  EXPECT_EQ(Frames(), 1);
  EXPECT_TRUE(host.events.empty());
  EXPECT_TRUE(design.shownInTree.at(line.vertices[0].get()) == CShapeVertex(0.0, 0.0, 7.0));
  view.OnLButtonUp({500, 300});
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(25.0, 0.0, 7.0));
  EXPECT_THAT(host.events, ElementsAre("changed", "modified"));
  EXPECT_FALSE(view.dragging);
  EXPECT_EQ(view.hitKind, HitKind::None);
  EXPECT_EQ(view.dragVertex, PickedItem());
}

TEST_F(Picking, AMoveReadsTheGridSettingsOnce)
{
  AddLine({{0.0, 0.0, 0.0}});
  host.gridReadings = 0;
  Hover(400, 300);
  EXPECT_EQ(host.gridReadings, 1);
  view.OnLButtonDown({400, 300});
  host.gridReadings = 0;
  Drag(480, 340);
  EXPECT_TRUE(view.dragging);
  EXPECT_EQ(host.gridReadings, 1);
}

TEST_F(Picking, ADragSnapsToTheGrid)
{
  host.grid.snap = 1;
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  Drag(416, 300);  // world (4, 0)
  EXPECT_EQ(line.vertices[0]->x, 5.0);
}

TEST_F(Picking, OffsetsAndAnchorsAreDraggedAlike)
{
  design.activeView = ViewSide::Top;
  CAnchor& anchor = AddAnchor(-50.0, -50.0);
  Hover(200, 500);
  Drag(240, 500);
  view.OnLButtonUp({240, 500});
  EXPECT_EQ(anchor.attachmentX, -40.0);
  EXPECT_EQ(anchor.attachmentY, -50.0);
  Hover(440, 300);
  Drag(440, 200);
  view.OnLButtonUp({440, 200});
  EXPECT_TRUE(*design.offsetGps == CShapeVertex(10.0, 25.0, 0.0));
}

TEST_F(Picking, DuringADragNothingElseIsPicked)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}, {25.0, 0.0, 0.0}});
  Hover(400, 300);
  Drag(500, 300);
  Drag(500, 310);
  EXPECT_EQ(view.dragVertex, PickedItem(line.vertices[0].get()));
}

TEST_F(Picking, AButtonHeldFromEmptySpaceTakesAnItemUpOnTheWay)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  view.OnLButtonDown({300, 300});
  Drag(350, 300);
  EXPECT_FALSE(view.dragging);
  Drag(400, 300);
  Drag(440, 300);
  EXPECT_TRUE(view.dragging);
  EXPECT_EQ(line.vertices[0]->x, 10.0);
}

TEST_F(Picking, AReleaseWithoutADragNotifiesNobody)
{
  AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  view.OnLButtonDown({400, 300});
  view.OnLButtonUp({400, 300});
  EXPECT_TRUE(host.events.empty());
  EXPECT_EQ(view.hitKind, HitKind::None);
}

TEST_F(Picking, ADragWhoseReleaseIsMissedGoesOnUntilOneComes)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}, {50.0, 0.0, 0.0}});
  Hover(400, 300);
  Drag(420, 300);
  Hover(600, 300);  // the button was let go outside
  EXPECT_TRUE(view.dragging);
  EXPECT_EQ(line.vertices[0]->x, 5.0);
  view.OnLButtonUp({440, 300});
  EXPECT_EQ(line.vertices[0]->x, 10.0);
  EXPECT_THAT(host.events, ElementsAre("changed", "modified"));
}

TEST_F(Picking, AnItemReleasedDuringADragIsNotWritten)
{
  AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  Drag(410, 300);
  ClearGroups(design.shapeGroups);
  view.DropReleasedItems();
  Drag(420, 300);
  view.OnLButtonUp({430, 300});
  EXPECT_EQ(view.hitVertex, PickedItem(ReleasedItem{}));
  EXPECT_THAT(host.events, ElementsAre("changed", "modified"));
}

TEST_F(Picking, ItemsThatAreStillThereSurviveARebuild)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  view.DropReleasedItems();
  EXPECT_EQ(view.dragVertex, PickedItem(line.vertices[0].get()));
}

TEST_F(Picking, ADragWithoutAKindOrAnItemWritesNothingAndNotifiesNobody)
{
  const CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  Hover(400, 300);
  view.hitKind = HitKind::None;
  Drag(440, 300);
  view.OnLButtonUp({480, 300});
  EXPECT_EQ(line.vertices[0]->x, 0.0);
  view.dragging = true;
  view.hitKind = HitKind::Vertex;
  view.OnLButtonUp({480, 300});
  EXPECT_TRUE(host.events.empty());
  EXPECT_EQ(Frames(), 0);
}

}  // namespace
}  // namespace hullwright
