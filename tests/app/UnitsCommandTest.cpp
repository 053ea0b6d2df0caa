#include <gmock/gmock.h>

#include <new>

#include "resources/CommandIds.h"
#include "support/CommandFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class UnitsCommand : public test::CommandFixture {
protected:
  UnitsCommand()
  {
    app.unitTable = {{u"m", u"metre", UnitCode::Metre}, {u"ft", u"foot", UnitCode{9002}}};
    std::filesystem::create_directories(dataFolder.Path() / "Sondaris" / "Database");
    std::filesystem::copy(HULLWRIGHT_UNIT_DATABASE,
                          dataFolder.Path() / "Sondaris" / "Database" / "geo.db");
  }

  /// Chooses the foot, which is second in the list.
  void ToFeet() { Run(CommandId::Units, {.ok = true, .select = 1}); }
};

TEST_F(UnitsCommand, TheListStandsInTheOrderOfTheCodesWithTheUnitSelected)
{
  app.unitCode = UnitCode{9003};
  Run(CommandId::Units, {});
  ASSERT_EQ(dialogs.list.size(), 24U);
  EXPECT_EQ(dialogs.list[0].text, u"metre");
  EXPECT_EQ(dialogs.list[2].data, 9003);
  EXPECT_EQ(dialogs.startSelected, 2U);
}

TEST_F(UnitsCommand, AnUnknownUnitSelectsNothingAndOkAsksForAChoice)
{
  app.unitCode = UnitCode{5};
  Run(CommandId::Units, {.ok = true});
  EXPECT_FALSE(dialogs.startSelected.has_value());
  EXPECT_TRUE(dialogs.stayedOpen);
  EXPECT_THAT(messages.shown, ElementsAre(u"Please select an unit from the list first !"));
  EXPECT_TRUE(notified.list.empty());
  EXPECT_EQ(app.unitCode, UnitCode{5});
}

TEST_F(UnitsCommand, YesConvertsTheSideInViewAndTwoOffsets)
{
  const CShapePolyline& top = AddLine(ViewSide::Top, {{0.3048, 0.0, 3.048}});
  const CShapePoint& point = AddPoint(ViewSide::Top, {3.048, 0.0, 0.0});
  const CShapePolyline& bottom = AddLine(ViewSide::Bottom, {{1.0, 1.0, 1.0}});
  app.anchors->items.push_back(app.anchors->NewAnchor());
  app.anchors->items[0]->attachmentX = 5.0;
  messages.answer = true;
  ToFeet();
  EXPECT_THAT(messages.asked,
              ElementsAre(u"The unit setting has changed. Do you want to convert all coordinates "
                          u"to the new units ?"));
  EXPECT_TRUE(*top.vertices[0] == CShapeVertex(1.0, 0.0, 3.048 / 0.3048));
  EXPECT_EQ(point.position.x, 3.048 / 0.3048);
  EXPECT_EQ(app.offsetGps->x, 10.0 / 0.3048);
  EXPECT_EQ(app.offsetTransducer->x, -10.0 / 0.3048);
  EXPECT_EQ(app.offsetPivot->y, 10.0);
  EXPECT_EQ(bottom.vertices[0]->x, 1.0);
  EXPECT_EQ(app.anchors->items[0]->attachmentX, 5.0);
  EXPECT_EQ(app.unitCode, UnitCode{9002});
  EXPECT_THAT(notified.list, ElementsAreArray(test::notifiedOfAll));
  EXPECT_TRUE(settings.written.empty());
}

TEST_F(UnitsCommand, NoChangesTheUnitAndNoNumber)
{
  const CShapePolyline& top = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  ToFeet();
  EXPECT_EQ(top.vertices[0]->x, 1.0);
  EXPECT_EQ(app.offsetGps->x, 10.0);
  EXPECT_EQ(app.unitCode, UnitCode{9002});
  EXPECT_TRUE(document.IsModified());
}

TEST_F(UnitsCommand, TheUnitHasChangedBeforeTheQuestionAndTheNumbersHaveNot)
{
  const CShapePolyline& top = AddLine(ViewSide::Top, {{3.048, 0.0, 0.0}});
  std::vector<UnitCode> units;
  messages.onQuestion = [&] {
    units.push_back(app.unitCode);
    EXPECT_EQ(top.vertices[0]->x, 3.048);
    EXPECT_EQ(app.offsetGps->x, 10.0);
  };
  messages.answer = true;
  ToFeet();
  EXPECT_THAT(units, ElementsAre(UnitCode{9002}));
  EXPECT_EQ(top.vertices[0]->x, 10.0);
}

TEST_F(UnitsCommand, WhereMemoryEndsTheUnitAndTheNumbersStayTheOldOnes)
{
  const CShapePolyline& top = AddLine(ViewSide::Top, {{3.048, 0.0, 0.0}});
  messages.onQuestion = [] { throw std::bad_alloc(); };
  messages.answer = true;
  EXPECT_THROW(ToFeet(), std::bad_alloc);
  EXPECT_EQ(app.unitCode, UnitCode::Metre);
  EXPECT_EQ(top.vertices[0]->x, 3.048);
}

TEST_F(UnitsCommand, AnEmptySlotEndsTheConversionOfShapesAndNotThatOfOffsets)
{
  const CShapePolyline& before = AddLine(ViewSide::Top, {{3.048, 0.0, 0.0}});
  GetShapes(app.shapeGroups, ViewSide::Top)->shapes.push_back(nullptr);
  const CShapePolyline& behind = AddLine(ViewSide::Top, {{3.048, 0.0, 0.0}});
  messages.answer = true;
  ToFeet();
  EXPECT_EQ(before.vertices[0]->x, 10.0);
  EXPECT_EQ(behind.vertices[0]->x, 3.048);
  EXPECT_EQ(app.offsetGps->x, 10.0 / 0.3048);
}

TEST_F(UnitsCommand, AnEmptySideIsNotAskedAboutAndNothingIsConverted)
{
  AddLine(ViewSide::Bottom, {{1.0, 0.0, 0.0}});
  messages.answer = true;
  ToFeet();
  EXPECT_TRUE(messages.asked.empty());
  EXPECT_EQ(app.offsetGps->x, 10.0);
  EXPECT_EQ(app.unitCode, UnitCode{9002});
}

TEST_F(UnitsCommand, TheSameUnitIsNotAskedAboutAndStillModifies)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  Run(CommandId::Units, {.ok = true});
  EXPECT_TRUE(messages.asked.empty());
  EXPECT_TRUE(document.IsModified());
}

TEST_F(UnitsCommand, AVertexAtTheOriginStaysThere)
{
  const CShapePolyline& top = AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}});
  messages.answer = true;
  ToFeet();
  EXPECT_TRUE(*top.vertices[0] == CShapeVertex());
}

TEST_F(UnitsCommand, WithoutASideInViewThereIsNothingToAskAbout)
{
  app.activeView = ViewSide::None;
  messages.answer = true;
  ToFeet();
  EXPECT_TRUE(messages.asked.empty());
  EXPECT_EQ(app.offsetGps->x, 10.0);
  EXPECT_EQ(app.unitCode, UnitCode{9002});
  EXPECT_TRUE(app.shapeGroups.empty());
}

}  // namespace
}  // namespace hullwright
