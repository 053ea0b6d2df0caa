#include <gmock/gmock.h>

#include <functional>

#include "platform/DialogPort.h"
#include "resources/CommandIds.h"
#include "resources/VertexDialog.h"
#include "support/ObjectPaneFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ObjectPaneCommands : public test::ObjectPaneFixture {};

TEST_F(ObjectPaneCommands, AddPolylineAppendsAnEmptyOneToTheSideInView)
{
  app.activeView = ViewSide::Left;
  Command(CommandId::AddPolyline, At({0, 0}));
  EXPECT_TRUE(NotifiedAll());
  ASSERT_EQ(app.shapeGroups.size(), 1U);
  EXPECT_EQ(app.shapeGroups[0]->viewCode, ViewSide::Left);
  EXPECT_EQ(app.shapeGroups[0]->shapes.at(0)->type, ShapeType::Polyline);
  EXPECT_TRUE(app.shapeGroups[0]->shapes[0]->vertices.empty());
}

TEST_F(ObjectPaneCommands, RemoveAllClearsTheSideInViewWhicheverNodeWasClicked)
{
  AddLine(ViewSide::Top, {});
  AddLine(ViewSide::Bottom, {});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::RemoveAllPolylines, At({0, 1}));
  EXPECT_THAT(messages.asked, ElementsAre(u"Are you sure you want to delete all shapes ?"));
  EXPECT_FALSE(NotifiedAll());
  messages.answer = true;
  Command(CommandId::RemoveAllPolylines, At({0, 1}));
  EXPECT_TRUE(NotifiedAll());
  EXPECT_TRUE(FindViewGroup(app.shapeGroups, ViewSide::Top)->shapes.empty());
  EXPECT_EQ(FindViewGroup(app.shapeGroups, ViewSide::Bottom)->shapes.size(), 1U);
}

TEST_F(ObjectPaneCommands, AddAnchorAppendsOneWithTheLowestNumber)
{
  Command(CommandId::AddAnchor, At({1}));
  EXPECT_TRUE(NotifiedAll());
  ASSERT_EQ(app.anchors->items.size(), 1U);
  EXPECT_EQ(app.anchors->items[0]->id, 1U);
}

TEST_F(ObjectPaneCommands, RemoveAndModifyAnchorDoNothing)
{
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::RemoveAnchor, At({1, 0}));
  Command(CommandId::ModifyAnchor, At({1, 0}));
  EXPECT_FALSE(NotifiedAll());
  EXPECT_EQ(app.anchors->items.size(), 1U);
}

TEST_F(ObjectPaneCommands, EditPointWritesTheVertexAndCancelledNotifiesNobody)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::EditVertex, At({0, 0, 0, 0}),
          {.ok = false, .fields = {{VertexControls::x, u"9"}}});
  EXPECT_FALSE(NotifiedAll());
  Command(CommandId::EditVertex, At({0, 0, 0, 0}),
          {.ok = true, .fields = {{VertexControls::x, u"9"}}});
  EXPECT_TRUE(NotifiedAll());
  EXPECT_EQ(line.vertices[0]->x, 9.0);
  EXPECT_THAT(Texts(At({0, 0, 0})), ElementsAre("+9.000,+2.000,+3.000"));
}

/// Accepts each dialog, after what happens while it is open.
class InterruptedDialogs : public IDialogRunner {
public:
  DialogEnd Run(IDialog&) override
  {
    whileOpen();
    return DialogEnd::Ok;
  }
  std::function<void()> whileOpen;
};

TEST_F(ObjectPaneCommands, ADesignReplacedUnderTheDialogIsNotWritten)
{
  InterruptedDialogs interrupted;
  const Ports others{settings, messages, interrupted, fileDialogs, commonData.units, commonData.log,
                     widgets,  control,  pointer,     pointer,     pointer,          &notified};
  Editor other(others);
  test::AddLine(other.app, ViewSide::Top, {{1.0, 2.0, 3.0}});
  other.objects.BuildTree();
  const CObjectTree& tree = other.objects.Tree();
  other.objects.selectedItem = tree.Child(tree.Child(tree.Child(tree.Root(), 0), 0), 0);
  interrupted.whileOpen = [&other] {
    ClearGroups(other.app.shapeGroups);
    other.objects.BuildTree();
  };
  other.objects.OnCommand(CommandId::EditVertex);
  EXPECT_EQ(control.rebuilds, 2);
  EXPECT_THAT(notified.list, IsEmpty());
}

TEST_F(ObjectPaneCommands, PointCommandsOnNodesThatAreNoPointsDoNothing)
{
  AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  messages.answer = true;
  for (const TreeItem& item : {TreeItem{}, At({0}), At({0, 0}), At({0, 0, 0}), At({1})}) {
    Command(CommandId::EditVertex, item, {.ok = true});
    Command(CommandId::RemoveVertex, item);
  }
  EXPECT_FALSE(NotifiedAll());
  EXPECT_THAT(dialogs.shown, IsEmpty());
  EXPECT_THAT(messages.asked, IsEmpty());
}

TEST_F(ObjectPaneCommands, PolylineCommandsOnNodesThatAreNoPolylinesDoNothing)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  app.anchors->items.push_back(app.anchors->NewAnchor());
  pane.BuildTree();
  control.rebuilds = 0;
  messages.answer = true;
  for (const TreeItem& item :
       {TreeItem{}, At({0}), At({0, 0}), At({0, 0, 0, 0}), At({1}), At({1, 0})}) {
    for (const CommandId id :
         {CommandId::AddVertex, CommandId::RemovePolyline, CommandId::ZoomPolyline}) {
      Command(id, item, {.ok = true});
      EXPECT_FALSE(NotifiedAll()) << NumberOf(id);
    }
  }
  EXPECT_THAT(dialogs.shown, IsEmpty());
  EXPECT_THAT(messages.asked, IsEmpty());
  EXPECT_EQ(line.vertices.size(), 1U);
}

TEST_F(ObjectPaneCommands, RemovePointAsksAndTakesItOut)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}, {2.0, 0.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::RemoveVertex, At({0, 0, 0, 0}));
  EXPECT_THAT(
      messages.asked,
      ElementsAre(u"Are you sure you want to delete the selected point from the polyline ?"));
  EXPECT_FALSE(NotifiedAll());
  messages.answer = true;
  Command(CommandId::RemoveVertex, At({0, 0, 0, 0}));
  EXPECT_TRUE(NotifiedAll());
  ASSERT_EQ(line.vertices.size(), 1U);
  EXPECT_EQ(line.vertices[0]->x, 2.0);
}

TEST_F(ObjectPaneCommands, AddPointAppendsAtTheEndOfTheSelectedPolyline)
{
  const CShapePolyline& line = AddLine(ViewSide::Bottom, {{1.0, 0.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::AddVertex, At({0, 1, 0}), {.ok = false});
  Command(CommandId::AddVertex, At({0, 1}), {.ok = true});
  EXPECT_FALSE(NotifiedAll());
  Command(CommandId::AddVertex, At({0, 1, 0}), {.ok = true, .fields = {{VertexControls::y, u"4"}}});
  EXPECT_TRUE(NotifiedAll());
  EXPECT_EQ(dialogs.startTexts[VertexControls::x], u"0.000");
  ASSERT_EQ(line.vertices.size(), 2U);
  EXPECT_TRUE(*line.vertices[1] == CShapeVertex(0.0, 4.0, 0.0));
}

TEST_F(ObjectPaneCommands, RemovePolylineAsksAndReleasesIt)
{
  AddLine(ViewSide::Top, {});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::RemovePolyline, At({0, 0, 0}));
  EXPECT_THAT(messages.asked, ElementsAre(u"Are you sure you want to delete the selected shape ?"));
  EXPECT_FALSE(NotifiedAll());
  messages.answer = true;
  Command(CommandId::RemovePolyline, At({0, 0, 0}));
  EXPECT_TRUE(NotifiedAll());
  EXPECT_TRUE(app.shapeGroups[0]->shapes.empty());
}

TEST_F(ObjectPaneCommands, ZoomPolylineFramesItAndOnlyRepaints)
{
  AddLine(ViewSide::Bottom, {{10.0, 20.0, 0.0}, {50.0, 30.0, 0.0}});
  pane.BuildTree();
  control.rebuilds = 0;
  Command(CommandId::ZoomPolyline, At({0, 1, 0}));
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(control.rebuilds, 0);
  EXPECT_FALSE(document.IsModified());
  EXPECT_NEAR((app.viewPort->left + app.viewPort->right) * 0.5, 30.0, 1e-9);
}

TEST_F(ObjectPaneCommands, ZoomPolylineNeedsAViewPort)
{
  AddLine(ViewSide::Top, {{10.0, 20.0, 0.0}, {50.0, 30.0, 0.0}});
  pane.BuildTree();
  app.viewPort = nullptr;
  Command(CommandId::ZoomPolyline, At({0, 0, 0}));
  EXPECT_EQ(Frames(), 0);
}

}  // namespace
}  // namespace hullwright
