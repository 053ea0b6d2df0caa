#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <algorithm>

#include "resources/GridDialog.h"
#include "resources/MoveDialog.h"
#include "resources/OffsetsDialog.h"
#include "resources/RotateDialog.h"
#include "resources/VertexDialog.h"
#include "support/TemplateDialogFixture.h"

namespace hullwright {
namespace {

class TemplateDialogs : public test::TemplateDialogFixture {};

TEST_F(TemplateDialogs, EnterIsOkAndEscapeIsCancel)
{
  Open(DialogId::Scale);
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(logic->oks, 1);
  Open(DialogId::Scale);
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_EQ(logic->oks, 0);
}

TEST_F(TemplateDialogs, AnOkThatTheLogicRefusesKeepsTheDialogOpen)
{
  Open(DialogId::Units);
  logic->agrees = false;
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(logic->oks, 1);
}

TEST_F(TemplateDialogs, TheFirstFieldIsReadyToBeTypedOver)
{
  Open(DialogId::Move);
  dialog->SetText(MoveControls::directionX, u"0.00");
  ASSERT_NE(Focused(), nullptr);
  EXPECT_EQ(Focused()->selectedText(), QStringLiteral("0.00"));
}

TEST_F(TemplateDialogs, TheLogicMayFocusAnotherField)
{
  for (const ControlId field :
       {OffsetsControls::antennaX, OffsetsControls::transducerX, OffsetsControls::pivotX}) {
    Open(DialogId::Offsets, field);
    dialog->SetText(field, u"1.000");
    ASSERT_NE(Focused(), nullptr);
    EXPECT_EQ(Focused()->selectedText(), QStringLiteral("1.000"));
  }
}

TEST_F(TemplateDialogs, TabGoesFromFieldToField)
{
  Open(DialogId::Offsets);
  QStringList names;
  for (int i = 0; i < 7; ++i) {
    ASSERT_NE(Focused(), nullptr) << i;
    names.append(Focused()->accessibleName());
    QTest::keyClick(dialog.get(), Qt::Key_Tab);
  }
  EXPECT_EQ(names.first(), QStringLiteral("GNSS Antenna Offset X:"));
  EXPECT_EQ(names.last(), QStringLiteral("Pivot Point Offset (Dredging Only) Z:"));
}

TEST_F(TemplateDialogs, TheRadioButtonsOfABoxExcludeEachOtherAndNotThoseOfAnother)
{
  Open(DialogId::Rotate);
  dialog->SetChecked(RotateControls::by90, true);
  dialog->SetChecked(RotateControls::clockwise, true);
  dialog->SetChecked(RotateControls::by180, true);
  EXPECT_FALSE(dialog->IsChecked(RotateControls::by90));
  EXPECT_TRUE(dialog->IsChecked(RotateControls::by180));
  EXPECT_TRUE(dialog->IsChecked(RotateControls::clockwise));
  dialog->SetChecked(RotateControls::counterClockwise, true);
  EXPECT_FALSE(dialog->IsChecked(RotateControls::clockwise));
}

TEST_F(TemplateDialogs, TypingAnAngleChoosesIt)
{
  Open(DialogId::Rotate);
  dialog->SetChecked(RotateControls::by90, true);
  QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("30"));
  EXPECT_TRUE(dialog->IsChecked(RotateControls::byAngle));
}

TEST_F(TemplateDialogs, ADoubleClickInTheListIsOk)
{
  Open(DialogId::Units);
  const std::vector<DialogListItem> items = {{u"metre", 9001}, {u"foot", 9002}};
  dialog->FillList(items);
  EXPECT_FALSE(dialog->SelectedListData().has_value());
  auto* const list = dialog->findChild<QListWidget*>();
  const QPoint second = list->visualItemRect(list->item(1)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(dialog->SelectedListData(), 9002);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, second);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(TemplateDialogs, ClicksReachTheLogicAndControlsCanBeDisabled)
{
  Open(DialogId::Grid);
  dialog->SetEnabled(GridControls::showX, false);
  EXPECT_FALSE(dialog->findChildren<QLineEdit*>().at(0)->isEnabled());
  dialog->findChild<QAbstractButton*>()->click();
  EXPECT_EQ(logic->clicks, std::vector<ControlId>{GridControls::showGrid});
}

TEST_F(TemplateDialogs, EachLabelUnitAndFieldOfTheGridIsGreyedByItsOwnId)
{
  using namespace GridControls;
  Open(DialogId::Grid);
  const auto greyed = [this](auto* widget) {
    return std::ranges::count_if(dialog->findChildren<decltype(widget)>(),
                                 [](const QWidget* each) { return !each->isEnabled(); });
  };
  constexpr QLabel* labels = nullptr;
  constexpr QLineEdit* fields = nullptr;
  int count = 0;
  for (const ControlId id : {showXLabel, showYLabel, snapXLabel, snapYLabel, showXUnit, showYUnit,
                             snapXUnit, snapYUnit}) {
    dialog->SetEnabled(id, false);
    EXPECT_EQ(greyed(labels), ++count);
  }
  EXPECT_EQ(greyed(fields), 0);
  count = 0;
  for (const ControlId id : {showX, showY, snapX, snapY}) {
    dialog->SetEnabled(id, false);
    EXPECT_EQ(greyed(fields), ++count);
  }
  EXPECT_EQ(greyed(labels), 8);
}

TEST_F(TemplateDialogs, FieldsStateTheirUnitToAssistiveTechnology)
{
  Open(DialogId::Vertex);
  dialog->SetText(VertexControls::xUnit, u"ft");
  EXPECT_EQ(dialog->findChild<QLineEdit*>()->accessibleDescription(), QStringLiteral("ft"));
}

TEST_F(TemplateDialogs, UnitsHaveRoomForLongerOnes)
{
  Open(DialogId::Move);
  int units = 0;
  for (const QLabel* label : dialog->findChildren<QLabel*>()) {
    if (label->text() != QStringLiteral("meters")) continue;
    ++units;
    EXPECT_EQ(label->minimumWidth(), 56);
  }
  EXPECT_EQ(units, 2);
}

TEST_F(TemplateDialogs, IdsThatADialogLacksReadAsEmptyAndTakeNothing)
{
  Open(DialogId::Scale);
  constexpr ControlId lacking{9};
  dialog->SetText(lacking, u"x");
  dialog->SetChecked(lacking, true);
  dialog->SetEnabled(lacking, false);
  dialog->FocusField(lacking);
  dialog->SelectListItem(3);
  EXPECT_EQ(dialog->GetText(lacking), u"");
  EXPECT_FALSE(dialog->IsChecked(lacking));
}

TEST_F(TemplateDialogs, AboutHasNoCancel)
{
  Open(DialogId::About);
  EXPECT_EQ(dialog->findChildren<QPushButton*>().size(), 1);
}

TEST_F(TemplateDialogs, TheTextOfAUnitIsReadAsItIsShown)
{
  Open(DialogId::Move);
  EXPECT_EQ(dialog->GetText(MoveControls::directionXUnit), u"meters");
  dialog->SetText(MoveControls::directionXUnit, u"ft");
  EXPECT_EQ(dialog->GetText(MoveControls::directionXUnit), u"ft");
}

}  // namespace
}  // namespace hullwright
