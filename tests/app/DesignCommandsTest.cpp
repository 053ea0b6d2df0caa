#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <ostream>

#include "app/DesignCommandTable.h"
#include "base/Code.h"
#include "resources/CommandIds.h"
#include "resources/MoveDialog.h"
#include "resources/ScaleDialog.h"
#include "support/CommandFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAreArray;

class Commands : public test::CommandFixture {};

// ---------------------------------------------------------------------------------------------------
// What each command notifies of, accepted and cancelled, with and without a group

struct CommandCase {
  const char* name;
  CommandId id;
  bool hasDialog;
  std::vector<std::string> notifications;    ///< accepted, with a group
  std::vector<std::string> notifiedWithout;  ///< accepted, without a group
  bool makesGroup;
};

std::ostream& operator<<(std::ostream& out, const CommandCase& row) { return out << row.name; }

const std::vector<std::string>& all = test::notifiedOfAll;
const std::vector<std::string> none = {};
const std::vector<std::string> repaint = {"repaint"};

const std::vector<CommandCase>& CommandCases()
{
  static const std::vector<CommandCase> cases = {
      {"MirrorVertically", CommandId::MirrorVertically, false, all, none, false},
      {"MirrorHorizontally", CommandId::MirrorHorizontally, false, all, none, false},
      {"Scale", CommandId::Scale, true, all, none, false},
      {"Move", CommandId::Move, true, all, none, false},
      {"RotateLeft", CommandId::RotateLeft, true, all, all, true},
      {"RotateRight", CommandId::RotateRight, true, all, all, true},
      {"Offsets",
       CommandId::Offsets,
       true,
       {"repaint", "modified"},
       {"repaint", "modified"},
       false},
      {"Grid", CommandId::Grid, true, repaint, repaint, false},
      {"Units", CommandId::Units, true, all, all, true},
      {"ToggleGrid", CommandId::ToggleGrid, false, repaint, repaint, false},
      {"ToggleSnap", CommandId::ToggleSnap, false, none, none, false},
      {"CursorZoomIn", CommandId::CursorZoomIn, false, none, none, false},
      {"CursorZoomOut", CommandId::CursorZoomOut, false, none, none, false},
      {"CursorMove", CommandId::CursorMove, false, none, none, false},
      {"ViewTop", CommandId::ViewTop, false, repaint, repaint, false},
      {"ViewBottom", CommandId::ViewBottom, false, repaint, repaint, false},
      {"ViewRight", CommandId::ViewRight, false, repaint, repaint, false},
      {"ViewLeft", CommandId::ViewLeft, false, repaint, repaint, false},
      {"ViewFront", CommandId::ViewFront, false, repaint, repaint, false},
      {"ViewRear", CommandId::ViewRear, false, repaint, repaint, false},
      {"About", CommandId::About, true, none, none, false},
  };
  return cases;
}

class EachCommand : public Commands, public testing::WithParamInterface<CommandCase> {
protected:
  /// OK as the dialog stands; in the units dialog the first unit is chosen.
  static DialogScript Accept() { return {.ok = true, .select = 0}; }

  EachCommand()
  {
    std::filesystem::create_directories(dataFolder.Path() / "Sondaris" / "Database");
    std::filesystem::copy(HULLWRIGHT_UNIT_DATABASE,
                          dataFolder.Path() / "Sondaris" / "Database" / "geo.db");
  }
};

TEST(DesignCommandTable, HasACaseForEachCommandWithoutAFile)
{
  for (const auto& row : DesignCommandTable::rows) {
    if (row.id == CommandId::ImportDxf) continue;
    EXPECT_TRUE(std::ranges::count(CommandCases(), row.id, &CommandCase::id) == 1)
        << NumberOf(row.id);
  }
}

TEST_P(EachCommand, SendsItsNotificationsInOrder)
{
  AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  Run(GetParam().id, Accept());
  EXPECT_THAT(notified.list, ElementsAreArray(GetParam().notifications));
  EXPECT_EQ(dialogs.shown.size(), GetParam().hasDialog ? 1U : 0U);
}

TEST_P(EachCommand, WithoutAGroupNotifiesWhatItsRowSays)
{
  Run(GetParam().id, Accept());
  EXPECT_THAT(notified.list, ElementsAreArray(GetParam().notifiedWithout));
  EXPECT_EQ(app.shapeGroups.size(), GetParam().makesGroup ? 1U : 0U);
  EXPECT_EQ(dialogs.shown.size(), GetParam().hasDialog ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Table, EachCommand, testing::ValuesIn(CommandCases()),
                         [](const auto& row) { return row.param.name; });

/// The rows that open a dialog.
std::vector<CommandCase> DialogCases()
{
  std::vector<CommandCase> cases = CommandCases();
  std::erase_if(cases, [](const CommandCase& row) { return !row.hasDialog; });
  return cases;
}

class EachDialog : public EachCommand {};

TEST_P(EachDialog, CancelledNotifiesNobodyAndChangesNothing)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  Run(GetParam().id, {.ok = false});
  EXPECT_TRUE(notified.list.empty());
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(1.0, 2.0, 3.0));
  EXPECT_TRUE(settings.written.empty());
  EXPECT_EQ(app.unitCode, UnitCode::Metre);
}

INSTANTIATE_TEST_SUITE_P(Table, EachDialog, testing::ValuesIn(DialogCases()),
                         [](const auto& row) { return row.param.name; });

// ---------------------------------------------------------------------------------------------------
// What each command changes

TEST_F(Commands, MirrorsNegateTheirAxisAndTwiceBringEveryBitBack)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{0.1, 0.7, 3.0}});
  Run(CommandId::MirrorVertically);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(0.1, -0.7, 3.0));
  Run(CommandId::MirrorHorizontally);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(-0.1, -0.7, 3.0));
  Run(CommandId::MirrorVertically);
  Run(CommandId::MirrorHorizontally);
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(0.1, 0.7, 3.0));
}

TEST_F(Commands, OtherSidesOffsetsAndAnchorsStayToTheBit)
{
  AddLine(ViewSide::Top, {{1.0, 1.0, 1.0}});
  std::vector<const CShapePolyline*> others;
  for (const ViewSide side : eachViewSide) {
    if (side != ViewSide::Top) others.push_back(&AddLine(side, {{1.0, 0.0, 1.0}}));
  }
  app.anchors->items.push_back(app.anchors->NewAnchor());
  app.anchors->items[0]->attachmentX = 5.0;
  app.anchors->items[0]->attachmentY = 0.0;
  Run(CommandId::MirrorVertically);
  Run(CommandId::MirrorHorizontally);
  Run(CommandId::Scale, {.ok = true, .fields = {{ScaleControls::factor, u"3"}}});
  Run(CommandId::Move,
      {.ok = true, .fields = {{MoveControls::directionX, u"3"}, {MoveControls::directionY, u"3"}}});
  Run(CommandId::RotateRight, {.ok = true});
  for (const CShapePolyline* const line : others) {
    EXPECT_TRUE(*line->vertices[0] == CShapeVertex(1.0, 0.0, 1.0));
    EXPECT_FALSE(std::signbit(line->vertices[0]->y));
  }
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(-10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(0.0, 10.0, 0.0));
  EXPECT_EQ(app.anchors->items[0]->attachmentX, 5.0);
  EXPECT_FALSE(std::signbit(app.anchors->items[0]->attachmentY));
}

TEST_F(Commands, AGroupOfAllSidesInFrontTakesEachSidesCommands)
{
  const CShapePolyline& wildcard = AddLine(ViewSide::All, {{1.0, 1.0, 0.0}});
  for (const ViewSide side : eachViewSide) {
    app.shapeGroups.push_back(std::make_unique<CShapes>(side));
    app.activeView = side;
    Run(CommandId::MirrorHorizontally);
    EXPECT_EQ(wildcard.vertices[0]->x, -1.0) << NumberOf(side);
    Run(CommandId::Scale, {.ok = true, .fields = {{ScaleControls::factor, u"-2"}}});
    EXPECT_EQ(wildcard.vertices[0]->x, 2.0) << NumberOf(side);
    Run(CommandId::Move, {.ok = true, .fields = {{MoveControls::directionX, u"-1"}}});
    EXPECT_EQ(wildcard.vertices[0]->x, 1.0) << NumberOf(side);
    *wildcard.vertices[0] = CShapeVertex(1.0, 1.0, 0.0);
  }
}

struct WalkCase {
  CommandId command;
  DialogScript script;
};

std::ostream& operator<<(std::ostream& out, const WalkCase& row)
{
  return out << "command " << NumberOf(row.command);
}

class EachWalk : public Commands, public testing::WithParamInterface<WalkCase> {};

TEST_P(EachWalk, EndsAtAnEmptySlotAndNotifiesAll)
{
  const CShapeVertex start(1.0, 2.0, 3.0);
  const CShapePolyline& before = AddLine(ViewSide::Top, {start});
  GetShapes(app.shapeGroups, ViewSide::Top)->shapes.push_back(nullptr);
  const CShapePolyline& behind = AddLine(ViewSide::Top, {start});
  Run(GetParam().command, GetParam().script);
  EXPECT_FALSE(*before.vertices[0] == start);
  EXPECT_TRUE(*behind.vertices[0] == start);
  EXPECT_THAT(notified.list, ElementsAreArray(all));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, EachWalk,
    testing::Values(
        WalkCase{CommandId::MirrorVertically, {}}, WalkCase{CommandId::MirrorHorizontally, {}},
        WalkCase{CommandId::Scale, {.ok = true, .fields = {{ScaleControls::factor, u"2"}}}},
        WalkCase{CommandId::Move, {.ok = true, .fields = {{MoveControls::directionX, u"2"}}}},
        WalkCase{CommandId::RotateLeft, {.ok = true}},
        WalkCase{CommandId::RotateRight, {.ok = true}}));

TEST_F(Commands, ScaleTakesZAlongAndMirrorsByANegativeFactor)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  Run(CommandId::Scale, {.ok = true, .fields = {{ScaleControls::factor, u"-2 times"}}});
  EXPECT_EQ(dialogs.startTexts[ScaleControls::factor], u"1.00");
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(-2.0, -4.0, -6.0));
}

TEST_F(Commands, AScaleFactorOfZeroDoesNothing)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  for (const char16_t* text : {u"abc", u"0", u"", u"-0.0"}) {
    Run(CommandId::Scale, {.ok = true, .fields = {{ScaleControls::factor, text}}});
  }
  EXPECT_TRUE(notified.list.empty());
  EXPECT_FALSE(document.IsModified());
  EXPECT_EQ(line.vertices[0]->x, 1.0);
}

TEST_F(Commands, MoveShiftsAllShapesAndReadsLettersAsZero)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 2.0, 3.0}});
  const CShapePoint& point = AddPoint(ViewSide::Top, {0.0, 0.0, 0.0});
  Run(CommandId::Move,
      {.ok = true,
       .fields = {{MoveControls::directionX, u"east"}, {MoveControls::directionY, u"0"}}});
  EXPECT_EQ(line.vertices[0]->x, 1.0);
  Run(CommandId::Move,
      {.ok = true,
       .fields = {{MoveControls::directionX, u"1.5 m"}, {MoveControls::directionY, u"two"}}});
  EXPECT_EQ(dialogs.startTexts[MoveControls::directionX], u"0.00");
  EXPECT_EQ(dialogs.startTexts[MoveControls::directionY], u"0.00");
  EXPECT_TRUE(*line.vertices[0] == CShapeVertex(2.5, 2.0, 3.0));
  EXPECT_TRUE(point.position == CShapeVertex(1.5, 0.0, 0.0));
}

TEST_F(Commands, TogglesFlipTheirSettingAndShowItAsTheirCheck)
{
  EXPECT_TRUE(frame.QueryCommand(CommandId::ToggleGrid).checked);
  Run(CommandId::ToggleGrid);
  EXPECT_EQ(settings.values["Grid/Show"], 0);
  EXPECT_FALSE(frame.QueryCommand(CommandId::ToggleGrid).checked);
  settings.values["Grid/Show"] = 7;
  Run(CommandId::ToggleGrid);
  EXPECT_EQ(settings.values["Grid/Show"], 0);
  Run(CommandId::ToggleSnap);
  EXPECT_EQ(settings.values["Grid/Snap"], 0);
  Run(CommandId::ToggleSnap);
  EXPECT_TRUE(frame.QueryCommand(CommandId::ToggleSnap).checked);
  EXPECT_FALSE(document.IsModified());
}

}  // namespace
}  // namespace hullwright
