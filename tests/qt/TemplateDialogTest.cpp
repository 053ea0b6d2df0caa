#include <gtest/gtest.h>

#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

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
  dialog->SetText(1024, u"0.00");
  ASSERT_NE(Focused(), nullptr);
  EXPECT_EQ(Focused()->selectedText(), QStringLiteral("0.00"));
}

TEST_F(TemplateDialogs, TheLogicMayFocusAnotherField)
{
  for (const int field : {1027, 1030, 1001}) {
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
  dialog->SetChecked(1013, true);
  dialog->SetChecked(1021, true);
  dialog->SetChecked(1014, true);
  EXPECT_FALSE(dialog->IsChecked(1013));
  EXPECT_TRUE(dialog->IsChecked(1014));
  EXPECT_TRUE(dialog->IsChecked(1021));
  dialog->SetChecked(1022, true);
  EXPECT_FALSE(dialog->IsChecked(1021));
}

TEST_F(TemplateDialogs, TypingAnAngleChoosesIt)
{
  Open(DialogId::Rotate);
  dialog->SetChecked(1013, true);
  QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("30"));
  EXPECT_TRUE(dialog->IsChecked(1016));
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
  dialog->SetEnabled(1000, false);
  EXPECT_FALSE(dialog->findChildren<QLineEdit*>().at(0)->isEnabled());
  dialog->findChild<QAbstractButton*>()->click();
  EXPECT_EQ(logic->clicks, std::vector<int>{1002});
}

TEST_F(TemplateDialogs, FieldsTellTheirUnitToAssistiveTechnology)
{
  Open(DialogId::Vertex);
  dialog->SetText(1004, u"ft");
  EXPECT_EQ(dialog->findChild<QLineEdit*>()->accessibleDescription(), QStringLiteral("ft"));
}

TEST_F(TemplateDialogs, IdsThatADialogLacksReadAsEmptyAndTakeNothing)
{
  Open(DialogId::Scale);
  dialog->SetText(9, u"x");
  dialog->SetChecked(9, true);
  dialog->SetEnabled(9, false);
  dialog->FocusField(9);
  dialog->SelectListItem(3);
  EXPECT_EQ(dialog->GetText(9), u"");
  EXPECT_FALSE(dialog->IsChecked(9));
}

TEST_F(TemplateDialogs, AboutHasNoCancel)
{
  Open(DialogId::About);
  EXPECT_EQ(dialog->findChildren<QPushButton*>().size(), 1);
}

}  // namespace
}  // namespace hullwright
