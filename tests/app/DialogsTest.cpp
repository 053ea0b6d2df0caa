#include "app/Dialogs.h"

#include <gmock/gmock.h>

#include "resources/CommandIds.h"
#include "resources/DialogTemplates.h"
#include "resources/GridDialog.h"
#include "resources/MoveDialog.h"
#include "resources/OffsetsDialog.h"
#include "resources/VertexDialog.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

constexpr auto offsetsUnits = {OffsetsControls::antennaXUnit,    OffsetsControls::antennaYUnit,
                               OffsetsControls::transducerXUnit, OffsetsControls::transducerYUnit,
                               OffsetsControls::pivotXUnit,      OffsetsControls::pivotYUnit,
                               OffsetsControls::pivotZUnit};

class Dialogs : public test::AppFixture {
protected:
  Dialogs()
  {
    app.unitTable = {{u"m", u"metre", UnitCode::Metre}, {u"ft", u"foot", UnitCode{9002}}};
  }

  void Run(CommandId command, DialogScript script)
  {
    dialogs.script = std::move(script);
    frame.OnCommand(command);
  }

  std::u16string Start(ControlId id) { return dialogs.startTexts[id]; }

  void ExpectLabels(std::initializer_list<ControlId> labels, std::u16string_view text)
  {
    for (const ControlId label : labels) EXPECT_EQ(Start(label), text) << NumberOf(label);
  }
};

TEST_F(Dialogs, TheGridDialogShowsTheSettingsWithTwoDecimals)
{
  settings.values = {
      {"Grid/Show", 0}, {"Grid/Snap", 7}, {"Grid/SpacingShowX", 114}, {"Grid/SpacingSnapY", 10000}};
  Run(CommandId::Grid, {});
  EXPECT_FALSE(dialogs.startChecks[GridControls::showGrid]);
  EXPECT_TRUE(dialogs.startChecks[GridControls::snapToGrid]);
  EXPECT_EQ(Start(GridControls::showX), u"1.14");
  EXPECT_EQ(Start(GridControls::showY), u"2.50");
  EXPECT_EQ(Start(GridControls::snapX), u"2.50");
  EXPECT_EQ(Start(GridControls::snapY), u"100.00");
  ExpectLabels({GridControls::showXUnit, GridControls::showYUnit, GridControls::snapXUnit,
                GridControls::snapYUnit},
               u"m");
}

TEST_F(Dialogs, TheGridDialogEnablesEachGroupByItsCheckBox)
{
  Run(CommandId::Grid, {.ok = true,
                        .fields = {{GridControls::showX, u"9"}},
                        .clicks = {{GridControls::showGrid, false}}});
  for (const ControlId id :
       {GridControls::showXUnit, GridControls::showYUnit, GridControls::showX, GridControls::showY,
        GridControls::showXLabel, GridControls::showYLabel}) {
    EXPECT_TRUE(dialogs.startEnabled.at(id)) << NumberOf(id);
    EXPECT_FALSE(dialogs.enabled.at(id)) << NumberOf(id);
  }
  for (const ControlId id :
       {GridControls::snapXUnit, GridControls::snapYUnit, GridControls::snapX, GridControls::snapY,
        GridControls::snapXLabel, GridControls::snapYLabel}) {
    EXPECT_TRUE(dialogs.enabled.at(id)) << NumberOf(id);
  }
  EXPECT_EQ(dialogs.enabled.size(), 12U);
  EXPECT_EQ(settings.values["Grid/SpacingShowX"], 900);
  EXPECT_EQ(settings.values["Grid/Show"], 0);
}

TEST_F(Dialogs, TheGridDialogStoresAllSixSettings)
{
  Run(CommandId::Grid, {.ok = true,
                        .fields = {{GridControls::showX, u"1.15"},
                                   {GridControls::showY, u"2"},
                                   {GridControls::snapX, u"3 m"},
                                   {GridControls::snapY, u"x"}},
                        .clicks = {{GridControls::snapToGrid, false}}});
  EXPECT_EQ(settings.values, (std::map<std::string, std::int32_t>{{"Grid/Show", 1},
                                                                  {"Grid/Snap", 0},
                                                                  {"Grid/SpacingShowX", 114},
                                                                  {"Grid/SpacingShowY", 200},
                                                                  {"Grid/SpacingSnapX", 300},
                                                                  {"Grid/SpacingSnapY", 0}}));
}

TEST_F(Dialogs, ASpacingTypedAsOneFifteenComesBackAsOneFourteen)
{
  Run(CommandId::Grid, {.ok = true, .fields = {{GridControls::snapX, u"1.15"}}});
  Run(CommandId::Grid, {});
  EXPECT_EQ(Start(GridControls::snapX), u"1.14");
}

TEST_F(Dialogs, ACancelledOffsetsDialogLeavesAllThree)
{
  Run(CommandId::Offsets, {.ok = false,
                           .fields = {{OffsetsControls::antennaX, u"1"},
                                      {OffsetsControls::transducerX, u"2"},
                                      {OffsetsControls::pivotZ, u"3"}}});
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(-10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(0.0, 10.0, 0.0));
}

TEST_F(Dialogs, WithoutOneOfTheOffsetsNothingIsShownOrStored)
{
  for (auto* const lacking : {&app.offsetGps, &app.offsetTransducer, &app.offsetPivot}) {
    auto kept = std::move(*lacking);
    Run(CommandId::Offsets, {.ok = true,
                             .fields = {{OffsetsControls::antennaX, u"1"},
                                        {OffsetsControls::transducerX, u"1"},
                                        {OffsetsControls::pivotX, u"1"}}});
    ExpectLabels(offsetsUnits, u"Static");
    EXPECT_EQ(Start(OffsetsControls::antennaX), u"");
    EXPECT_EQ(dialogs.focus, std::nullopt);
    for (const auto* offset :
         {app.offsetGps.get(), app.offsetTransducer.get(), app.offsetPivot.get()}) {
      EXPECT_TRUE(offset == nullptr || offset->x != 1.0);
    }
    *lacking = std::move(kept);
  }
}

TEST_F(Dialogs, TheOffsetsDialogShowsSevenNumbersAndFocusesTheFirst)
{
  *app.offsetGps = CShapeVertex(10.0, 0.5, 9.0);
  *app.offsetTransducer = CShapeVertex(-10.0, 1.0005, 9.0);
  *app.offsetPivot = CShapeVertex(1.0, -2.5, 3.25);
  Run(CommandId::Offsets, {});
  EXPECT_EQ(Start(OffsetsControls::antennaX), u"10.000");
  EXPECT_EQ(Start(OffsetsControls::antennaY), u"0.500");
  EXPECT_EQ(Start(OffsetsControls::transducerX), u"-10.000");
  EXPECT_EQ(Start(OffsetsControls::transducerY), u"1.000");
  EXPECT_EQ(Start(OffsetsControls::pivotX), u"1.000");
  EXPECT_EQ(Start(OffsetsControls::pivotY), u"-2.500");
  EXPECT_EQ(Start(OffsetsControls::pivotZ), u"3.250");
  EXPECT_EQ(dialogs.focus, OffsetsControls::antennaX);
}

TEST_F(Dialogs, OkInTheOffsetsDialogWritesEachNumberIntoItsOffset)
{
  Run(CommandId::Offsets, {.ok = true,
                           .fields = {{OffsetsControls::antennaX, u"1"},
                                      {OffsetsControls::antennaY, u"2"},
                                      {OffsetsControls::transducerX, u"3"},
                                      {OffsetsControls::transducerY, u"4"},
                                      {OffsetsControls::pivotX, u"5"},
                                      {OffsetsControls::pivotY, u"6"},
                                      {OffsetsControls::pivotZ, u"7"}}});
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(1.0, 2.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(3.0, 4.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(5.0, 6.0, 7.0));
}

TEST_F(Dialogs, TheOffsetsDialogFocusesTheKindItWasOpenedFor)
{
  for (const auto& [kind, field] : std::map<HitKind, std::optional<ControlId>>{
           {HitKind::Gps, OffsetsControls::antennaX},
           {HitKind::Transducer, OffsetsControls::transducerX},
           {HitKind::Pivot, OffsetsControls::pivotX},
           {HitKind::Vertex, std::nullopt}}) {
    dialogs.script = {};
    EXPECT_FALSE(app.EditOffsets(kind));
    EXPECT_EQ(dialogs.focus, field) << NumberOf(kind);
  }
}

TEST_F(Dialogs, OkInTheOffsetsDialogZeroesTheHeightsItHasNoFieldsFor)
{
  app.offsetGps->z = 1.0;
  app.offsetTransducer->z = 2.0;
  app.offsetPivot->z = 3.0;
  Run(CommandId::Offsets,
      {.ok = true,
       .fields = {{OffsetsControls::transducerX, u"-7,5"}, {OffsetsControls::pivotZ, u"4.5"}}});
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(-7.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(0.0, 10.0, 4.5));
  EXPECT_TRUE(document.IsModified());
}

TEST_F(Dialogs, TheVertexDialogWritesStraightIntoItsVertex)
{
  CShapeVertex vertex(1.0, 2.0, 3.0);
  dialogs.script = {.ok = true,
                    .fields = {{VertexControls::x, u"-1.5"}, {VertexControls::z, u"abc"}}};
  EXPECT_TRUE(app.EditVertex(vertex));
  EXPECT_EQ(Start(VertexControls::x), u"1.000");
  EXPECT_EQ(Start(VertexControls::y), u"2.000");
  EXPECT_EQ(Start(VertexControls::z), u"3.000");
  EXPECT_TRUE(vertex == CShapeVertex(-1.5, 2.0, 0.0));
  dialogs.script = {.ok = false, .fields = {{VertexControls::x, u"9"}}};
  EXPECT_FALSE(app.EditVertex(vertex));
  EXPECT_EQ(vertex.x, -1.5);
}

TEST_F(Dialogs, AVertexDialogWithoutAVertexShowsTheUnitAloneAndEditsNothing)
{
  CDialogVertex dialog(app, nullptr);
  dialogs.script = {.ok = true};
  EXPECT_EQ(dialogs.Run(dialog), DialogEnd::Ok);
  ExpectLabels({VertexControls::xUnit, VertexControls::yUnit, VertexControls::zUnit}, u"m");
  EXPECT_EQ(Start(VertexControls::x), u"");
}

TEST_F(Dialogs, TheMoveDialogShowsTheWayThatItIsGivenAndLeavesItsHeight)
{
  CShapeVertex way(1.234, -5.0, 7.0);
  CDialogMove dialog(app, way);
  dialogs.script = {.ok = true, .fields = {{MoveControls::directionX, u"2"}}};
  EXPECT_EQ(dialogs.Run(dialog), DialogEnd::Ok);
  EXPECT_EQ(Start(MoveControls::directionX), u"1.23");
  EXPECT_EQ(Start(MoveControls::directionY), u"-5.00");
  EXPECT_TRUE(way == CShapeVertex(2.0, -5.0, 7.0));
}

TEST_F(Dialogs, TheRotateDialogTurnsTheDesignBeforeItCloses)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{10.0, 0.0, 0.0}});
  CDialogRotate dialog(app, false);
  dialogs.script = {.ok = true};
  EXPECT_EQ(dialogs.Run(dialog), DialogEnd::Ok);
  EXPECT_NEAR(line.vertices[0]->x, 0.0, 1e-9);
  EXPECT_NEAR(line.vertices[0]->y, 10.0, 1e-9);
  EXPECT_TRUE(notified.list.empty());
}

TEST_F(Dialogs, UnitLabelsFollowTheUnitAndTheNumbersDoNot)
{
  CShapeVertex vertex(1.0, 2.0, 3.0);
  app.unitCode = UnitCode{9002};
  app.EditVertex(vertex);
  ExpectLabels({VertexControls::xUnit, VertexControls::yUnit, VertexControls::zUnit}, u"ft");
  EXPECT_EQ(Start(VertexControls::x), u"1.000");
  Run(CommandId::Move, {});
  ExpectLabels({MoveControls::directionXUnit, MoveControls::directionYUnit}, u"ft");
  Run(CommandId::Offsets, {});
  ExpectLabels(offsetsUnits, u"ft");
}

TEST_F(Dialogs, WithoutAUnitTheLabelsKeepTheTemplatesText)
{
  app.unitCode = UnitCode{5};
  CShapeVertex vertex;
  app.EditVertex(vertex);
  EXPECT_EQ(Start(VertexControls::xUnit), u"meters");
  Run(CommandId::Offsets, {});
  ExpectLabels(offsetsUnits, u"Static");
}

TEST_F(Dialogs, EveryDialogHasItsTemplateAndTitle)
{
  const std::map<DialogId, std::u16string_view> titles = {
      {DialogId::Grid, u"Grid"},
      {DialogId::Move, u"Move Design"},
      {DialogId::Offsets, u"Modify Offsets"},
      {DialogId::Rotate, u"Rotate Design"},
      {DialogId::Scale, u"Scale Design"},
      {DialogId::Vertex, u"Edit Vertex Coordinates"}};
  for (const auto& [id, title] : titles) {
    ASSERT_NE(FindDialogTemplate(id), nullptr) << NumberOf(id);
    EXPECT_EQ(FindDialogTemplate(id)->title, title);
  }
  EXPECT_EQ(FindDialogTemplate(DialogId{1}), nullptr);
  Run(CommandId::About, {});
  EXPECT_THAT(dialogs.shown, testing::ElementsAre(DialogId::About));
}

}  // namespace
}  // namespace hullwright
