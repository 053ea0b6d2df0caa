#include "app/Dialogs.h"

#include <gmock/gmock.h>

#include "resources/CommandIds.h"
#include "resources/DialogTemplates.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

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

  std::u16string Start(int id) { return dialogs.startTexts[id]; }
};

TEST_F(Dialogs, TheGridDialogShowsTheSettingsWithTwoDecimals)
{
  settings.values = {{"Grid/Show", 0}, {"Grid/SpacingShowX", 114}, {"Grid/SpacingSnapY", 10000}};
  Run(CommandId::Grid, {});
  EXPECT_FALSE(dialogs.startChecks[1002]);
  EXPECT_TRUE(dialogs.startChecks[1001]);
  EXPECT_EQ(Start(1000), u"1.14");
  EXPECT_EQ(Start(1003), u"2.50");
  EXPECT_EQ(Start(1009), u"2.50");
  EXPECT_EQ(Start(1012), u"100.00");
  for (const int label : {1004, 1005, 1010, 1013}) EXPECT_EQ(Start(label), u"m") << label;
}

TEST_F(Dialogs, TheGridDialogEnablesEachGroupByItsCheckBox)
{
  Run(CommandId::Grid, {.ok = true, .fields = {{1000, u"9"}}, .clicks = {{1002, false}}});
  for (const int id : {1004, 1005, 1000, 1003, 1006, 1007}) {
    EXPECT_TRUE(dialogs.startEnabled.at(id)) << id;
    EXPECT_FALSE(dialogs.enabled.at(id)) << id;
  }
  for (const int id : {1010, 1013, 1009, 1012, 1008, 1011})
    EXPECT_TRUE(dialogs.enabled.at(id)) << id;
  EXPECT_EQ(settings.values["Grid/SpacingShowX"], 900);
  EXPECT_EQ(settings.values["Grid/Show"], 0);
}

TEST_F(Dialogs, TheGridDialogStoresAllSixSettings)
{
  Run(CommandId::Grid, {.ok = true,
                        .fields = {{1000, u"1.15"}, {1003, u"2"}, {1009, u"3 m"}, {1012, u"x"}},
                        .clicks = {{1001, false}}});
  EXPECT_EQ(settings.values, (std::map<std::string, std::int32_t>{{"Grid/Show", 1},
                                                                  {"Grid/Snap", 0},
                                                                  {"Grid/SpacingShowX", 114},
                                                                  {"Grid/SpacingShowY", 200},
                                                                  {"Grid/SpacingSnapX", 300},
                                                                  {"Grid/SpacingSnapY", 0}}));
}

TEST_F(Dialogs, ASpacingTypedAsOneFifteenComesBackAsOneFourteen)
{
  Run(CommandId::Grid, {.ok = true, .fields = {{1009, u"1.15"}}});
  Run(CommandId::Grid, {});
  EXPECT_EQ(Start(1009), u"1.14");
}

TEST_F(Dialogs, ACancelledOffsetsDialogLeavesAllThree)
{
  Run(CommandId::Offsets, {.ok = false, .fields = {{1027, u"1"}, {1030, u"2"}, {1003, u"3"}}});
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(-10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(0.0, 10.0, 0.0));
}

TEST_F(Dialogs, WithoutOneOfTheOffsetsNothingIsStored)
{
  app.offsetPivot.reset();
  Run(CommandId::Offsets, {.ok = true, .fields = {{1027, u"1"}}});
  EXPECT_EQ(app.offsetGps->x, 10.0);
}

TEST_F(Dialogs, TheOffsetsDialogShowsSevenNumbersAndFocusesTheFirst)
{
  *app.offsetPivot = CShapeVertex(1.0, -2.5, 3.25);
  Run(CommandId::Offsets, {});
  EXPECT_EQ(Start(1027), u"10.000");
  EXPECT_EQ(Start(1028), u"0.000");
  EXPECT_EQ(Start(1030), u"-10.000");
  EXPECT_EQ(Start(1031), u"0.000");
  EXPECT_EQ(Start(1001), u"1.000");
  EXPECT_EQ(Start(1002), u"-2.500");
  EXPECT_EQ(Start(1003), u"3.250");
  EXPECT_EQ(dialogs.focus, 1027);
}

TEST_F(Dialogs, TheOffsetsDialogFocusesTheKindItWasOpenedFor)
{
  for (const auto& [kind, field] :
       std::map<HitKind, std::optional<int>>{{HitKind::Gps, 1027},
                                             {HitKind::Transducer, 1030},
                                             {HitKind::Pivot, 1001},
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
  Run(CommandId::Offsets, {.ok = true, .fields = {{1030, u"-7,5"}, {1003, u"4.5"}}});
  EXPECT_TRUE(*app.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetTransducer == CShapeVertex(-7.0, 0.0, 0.0));
  EXPECT_TRUE(*app.offsetPivot == CShapeVertex(0.0, 10.0, 4.5));
  EXPECT_TRUE(document.IsModified());
}

TEST_F(Dialogs, TheVertexDialogWritesStraightIntoItsVertex)
{
  CShapeVertex vertex(1.0, 2.0, 3.0);
  dialogs.script = {.ok = true, .fields = {{1008, u"-1.5"}, {1023, u"abc"}}};
  EXPECT_TRUE(app.EditVertex(vertex));
  EXPECT_EQ(Start(1008), u"1.000");
  EXPECT_EQ(Start(1009), u"2.000");
  EXPECT_EQ(Start(1023), u"3.000");
  EXPECT_TRUE(vertex == CShapeVertex(-1.5, 2.0, 0.0));
  dialogs.script = {.ok = false, .fields = {{1008, u"9"}}};
  EXPECT_FALSE(app.EditVertex(vertex));
  EXPECT_EQ(vertex.x, -1.5);
}

TEST_F(Dialogs, AVertexDialogWithoutAVertexEditsNothing)
{
  CDialogVertex dialog(app, nullptr);
  dialogs.script = {.ok = true};
  EXPECT_EQ(dialogs.Run(dialog), DialogEnd::Ok);
}

TEST_F(Dialogs, UnitLabelsFollowTheUnitAndTheNumbersDoNot)
{
  CShapeVertex vertex(1.0, 2.0, 3.0);
  app.unitCode = UnitCode{9002};
  app.EditVertex(vertex);
  for (const int label : {1004, 1005, 1010}) EXPECT_EQ(Start(label), u"ft") << label;
  EXPECT_EQ(Start(1008), u"1.000");
  Run(CommandId::Move, {});
  for (const int label : {1004, 1005}) EXPECT_EQ(Start(label), u"ft") << label;
  Run(CommandId::Offsets, {});
  for (const int label : {1004, 1005, 1010, 1013, 1006, 1007, 1008}) {
    EXPECT_EQ(Start(label), u"ft") << label;
  }
}

TEST_F(Dialogs, WithoutAUnitTheLabelsKeepTheTemplatesText)
{
  app.unitCode = UnitCode{5};
  CShapeVertex vertex;
  app.EditVertex(vertex);
  EXPECT_EQ(Start(1004), u"meters");
  Run(CommandId::Offsets, {});
  for (const int label : {1004, 1005, 1010, 1013, 1006, 1007, 1008}) {
    EXPECT_EQ(Start(label), u"Static") << label;
  }
}

TEST_F(Dialogs, EveryDialogHasItsTemplateAndTitle)
{
  const std::map<int, std::u16string_view> titles = {
      {310, u"Grid"},          {322, u"Move Design"},  {323, u"Modify Offsets"},
      {319, u"Rotate Design"}, {317, u"Scale Design"}, {313, u"Edit Vertex Coordinates"}};
  for (const auto& [id, title] : titles) {
    ASSERT_NE(FindDialogTemplate(id), nullptr) << id;
    EXPECT_EQ(FindDialogTemplate(id)->title, title);
  }
  EXPECT_EQ(FindDialogTemplate(1), nullptr);
  Run(CommandId::About, {});
  EXPECT_THAT(dialogs.shown, testing::ElementsAre(100));
}

}  // namespace
}  // namespace hullwright
