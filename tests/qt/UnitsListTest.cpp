#include <gtest/gtest.h>

#include <QListWidget>
#include <QTest>
#include <QWindow>

#include "app/Dialogs.h"
#include "support/DeskFixture.h"
#include "support/TemplateDialogFixture.h"

namespace hullwright {
namespace {

/// A short list, so that there is room below its entries.
void FillShort(TemplateDialog& dialog)
{
  const std::vector<DialogListItem> items = {{u"metre", 9001}, {u"foot", 9002}};
  dialog.FillList(items);
}

/// Two clicks in a row, through the window as the platform sends them.
void DoubleClick(QWidget& viewport, Qt::MouseButton button, QPoint at)
{
  const QWidget& window = *viewport.window();
  QTest::mouseDClick(window.windowHandle(), button, {}, viewport.mapTo(&window, at));
}

/// A place of the list that no entry takes.
QPoint Beside(const QListWidget& list)
{
  const QPoint place = list.viewport()->rect().bottomRight() - QPoint(4, 4);
  EXPECT_EQ(list.itemAt(place), nullptr);
  return place;
}

class UnitsList : public test::TemplateDialogFixture {
protected:
  UnitsList()
  {
    Open(DialogId::Units);
    FillShort(*dialog);
    list = dialog->findChild<QListWidget*>();
  }

  QListWidget* list = nullptr;
};

TEST_F(UnitsList, ADoubleClickBesideTheEntriesIsOkWithNothingSelected)
{
  dialog->SelectListItem(1);
  // The first of the two clicks leaves nothing selected.
  DoubleClick(*list->viewport(), Qt::LeftButton, Beside(*list));
  EXPECT_EQ(logic->oks, 1);
  EXPECT_FALSE(dialog->SelectedListData().has_value());
}

TEST_F(UnitsList, ADoubleClickOfAnotherButtonIsNoOk)
{
  const QPoint entry = list->visualItemRect(list->item(1)).center();
  for (const QPoint at : {entry, Beside(*list)}) {
    DoubleClick(*list->viewport(), Qt::RightButton, at);
    DoubleClick(*list->viewport(), Qt::MiddleButton, at);
  }
  EXPECT_EQ(logic->oks, 0);
  EXPECT_TRUE(dialog->isVisible());
  DoubleClick(*list->viewport(), Qt::LeftButton, entry);
  EXPECT_EQ(logic->oks, 1);
  EXPECT_FALSE(dialog->isVisible());
}

class UnitsDesk : public test::DeskFixture {};

TEST_F(UnitsDesk, ADoubleClickWithNothingSelectedAsksForAChoiceAndKeepsTheDialogOpen)
{
  WhenAsked<TemplateDialog>([this](TemplateDialog& dialog) {
    FillShort(dialog);
    auto& list = *dialog.findChild<QListWidget*>();
    EXPECT_FALSE(dialog.SelectedListData().has_value());
    Answer(QMessageBox::Ok);
    DoubleClick(*list.viewport(), Qt::LeftButton, Beside(list));
    EXPECT_TRUE(dialog.isVisible());
    dialog.reject();
  });
  Action("Units...")->trigger();
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(lastQuestion, QStringLiteral("Please select an unit from the list first !"));
  EXPECT_EQ(shell->App().unitCode, UnitCode::Metre);
}

TEST_F(UnitsDesk, ADoubleClickOnAnEntryTakesItsUnit)
{
  WhenAsked<TemplateDialog>([this](TemplateDialog& dialog) {
    const auto& list = *dialog.findChild<QListWidget*>();
    Answer(QMessageBox::No);
    DoubleClick(*list.viewport(), Qt::LeftButton, list.visualItemRect(list.item(1)).center());
  });
  Action("Units...")->trigger();
  EXPECT_EQ(shell->App().unitCode, UnitCode{9002});
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(PaneText(1), QStringLiteral("Units: foot"));
  EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(UnitsDesk, OpensWithTheUnitOfTheDesignSelectedInAListThatIsPainted)
{
  shell->App().unitCode = UnitCode{9036};
  WhenAsked<TemplateDialog>([](TemplateDialog& dialog) {
    EXPECT_EQ(dialog.SelectedListData(), 9036);
    EXPECT_TRUE(dialog.findChild<QListWidget*>()->updatesEnabled());
    dialog.reject();
  });
  Action("Units...")->trigger();
  EXPECT_EQ(dialogs, 1);
  EXPECT_FALSE(Window().isWindowModified());
}

}  // namespace
}  // namespace hullwright
