#include <gmock/gmock.h>

#include <cmath>
#include <ostream>

#include "base/Code.h"
#include "resources/CommandIds.h"
#include "resources/RotateDialog.h"
#include "support/CommandFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAreArray;

class RotateCommand : public test::CommandFixture {};

TEST_F(RotateCommand, TurnsPolylinesOnly)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 0.0, 3.0}});
  const CShapePoint& point = AddPoint(ViewSide::Top, {1.0, 0.0, 0.0});
  Run(CommandId::RotateLeft, {.ok = true});
  EXPECT_NEAR(line.vertices[0]->y, 1.0, 1e-15);
  EXPECT_EQ(line.vertices[0]->z, 3.0);
  EXPECT_EQ(point.position.x, 1.0);
  Run(CommandId::RotateRight, {.ok = true});
  EXPECT_NEAR(line.vertices[0]->x, 1.0, 1e-15);
  EXPECT_NEAR(line.vertices[0]->y, 0.0, 1e-15);
}

/// A shape of a kind that no rotation may reach.
class Unturnable : public CShapePoint {
public:
  explicit Unturnable(ShapeType kind) { type = kind; }
  void Rotate(double) override { ADD_FAILURE() << "turned a shape of type " << NumberOf(type); }
};

TEST_F(RotateCommand, NoOtherKindOfShapeIsTurned)
{
  for (const ShapeType kind :
       {ShapeType::Point, ShapeType::Polygon, ShapeType::Text, ShapeType::Ring}) {
    GetShapes(app.shapeGroups, ViewSide::Top)->shapes.push_back(std::make_unique<Unturnable>(kind));
  }
  const CShapePolyline& last = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  Run(CommandId::RotateLeft, {.ok = true});
  EXPECT_NEAR(last.vertices[0]->y, 1.0, 1e-15);
}

struct AngleCase {
  CommandId command;
  DialogScript script;
  double degrees;  ///< where (1, 0) comes to lie
};

std::ostream& operator<<(std::ostream& out, const AngleCase& row)
{
  return out << "command " << NumberOf(row.command) << ", " << row.degrees << " degrees";
}

class Angle : public RotateCommand, public testing::WithParamInterface<AngleCase> {};

TEST_P(Angle, ComesFromButtonFieldAndDirection)
{
  const CShapePolyline& line = AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  Run(GetParam().command, GetParam().script);
  const double radians = GetParam().degrees * 0.017453292519943295;
  EXPECT_NEAR(line.vertices[0]->x, std::cos(radians), 1e-12);
  EXPECT_NEAR(line.vertices[0]->y, std::sin(radians), 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Choices, Angle,
    testing::Values(AngleCase{CommandId::RotateLeft, {.ok = true}, 90.0},
                    AngleCase{CommandId::RotateRight, {.ok = true}, -90.0},
                    AngleCase{CommandId::RotateLeft,
                              {.ok = true, .clicks = {{RotateControls::by180, true}}},
                              180.0},
                    AngleCase{CommandId::RotateLeft,
                              {.ok = true, .clicks = {{RotateControls::by270, true}}},
                              270.0},
                    AngleCase{CommandId::RotateLeft,
                              {.ok = true, .clicks = {{RotateControls::clockwise, true}}},
                              -90.0},
                    AngleCase{CommandId::RotateRight,
                              {.ok = true, .clicks = {{RotateControls::counterClockwise, true}}},
                              90.0},
                    AngleCase{CommandId::RotateLeft,
                              {.ok = true,
                               .fields = {{RotateControls::angle, u"30"}},
                               .clicks = {{RotateControls::byAngle, true}}},
                              30.0},
                    AngleCase{CommandId::RotateRight,
                              {.ok = true,
                               .fields = {{RotateControls::angle, u"-30"}},
                               .clicks = {{RotateControls::byAngle, true}}},
                              30.0},
                    AngleCase{CommandId::RotateLeft,
                              {.ok = true,
                               .fields = {{RotateControls::angle, u"abc"}},
                               .clicks = {{RotateControls::byAngle, true}}},
                              0.0}));

TEST_F(RotateCommand, ARotationByNothingStillModifies)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  Run(CommandId::RotateLeft, {.ok = true,
                              .fields = {{RotateControls::angle, u"abc"}},
                              .clicks = {{RotateControls::byAngle, true}}});
  EXPECT_THAT(notified.list, ElementsAreArray(test::notifiedOfAll));
}

TEST_F(RotateCommand, TheRotateDialogBeginsAtNinetyDegreesInItsDirection)
{
  Run(CommandId::RotateRight, {});
  EXPECT_TRUE(dialogs.startChecks[RotateControls::by90]);
  EXPECT_TRUE(dialogs.startChecks[RotateControls::clockwise]);
  EXPECT_FALSE(dialogs.startChecks[RotateControls::counterClockwise]);
  EXPECT_EQ(dialogs.startTexts[RotateControls::angle], u"0.0");
  Run(CommandId::RotateLeft, {});
  EXPECT_FALSE(dialogs.startChecks[RotateControls::clockwise]);
  EXPECT_TRUE(dialogs.startChecks[RotateControls::counterClockwise]);
}

TEST_F(RotateCommand, WithoutASideInViewARotationNotifiesEverybodyAndMakesNoGroup)
{
  app.activeView = ViewSide::None;
  Run(CommandId::RotateLeft, {.ok = true});
  EXPECT_THAT(notified.list, ElementsAreArray(test::notifiedOfAll));
  EXPECT_TRUE(app.shapeGroups.empty());
}

TEST_F(RotateCommand, ARotationWalksWithTheGroupsOwnCursor)
{
  AddLine(ViewSide::Top, {{1.0, 0.0, 0.0}});
  AddLine(ViewSide::Top, {{2.0, 0.0, 0.0}});
  app.RotatePolylines(90.0);
  EXPECT_EQ(FindViewGroup(app.shapeGroups, ViewSide::Top)->cursor, 3U);
}

}  // namespace
}  // namespace hullwright
