#include <gmock/gmock.h>

#include "model/ShapePolygon.h"
#include "resources/CommandIds.h"
#include "support/ViewFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class ContextMenu : public test::ViewFixture {
protected:
  std::vector<int> Offered() const
  {
    std::vector<int> ids;
    for (const auto& [id, text] : pointer.offered) ids.push_back(NumberOf(id));
    return ids;
  }
};

TEST_F(ContextMenu, OnEmptySpaceOffersZoomVertexAndAnchor)
{
  view.OnRButtonDown({123, 45});
  EXPECT_THAT(pointer.offered,
              ElementsAre(Pair(CommandId::MenuZoomIn, u"Zoom &In"),
                          Pair(CommandId::MenuZoomOut, u"Zoom &Out"),
                          Pair(CommandId::MenuCenter, u"Ce&nter"), Pair(CommandId::None, u"-"),
                          Pair(CommandId::AddVertex, u"&Add Vertex..."),
                          Pair(CommandId::AddAnchor, u"&Add Anchor")));
  EXPECT_EQ(pointer.place, (ClientPoint{123, 45}));
  EXPECT_EQ(view.menuPoint, (ClientPoint{123, 45}));
}

TEST_F(ContextMenu, OnAVertexOffersToEditAddAndRemove)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnRButtonDown({400, 300});
  EXPECT_THAT(Offered(), ElementsAre(32790, 32792, 32793, 0, 32791, 32789, 32798));
  EXPECT_EQ(pointer.offered[4].second, u"&Edit Vertex...");
  EXPECT_EQ(pointer.offered[6].second, u"&Remove Vertex...");
}

TEST_F(ContextMenu, OnAnAnchorAndOnAnOffsetOffersWhatTheyTake)
{
  design.activeView = ViewSide::Top;
  AddAnchor(50.0, 50.0);
  view.OnRButtonDown({600, 100});
  EXPECT_THAT(pointer.offered.back(), Pair(CommandId::RemoveAnchor, u"&Remove Anchor..."));
  EXPECT_THAT(Offered(), ElementsAre(32790, 32792, 32793, 0, 32791, 32816));
  view.OnRButtonDown({440, 300});
  EXPECT_THAT(Offered(), ElementsAre(32790, 32792, 32793, 0, 32791));
}

TEST_F(ContextMenu, DuringADragNothingIsHit)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnMouseMove(false, {400, 300});
  view.OnMouseMove(true, {420, 300});
  view.OnRButtonDown({420, 300});
  EXPECT_THAT(Offered(), ElementsAre(32790, 32792, 32793, 0, 32789, 32815));
}

TEST_F(ContextMenu, DuringTheDragOfAnAnchorNothingIsHitEither)
{
  design.activeView = ViewSide::Top;
  AddAnchor(50.0, 50.0);
  view.OnMouseMove(false, {600, 100});
  view.OnMouseMove(true, {620, 100});
  ASSERT_TRUE(view.dragging);
  view.OnRButtonDown({620, 100});
  EXPECT_EQ(view.hitKind, HitKind::Anchor);
  EXPECT_THAT(Offered(), ElementsAre(32790, 32792, 32793, 0, 32789, 32815));
}

TEST_F(ContextMenu, WithoutAnItemOrASideNothingIsRemoved)
{
  view.hitKind = HitKind::Vertex;
  view.OnMenuCommand(CommandId::RemoveVertex);
  EXPECT_THAT(host.events, IsEmpty());
  design.activeView = ViewSide::Top;
  AddAnchor(50.0, 50.0);
  view.OnRButtonDown({600, 100});
  ASSERT_EQ(view.hitKind, HitKind::Anchor);
  design.activeView = ViewSide::None;
  view.OnMenuCommand(CommandId::RemoveAnchor);
  EXPECT_EQ(design.anchors->items.size(), 1U);
  EXPECT_THAT(host.events, IsEmpty());
}

TEST_F(ContextMenu, TheRightPressMakesTheGroupAndWhileDrawingOpensNoMenu)
{
  view.OnRButtonDown({1, 1});
  EXPECT_EQ(design.shapeGroups.size(), 1U);
  pointer.offered.clear();
  view.OnCommand(CommandId::DrawPolyline);
  view.OnRButtonDown({1, 1});
  EXPECT_THAT(pointer.offered, IsEmpty());
}

TEST_F(ContextMenu, ZoomsAndCentersAtThePress)
{
  view.OnRButtonDown({600, 300});
  view.OnMenuCommand(CommandId::MenuZoomIn);
  EXPECT_EQ(view.viewPort->width, 150.0);
  EXPECT_EQ((view.viewPort->left + view.viewPort->right) * 0.5, 50.0);
  view.OnMenuCommand(CommandId::MenuZoomOut);
  EXPECT_DOUBLE_EQ(view.viewPort->width, 200.0);
  view.OnMenuCommand(CommandId::MenuCenter);
  EXPECT_NEAR((view.viewPort->left + view.viewPort->right) * 0.5, 137.5, 1e-9);
  EXPECT_DOUBLE_EQ(view.viewPort->width, 200.0);
  EXPECT_EQ(Frames(), 3);
}

TEST_F(ContextMenu, OtherIdsOfItsRangeDoNothing)
{
  for (const int id : {32794, 32795, 32799, 32801, 32808, 32814, 1}) {
    view.OnMenuCommand(CommandId{id});
  }
  EXPECT_THAT(host.events, IsEmpty());
  EXPECT_EQ(Frames(), 0);
}

TEST_F(ContextMenu, EditingAVertexRepaintsAndNotifiesNobody)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 5.0}});
  host.accept = true;
  host.typed = CShapeVertex(1.0, 2.0, 3.0);
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_EQ(host.edited.z, 5.0);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(1.0, 2.0, 3.0));
  EXPECT_TRUE(design.shownInTree.at(line.vertices[0].get()) == CShapeVertex(0.0, 0.0, 5.0));
  EXPECT_THAT(host.events, ElementsAre("edit vertex"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ContextMenu, ACancelledEditChangesNothingAndDoesNotRepaint)
{
  const CShapePolyline& line = AddLine({{0.0, 0.0, 5.0}});
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(0.0, 0.0, 5.0));
  EXPECT_EQ(Frames(), 0);
}

TEST_F(ContextMenu, EditingOnEmptySpaceClearsThePick)
{
  AddLine({{0.0, 0.0, 5.0}});
  view.OnMouseMove(false, {400, 300});
  view.menuPoint = {10, 10};
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_EQ(view.hitKind, HitKind::None);
  EXPECT_THAT(host.events, IsEmpty());
}

TEST_F(ContextMenu, ADesignReplacedUnderTheDialogIsNotWritten)
{
  AddLine({{0.0, 0.0, 5.0}}).editing = true;
  host.accept = true;
  host.whileEditing = [this] { ClearGroups(design.shapeGroups); };
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::AddVertex);
  AddLine({{0.0, 0.0, 5.0}});
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_THAT(host.events, ElementsAre("edit vertex", "edit vertex"));
}

TEST_F(ContextMenu, AMarkedShapeThatIsNoPolylineTakesNoVertex)
{
  auto other = std::make_unique<CShapePolyline>();
  other->type = ShapeType::Text;
  other->editing = true;
  GetShapes(design.shapeGroups, design.activeView)->shapes.push_back(std::move(other));
  AddLine({{0.0, 0.0, 0.0}}).editing = true;
  view.OnRButtonDown({1, 1});
  view.OnMenuCommand(CommandId::AddVertex);
  EXPECT_THAT(host.events, IsEmpty());
}

TEST_F(ContextMenu, ARemovedVertexIsReleasedOnceAlsoAmongPolygons)
{
  const auto addPolygon = [this] {
    auto polygon = std::make_unique<CShapePolygon>();
    polygon->AddVertex(std::make_unique<CShapeVertex>(50.0, 50.0, 0.0), 0);
    GetShapes(design.shapeGroups, ViewSide::Top)->shapes.push_back(std::move(polygon));
  };
  addPolygon();
  const CShapePolyline& line = AddLine({{0.0, 0.0, 5.0}, {9.0, 9.0, 0.0}});
  addPolygon();
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::RemoveVertex);
  ASSERT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(line.vertices[0]->x, 9.0);
}

TEST_F(ContextMenu, WithoutAnAnchorListNothingIsAddedOrRemoved)
{
  AddLine({{0.0, 0.0, 0.0}});
  view.OnRButtonDown({400, 300});
  design.anchors.reset();
  view.OnMenuCommand(CommandId::AddAnchor);
  view.OnMenuCommand(CommandId::RemoveVertex);
  EXPECT_THAT(host.events, IsEmpty());
}

TEST_F(ContextMenu, EditingAnAnchorGoesThroughATemporaryVertex)
{
  design.activeView = ViewSide::Top;
  CAnchor& anchor = AddAnchor(50.0, 50.0);
  view.OnRButtonDown({600, 100});
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_TRUE(host.edited == CShapeVertex(50.0, 50.0, 0.0));
  EXPECT_EQ(anchor.attachmentX, 50.0);
  EXPECT_EQ(Frames(), 0);
  host.accept = true;
  host.typed = CShapeVertex(1.0, 2.0, 3.0);
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_EQ(anchor.attachmentX, 1.0);
  EXPECT_EQ(anchor.attachmentY, 2.0);
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ContextMenu, EditingAnOffsetOpensTheOffsetsDialogForIt)
{
  design.activeView = ViewSide::Top;
  host.accept = true;
  view.OnRButtonDown({360, 300});
  view.OnMenuCommand(CommandId::EditVertex);
  EXPECT_THAT(host.events, ElementsAre("edit offsets 13"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ContextMenu, AddVertexGoesToTheEndOfThePolylineMarkedInTheTree)
{
  AddLine({{0.0, 0.0, 0.0}});
  CShapePolyline& marked = AddLine({{50.0, 0.0, 0.0}, {60.0, 0.0, 0.0}});
  marked.editing = true;
  host.grid.snap = 1;
  host.accept = true;
  host.typed = CShapeVertex(7.0, 8.0, 9.0);
  view.OnRButtonDown({414, 300});
  view.OnMenuCommand(CommandId::AddVertex);
  EXPECT_TRUE(host.edited == CShapeVertex(2.5, 0.0, 0.0));
  ASSERT_EQ(marked.vertices.size(), 3U);
  EXPECT_TRUE(*marked.vertices[2] == CShapeVertex(7.0, 8.0, 9.0));
  EXPECT_THAT(host.events, ElementsAre("edit vertex", "modified"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ContextMenu, AddVertexDrawsTheGridThatIsStoredWhenItsDialogCloses)
{
  AddLine({{0.0, 0.0, 0.0}}).editing = true;
  host.accept = true;
  host.whileEditing = [this] { host.grid.show = 1; };
  view.OnRButtonDown({600, 500});
  view.OnMenuCommand(CommandId::AddVertex);
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(recorder.Count("line 390 300 410 300"), 1);  // the cross at the origin
}

TEST_F(ContextMenu, AddVertexWithoutAMarkedPolylineOrCancelledDoesNothing)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::AddVertex);
  EXPECT_THAT(host.events, IsEmpty());
  line.editing = true;
  view.OnMenuCommand(CommandId::AddVertex);
  EXPECT_THAT(host.events, ElementsAre("edit vertex"));
  EXPECT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(ContextMenu, AddAnchorTakesTheLowestNumberAndTheSnappedPlaceOnAnySide)
{
  AddAnchor(0.0, 0.0);
  host.grid.snap = 1;
  view.OnRButtonDown({414, 300});
  view.OnMenuCommand(CommandId::AddAnchor);
  ASSERT_EQ(design.anchors->items.size(), 2U);
  EXPECT_EQ(design.anchors->items[1]->id, 2U);
  EXPECT_EQ(design.anchors->items[1]->attachmentX, 2.5);
  EXPECT_TRUE(design.anchors->items[1]->name.empty());
  EXPECT_THAT(host.events, ElementsAre("modified"));
  EXPECT_EQ(Frames(), 1);
}

TEST_F(ContextMenu, RemovingAVertexNotifiesRepaintAndTreeButDoesNotModify)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}, {50.0, 0.0, 0.0}});
  view.OnRButtonDown({400, 300});
  view.OnMenuCommand(CommandId::RemoveVertex);
  ASSERT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(line.vertices[0]->x, 50.0);
  EXPECT_THAT(host.events, ElementsAre("changed"));
  EXPECT_EQ(view.hitKind, HitKind::None);
  EXPECT_EQ(view.dragVertex, PickedItem());
}

TEST_F(ContextMenu, RemovingAnAnchorTakesItOutOfTheList)
{
  design.activeView = ViewSide::Top;
  AddAnchor(50.0, 50.0);
  AddAnchor(70.0, 50.0);
  view.OnRButtonDown({600, 100});
  view.OnMenuCommand(CommandId::RemoveAnchor);
  ASSERT_EQ(design.anchors->items.size(), 1U);
  EXPECT_EQ(design.anchors->items[0]->id, 2U);
  EXPECT_THAT(host.events, ElementsAre("changed"));
}

TEST_F(ContextMenu, AMoveToEmptySpaceWhileTheMenuIsOpenLeavesNothingToRemove)
{
  CShapePolyline& line = AddLine({{0.0, 0.0, 0.0}});
  view.OnRButtonDown({400, 300});
  view.OnMouseMove(false, {600, 500});
  view.OnMenuCommand(CommandId::RemoveVertex);
  EXPECT_EQ(line.vertices.size(), 1U);
  EXPECT_THAT(host.events, IsEmpty());
}

}  // namespace
}  // namespace hullwright
