#include "app/ObjectView.h"

#include <gmock/gmock.h>

#include <chrono>

#include "base/Text.h"
#include "model/ShapePoint.h"
#include "resources/CommandIds.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class FakeTreeControl : public ITreeControl {
public:
  void BeforeRebuild() override { ++announced; }
  void Rebuilt() override
  {
    ++rebuilds;
    EXPECT_EQ(announced, 1);
    announced = 0;
  }
  void ImagesChanged() override { ++imageChanges; }
  void ShowMenu(std::span<const PopupEntry> entries) override
  {
    menu.clear();
    for (const PopupEntry& entry : entries) menu.emplace_back(entry.id, entry.text);
  }
  int announced = 0;
  int rebuilds = 0;
  int imageChanges = 0;
  std::vector<std::pair<int, std::u16string>> menu;
};

class ObjectPane : public test::AppFixture {
protected:
  ObjectPane()
  {
    frame.objectView = &pane;
    pane.BuildTree();
    control.rebuilds = 0;
  }
  ~ObjectPane() override { frame.objectView = nullptr; }

  CShapePolyline& AddLine(std::int32_t side, std::initializer_list<CShapeVertex> vertices)
  {
    auto line = std::make_unique<CShapePolyline>();
    for (const CShapeVertex& v : vertices) line->AddVertex(v.x, v.y, v.z);
    CShapePolyline& added = *line;
    GetShapes(app.shapeGroups, side)->shapes.push_back(std::move(line));
    return added;
  }

  /// The item at a path of child numbers from the top: 0 the design, 1 the anchors.
  TreeItem At(std::initializer_list<std::size_t> path)
  {
    TreeItem item;
    for (const std::size_t number : path) {
      if (item) {
        item = pane.Tree().Child(item, number);
      } else {
        item = number == 0 ? pane.Tree().Root() : pane.Tree().Anchors();
      }
    }
    return item;
  }

  std::vector<std::string> Texts(const TreeItem& parent)
  {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < pane.Tree().ChildCount(parent); ++i) {
      texts.push_back(Utf8FromWide(pane.Tree().Text(pane.Tree().Child(parent, i))));
    }
    return texts;
  }

  std::vector<int> Images(const TreeItem& parent)
  {
    std::vector<int> images;
    for (std::size_t i = 0; i < pane.Tree().ChildCount(parent); ++i) {
      images.push_back(pane.Tree().Image(pane.Tree().Child(parent, i)));
    }
    return images;
  }

  void Command(int id, const TreeItem& selected, test::DialogScript script = {})
  {
    pane.selectedItem = selected;
    dialogs.script = std::move(script);
    backEnd.log.clear();
    pane.OnCommand(id);
  }

  /// Whether the last command told all three: a repaint, a rebuild and a modified document.
  bool ToldAll()
  {
    const bool told = Frames() == 1 && control.rebuilds == 1 && document.IsModified();
    const bool silent = Frames() == 0 && control.rebuilds == 0 && !document.IsModified();
    EXPECT_TRUE(told || silent);
    control.rebuilds = 0;
    document.SetModifiedFlag(false);
    return told;
  }

  FakeTreeControl control;
  CObjectView pane{app, control};
};

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

TEST_F(ObjectPane, AChangeOfTheDesignIsToldByTheFrame)
{
  frame.NotifyDesignChanged();
  EXPECT_EQ(control.rebuilds, 1);
}

TEST_F(ObjectPane, MenusGoByTheOrderOfTheTests)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  pane.OnContextMenu(At({0, 1}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(32796, u"&Add Polyline..."),
                                        Pair(32795, u"&Remove All Polylines...")));
  EXPECT_EQ(pane.selectedItem, At({0, 1}));
  pane.OnContextMenu(At({1}));
  EXPECT_THAT(control.menu, ElementsAre(Pair(32815, u"&Add Anchor...")));
  pane.OnContextMenu(At({1, 0}));
  EXPECT_THAT(control.menu,
              ElementsAre(Pair(32816, u"&Remove Anchor..."), Pair(32817, u"&Modify Anchor...")));
  for (const TreeItem& item : {At({0}), At({0, 0, 0}), At({0, 0, 0, 0})}) {
    control.menu.clear();
    pane.OnContextMenu(item);
    EXPECT_THAT(control.menu,
                ElementsAre(Pair(32791, u"&Edit Point..."), Pair(32798, u"&Remove Point...")));
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
  backEnd.log.clear();
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
  app.activeView = 0;
  messages.answer = true;
  for (const int id : {hullwright::Command::AddPolyline, hullwright::Command::RemoveAllPolylines,
                       hullwright::Command::RemovePolyline}) {
    Command(id, At({0, 0, 0}));
  }
  EXPECT_FALSE(ToldAll());
  EXPECT_THAT(messages.asked, IsEmpty());
}

TEST_F(ObjectPane, WithoutAnAnchorListNoAnchorIsAdded)
{
  app.anchors.reset();
  Command(hullwright::Command::AddAnchor, At({0}));
  EXPECT_FALSE(ToldAll());
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
  backEnd.log.clear();
  for (const TreeItem& item : {TreeItem{}, At({0}), At({1}), At({1, 0}), At({0, 0, 0, 0})}) {
    pane.OnClick(item);
  }
  EXPECT_FALSE(line.editing);
  EXPECT_EQ(Frames(), 0);
}

TEST_F(ObjectPane, AddPolylineAppendsAnEmptyOneToTheSideInView)
{
  app.activeView = ViewSide::Left;
  Command(Command::AddPolyline, At({0, 0}));
  EXPECT_TRUE(ToldAll());
  ASSERT_EQ(app.shapeGroups.size(), 1U);
  EXPECT_EQ(app.shapeGroups[0]->viewCode, ViewSide::Left);
  EXPECT_EQ(app.shapeGroups[0]->shapes.at(0)->type, ShapeType::Polyline);
  EXPECT_TRUE(app.shapeGroups[0]->shapes[0]->vertices.empty());
}

TEST_F(ObjectPane, RemoveAllClearsTheSideInViewWhicheverNodeWasClicked)
{
  AddLine(ViewSide::Top, {});
  AddLine(ViewSide::Bottom, {});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::RemoveAllPolylines, At({0, 1}));
  EXPECT_THAT(messages.asked, ElementsAre(u"Are you sure you want to delete all shapes ?"));
  EXPECT_FALSE(ToldAll());
  messages.answer = true;
  Command(Command::RemoveAllPolylines, At({0, 1}));
  EXPECT_TRUE(ToldAll());
  EXPECT_TRUE(FindViewGroup(app.shapeGroups, ViewSide::Top)->shapes.empty());
  EXPECT_EQ(FindViewGroup(app.shapeGroups, ViewSide::Bottom)->shapes.size(), 1U);
}

TEST_F(ObjectPane, AddAnchorAppendsOneWithTheLowestNumber)
{
  Command(Command::AddAnchor, At({1}));
  EXPECT_TRUE(ToldAll());
  ASSERT_EQ(app.anchors->items.size(), 1U);
  EXPECT_EQ(app.anchors->items[0]->id, 1U);
}

TEST_F(ObjectPane, RemoveAndModifyAnchorDoNothing)
{
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::RemoveAnchor, At({1, 0}));
  Command(Command::ModifyAnchor, At({1, 0}));
  EXPECT_FALSE(ToldAll());
  EXPECT_EQ(app.anchors->items.size(), 1U);
}

TEST_F(ObjectPane, EditPointWritesTheVertexAndCancelledTellsNobody)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::EditVertex, At({0, 0, 0, 0}), {.ok = false, .fields = {{1008, u"9"}}});
  EXPECT_FALSE(ToldAll());
  Command(Command::EditVertex, At({0, 0, 0, 0}), {.ok = true, .fields = {{1008, u"9"}}});
  EXPECT_TRUE(ToldAll());
  EXPECT_EQ(line.vertices[0]->x, 9.0);
  EXPECT_THAT(Texts(At({0, 0, 0})), ElementsAre("+9.000,+2.000,+3.000"));
}

TEST_F(ObjectPane, PointCommandsOnNodesThatAreNoPointsDoNothing)
{
  AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  messages.answer = true;
  for (const TreeItem& item : {TreeItem{}, At({0}), At({0, 0}), At({0, 0, 0}), At({1})}) {
    Command(Command::EditVertex, item, {.ok = true});
    Command(Command::RemoveVertex, item);
  }
  EXPECT_FALSE(ToldAll());
  EXPECT_THAT(dialogs.shown, IsEmpty());
  EXPECT_THAT(messages.asked, IsEmpty());
}

TEST_F(ObjectPane, RemovePointAsksAndTakesItOut)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::RemoveVertex, At({0, 0, 0, 0}));
  EXPECT_THAT(
      messages.asked,
      ElementsAre(u"Are you sure you want to delete the selected point from the polyline ?"));
  EXPECT_FALSE(ToldAll());
  messages.answer = true;
  Command(Command::RemoveVertex, At({0, 0, 0, 0}));
  EXPECT_TRUE(ToldAll());
  ASSERT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(line.vertices[0]->x, 2.0);
}

TEST_F(ObjectPane, AddPointAppendsAtTheEndOfTheSelectedPolyline)
{
  const CShapePolyline& line = AddLine(ViewSide::Bottom, {{1.0, 0.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::AddVertex, At({0, 1, 0}), {.ok = false});
  Command(Command::AddVertex, At({0, 1}), {.ok = true});
  EXPECT_FALSE(ToldAll());
  Command(Command::AddVertex, At({0, 1, 0}), {.ok = true, .fields = {{1009, u"4"}}});
  EXPECT_TRUE(ToldAll());
  EXPECT_EQ(dialogs.startTexts[1008], u"0.000");
  ASSERT_EQ(line.vertices.size(), 2U);
  EXPECT_TRUE(*line.vertices[1] == CShapeVertex(0.0, 4.0, 0.0));
}

TEST_F(ObjectPane, RemovePolylineAsksAndReleasesIt)
{
  AddLine(ViewSide::Top, {});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::RemovePolyline, At({0, 0, 0}));
  EXPECT_THAT(messages.asked, ElementsAre(u"Are you sure you want to delete the selected shape ?"));
  EXPECT_FALSE(ToldAll());
  messages.answer = true;
  Command(Command::RemovePolyline, At({0, 0, 0}));
  EXPECT_TRUE(ToldAll());
  EXPECT_TRUE(app.shapeGroups[0]->shapes.empty());
}

TEST_F(ObjectPane, ZoomPolylineFramesItAndOnlyRepaints)
{
  AddLine(ViewSide::Bottom, {{10.0, 20.0, 0.0}, {50.0, 30.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(Command::ZoomPolyline, At({0, 1, 0}));
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(control.rebuilds, 0);
  EXPECT_FALSE(document.IsModified());
  EXPECT_NEAR((app.viewPort->left + app.viewPort->right) * 0.5, 30.0, 1e-9);
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

}  // namespace
}  // namespace hullwright
