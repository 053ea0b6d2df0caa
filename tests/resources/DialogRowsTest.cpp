#include <gtest/gtest.h>

#include "resources/GridDialog.h"
#include "resources/OffsetsDialog.h"
#include "resources/RotateDialog.h"

namespace hullwright {
namespace {

using Kind = DialogRowKind;

constexpr ControlId first{1};
constexpr ControlId second{2};
constexpr ControlId third{3};

bool IsUnique(std::initializer_list<DialogRow> rows)
{
  return HasUniqueControls({DialogId::About, u"", {rows.begin(), rows.size()}});
}

TEST(DialogRows, AnIdThatStandsTwiceIsFoundWhereverItStands)
{
  EXPECT_TRUE(IsUnique({{Kind::Field, first, u"", second, third}}));
  EXPECT_FALSE(IsUnique({{Kind::Field, first, u"", first}}));
  EXPECT_FALSE(IsUnique({{Kind::Field, first, u"", second, second}}));
  EXPECT_FALSE(
      IsUnique({{Kind::Check, first}, {Kind::Field, second, u"", ControlId::None, first}}));
  EXPECT_FALSE(IsUnique({{Kind::Check, first}, {.kind = Kind::Note}, {Kind::Check, first}}));
}

TEST(DialogRows, ControlsThatAreNeverAskedForMayBeMany)
{
  EXPECT_TRUE(IsUnique({{.kind = Kind::Group}, {.kind = Kind::Note}, {Kind::Field, first}}));
}

TEST(DialogRows, AFieldIsFoundByItsOwnIdAlone)
{
  const DialogRow* const row = FindField(gridDialog, GridControls::showY);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->unitId, GridControls::showYUnit);
  EXPECT_EQ(FindField(gridDialog, GridControls::showYUnit), nullptr);
  EXPECT_EQ(FindField(gridDialog, GridControls::showYLabel), nullptr);
  EXPECT_EQ(FindField(gridDialog, GridControls::showGrid), nullptr);
  EXPECT_EQ(FindField(gridDialog, ControlId::None), nullptr);
}

TEST(DialogRows, TheFieldOfARadioButtonIsFoundByItsOwnIdToo)
{
  const DialogRow* const row = FindField(rotateDialog, RotateControls::angle);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->id, RotateControls::byAngle);
  EXPECT_EQ(FindField(rotateDialog, RotateControls::byAngle), nullptr);
}

TEST(DialogRows, AButtonIsNoFieldAndAFieldNoButton)
{
  EXPECT_NE(FindButton(gridDialog, GridControls::snapToGrid), nullptr);
  EXPECT_NE(FindButton(rotateDialog, RotateControls::by90), nullptr);
  EXPECT_NE(FindButton(rotateDialog, RotateControls::byAngle), nullptr);
  EXPECT_EQ(FindButton(rotateDialog, RotateControls::angle), nullptr);
  EXPECT_EQ(FindButton(gridDialog, GridControls::snapX), nullptr);
  EXPECT_EQ(FindButton(gridDialog, ControlId::None), nullptr);
}

TEST(DialogRows, TheRowsBehindAButtonEndAtTheNextGroupOrWithTheDialog)
{
  const auto shown = RowsBehind(gridDialog, GridControls::showGrid);
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].id, GridControls::showX);
  EXPECT_EQ(shown[1].id, GridControls::showY);
  const auto snapped = RowsBehind(gridDialog, GridControls::snapToGrid);
  ASSERT_EQ(snapped.size(), 2U);
  EXPECT_EQ(snapped[0].id, GridControls::snapX);
  EXPECT_EQ(snapped[1].id, GridControls::snapY);
}

TEST(DialogRows, ThereIsNothingBehindTheLastButtonOrBehindWhatIsNone)
{
  EXPECT_TRUE(RowsBehind(rotateDialog, RotateControls::byAngle).empty());
  EXPECT_TRUE(RowsBehind(rotateDialog, RotateControls::counterClockwise).empty());
  EXPECT_TRUE(RowsBehind(gridDialog, GridControls::showX).empty());
  EXPECT_TRUE(RowsBehind(offsetsDialog, ControlId::None).empty());
}

}  // namespace
}  // namespace hullwright
