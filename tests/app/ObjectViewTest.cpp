#include "app/ObjectView.h"

#include <gmock/gmock.h>

#include <chrono>

#include "model/ShapePoint.h"
#include "resources/CommandIds.h"
#include "support/ObjectPaneFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class ObjectPane : public test::ObjectPaneFixture {};

TEST(ObjectTree, HasNoAnchorsBeforeItIsBuilt)
{
  DesignState design;
  CObjectTree tree(design);
  EXPECT_FALSE(tree.Anchors());
  tree.Rebuild();
  EXPECT_TRUE(tree.Anchors());
}

TEST_F(ObjectPane, ANewDesignShowsSevenEmptySidesAndNoAnchors)
{
  EXPECT_EQ(pane.Tree().Text(At({0})), u"Vessel Design");
  EXPECT_THAT(Texts(At({0})), ElementsAre("TOP", "BOTTOM", "RIGHT", "LEFT", "FRONT", "REAR", "3D"));
  EXPECT_THAT(Images(At({0})), ElementsAre(0, 0, 0, 0, 0, 0, 0));
  for (std::size_t side = 0; side < 7; ++side) EXPECT_THAT(Texts(At({0, side})), IsEmpty());
  EXPECT_EQ(pane.Tree().Text(At({1})), u"Anchors");
  EXPECT_THAT(Texts(At({1})), IsEmpty());
  EXPECT_FALSE(At({0, 7}));
}

TEST_F(ObjectPane, ListsPolylinesWithTheirPointsAndNothingElse)
{
  GetShapes(app.shapeGroups, ViewSide::Right)->shapes.push_back(std::make_unique<CShapePoint>());
  AddLine(ViewSide::Right, {{1.0, -2.5, 0.0}, {1234.5678, 0.0, -0.0004}});
  pane.BuildTree();
  EXPECT_THAT(Texts(At({0, 2})), ElementsAre("Polyline"));
  EXPECT_THAT(Texts(At({0, 2, 0})), ElementsAre("+1.000,-2.500,+0.000", "+1234.568,+0.000,-0.000"));
  EXPECT_THAT(Images(At({0, 2})), ElementsAre(5));
  EXPECT_THAT(Images(At({0, 2, 0})), ElementsAre(3, 3));
}

TEST_F(ObjectPane, AGroupOfAllSidesStandsUnderAllSeven)
{
  const CShapePolyline& line = AddLine(ViewSide::All, {{1.0, 0.0, 0.0}});
  app.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Top));
  app.shapeGroups.back()->shapes.push_back(std::make_unique<CShapePolyline>());
  pane.BuildTree();
  for (std::size_t side = 0; side < 7; ++side) {
    ASSERT_EQ(pane.Tree().ChildCount(At({0, side})), 1U) << side;
    EXPECT_EQ(pane.Tree().Shape(At({0, side, 0})), &line);
  }
}

TEST_F(ObjectPane, AnchorsShowTheirNumberAndWhetherTheyAreMarked)
{
  for (int i = 0; i < 2; ++i) app.anchors->items.push_back(app.anchors->NewAnchor());
  app.anchors->items[1]->marked = true;
  pane.BuildTree();
  EXPECT_THAT(Texts(At({1})), ElementsAre("Anchor #1", "Anchor #2"));
  EXPECT_THAT(Images(At({1})), ElementsAre(4, 9));
}

TEST_F(ObjectPane, WithoutAnAnchorListThereIsNoAnchorsRoot)
{
  app.anchors.reset();
  pane.BuildTree();
  EXPECT_FALSE(pane.Tree().Anchors());
  pane.OnContextMenu(At({0}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(CommandId{32791}, u"&Edit Point..."),
                                        Pair(CommandId{32798}, u"&Remove Point...")));
}

TEST_F(ObjectPane, ItemsOfBeforeARebuildAreNoItems)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  pane.BuildTree();
  const TreeItem old = At({0, 0, 0});
  pane.selectedItem = old;
  pane.BuildTree();
  EXPECT_FALSE(pane.Tree().IsCurrent(old));
  EXPECT_EQ(pane.Tree().Shape(old), nullptr);
  EXPECT_EQ(pane.Tree().Text(old), u"");
  EXPECT_FALSE(pane.selectedItem);
}

TEST_F(ObjectPane, TheFrameNotifiesAChangeOfTheDesign)
{
  frame.NotifyDesignChanged();
  EXPECT_EQ(control.rebuilds, 1);
}

TEST_F(ObjectPane, AVertexThatChangesWithoutARebuildKeepsItsText)
{
  CShapeVertex& vertex = *AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}, {4.0, 5.0, 6.0}}).vertices[0];
  pane.BuildTree();
  for (const double x : {7.0, 8.0}) {
    app.shownInTree.try_emplace(&vertex, vertex);
    vertex.x = x;
    EXPECT_EQ(pane.Tree().Text(At({0, 0, 0, 0})), u"+1.000,+2.000,+3.000");
    EXPECT_EQ(pane.Tree().Text(At({0, 0, 0, 1})), u"+4.000,+5.000,+6.000");
  }
  pane.BuildTree();
  EXPECT_EQ(pane.Tree().Text(At({0, 0, 0, 0})), u"+8.000,+2.000,+3.000");
}

TEST_F(ObjectPane, MenusGoByTheOrderOfTheTests)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  pane.OnContextMenu(At({0, 1}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(CommandId{32796}, u"&Add Polyline..."),
                                        Pair(CommandId{32795}, u"&Remove All Polylines...")));
  EXPECT_EQ(pane.selectedItem, At({0, 1}));
  pane.OnContextMenu(At({1}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(CommandId{32815}, u"&Add Anchor...")));
  pane.OnContextMenu(At({1, 0}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(CommandId{32816}, u"&Remove Anchor..."),
                                        Pair(CommandId{32817}, u"&Modify Anchor...")));
  for (const TreeItem& item : {At({0}), At({0, 0, 0}), At({0, 0, 0, 0})}) {
    control.menu.clear();
    pane.OnContextMenu(item);
    EXPECT_THAT(control.menu, ElementsAre(Pair(CommandId{32791}, u"&Edit Point..."),
                                          Pair(CommandId{32798}, u"&Remove Point...")));
  }
  control.menu.clear();
  pane.OnContextMenu({});
  EXPECT_THAT(control.menu, IsEmpty());
}

TEST_F(ObjectPane, AClickMarksAPolylineAndASecondOneTakesTheMarkAway)
{
  CShapePolyline& first = AddLine(ViewSide::Top, {});
  CShapePolyline& second = AddLine(ViewSide::Top, {});
  pane.BuildTree();
  recorder.calls.clear();
  pane.OnClick(At({0, 0}));
  EXPECT_EQ(Frames(), 0);
  pane.OnClick(At({0, 0, 1}));
  EXPECT_FALSE(first.editing);
  EXPECT_TRUE(second.editing);
  EXPECT_EQ(Frames(), 1);
  EXPECT_FALSE(document.IsModified());
  pane.OnClick(At({0, 0, 0}));
  EXPECT_TRUE(first.editing);
  EXPECT_FALSE(second.editing);
  pane.OnClick(At({0, 0, 0}));
  EXPECT_FALSE(first.editing);
}

TEST_F(ObjectPane, TheMarkedNodeAndAllBehindItShowTheMarkedImage)
{
  for (int i = 0; i < 3; ++i) AddLine(ViewSide::Top, {});
  pane.BuildTree();
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(5, 5, 5));
  pane.OnClick(At({0, 0}));
  pane.OnClick(At({0, 0, 1}));
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(2, 7, 7));
  pane.OnClick(At({0, 0, 1}));
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(2, 2, 2));
  pane.BuildTree();
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(5, 5, 5));
}

TEST_F(ObjectPane, ImagesFollowTheSideNodeClickedLastAndNotTheParent)
{
  AddLine(ViewSide::Top, {});
  AddLine(ViewSide::Bottom, {});
  pane.BuildTree();
  pane.OnClick(At({0, 0, 0}));
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(5));  // no side node was clicked yet
  pane.OnClick(At({0, 1}));
  pane.OnClick(At({0, 0, 0}));
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(5));
  EXPECT_THAT(Images(At({0, 1})), ElementsAre(2));
}

TEST_F(ObjectPane, ASideOfBeforeARebuildHasNoChildrenToShowMarksOn)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {});
  pane.BuildTree();
  pane.OnClick(At({0, 0}));
  pane.BuildTree();
  pane.OnClick(At({0, 0, 0}));
  EXPECT_TRUE(line.editing);
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(5));
}

TEST_F(ObjectPane, WithoutASideInViewShapeCommandsDoNothing)
{
  AddLine(ViewSide::Top, {});
  pane.BuildTree();
  control.rebuilds = 0;
  app.activeView = ViewSide{0};
  messages.answer = true;
  for (const CommandId id :
       {CommandId::AddPolyline, CommandId::RemoveAllPolylines, CommandId::RemovePolyline}) {
    Command(id, At({0, 0, 0}));
  }
  EXPECT_FALSE(NotifiedAll());
  EXPECT_THAT(messages.asked, IsEmpty());
}

TEST_F(ObjectPane, WithoutAnAnchorListNoAnchorIsAdded)
{
  app.anchors.reset();
  Command(CommandId::AddAnchor, At({0}));
  EXPECT_FALSE(NotifiedAll());
}

TEST_F(ObjectPane, AClickOnAPolylineOfAnotherSideOnlyClearsTheMarks)
{
  CShapePolyline& top = AddLine(ViewSide::Top, {});
  CShapePolyline& bottom = AddLine(ViewSide::Bottom, {});
  top.editing = true;
  pane.BuildTree();
  pane.OnClick(At({0, 1, 0}));
  EXPECT_FALSE(top.editing);
  EXPECT_FALSE(bottom.editing);
}

TEST_F(ObjectPane, ClicksElsewhereMarkNothing)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  recorder.calls.clear();
  for (const TreeItem& item : {TreeItem{}, At({0}), At({1}), At({1, 0}), At({0, 0, 0, 0})}) {
    pane.OnClick(item);
  }
  EXPECT_FALSE(line.editing);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(ObjectPane, ARebuildDoesNotPayForPoints)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {});
  for (int i = 0; i < 1'000'000; ++i) line.AddVertex(i, 0.0, 0.0);
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 1000; ++i) pane.BuildTree();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
  EXPECT_EQ(pane.Tree().ChildCount(At({0, 0, 0})), 1'000'000U);
  EXPECT_EQ(pane.Tree().Text(At({0, 0, 0, 999'999})), u"+999999.000,+0.000,+0.000");
}

TEST_F(ObjectPane, WithoutASideInViewAClickChangesNoMarkAndShowsThemAllTheSame)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {});
  line.editing = true;
  pane.BuildTree();
  app.activeView = ViewSide::None;
  recorder.calls.clear();
  pane.OnClick(At({0, 0}));
  pane.OnClick(At({0, 0, 0}));
  EXPECT_TRUE(line.editing);
  EXPECT_THAT(Images(At({0, 0})), ElementsAre(7));
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(app.shapeGroups.size(), 1U);
}

TEST_F(ObjectPane, TheMarksAreShownBeforeTheViewRepaints)
{
  AddLine(ViewSide::Top, {});
  pane.BuildTree();
  pane.OnClick(At({0, 0}));
  std::vector<int> images;
  notified.onNotification = [&] { images = Images(At({0, 0})); };
  pane.OnClick(At({0, 0, 0}));
  EXPECT_THAT(images, ElementsAre(7));
}

}  // namespace
}  // namespace hullwright
