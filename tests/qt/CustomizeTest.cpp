#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QImage>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <functional>

#include "qt/CustomizeDialog.h"
#include "resources/CommandIds.h"
#include "support/FrameFixture.h"

namespace hullwright {
namespace {

/// Toolbars as the user makes them in the dialog for it.
class Customizing : public test::FrameFixture {
protected:
  /// Commands of a toolbar's buttons by their labels.
  static QStringList Labels(const QToolBar& bar)
  {
    QStringList labels;
    for (const QAction* action : bar.actions()) {
      labels.append(action->isSeparator() ? QStringLiteral("|") : action->iconText());
    }
    return labels;
  }

  /// Runs the customisation with `act` on its dialog.
  void Customize(const std::function<void(QDialog&)>& act)
  {
    Window().RunCommand(CommandId::Customize);
    auto* const dialog = Window().findChild<CustomizeDialog*>();
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// Names a new toolbar in the open dialog and shows it there.
  void AddBar(QDialog& dialog, const char* name)
  {
    WhenAsked<QInputDialog>([name](QInputDialog& input) {
      input.setTextValue(QLatin1String(name));
      input.accept();
    });
    Press(dialog, "New...");
  }

  /// Adds the button of a command to the toolbar that the open dialog shows.
  static void AddButton(QDialog& dialog, const char* label)
  {
    auto* const available = dialog.findChildren<QListWidget*>().at(0);
    const auto found = available->findItems(QLatin1String(label), Qt::MatchStartsWith);
    ASSERT_FALSE(found.isEmpty()) << label;
    available->setCurrentItem(found.first());
    Press(dialog, "Add");
  }

  void MakeBar(const char* name)
  {
    Customize([this, name](QDialog& dialog) {
      AddBar(dialog, name);
      Press(dialog, "OK");
    });
  }

  static void Press(QDialog& dialog, const char* text)
  {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->text().remove(QLatin1Char('&')) == QLatin1String(text)) return button->click();
    }
    ADD_FAILURE() << text;
  }
};

TEST_F(Customizing, EveryToolBarEndsWithTheButtonThatCustomizes)
{
  MakeBar("Mine");
  for (const QToolBar* const bar : Bars()) {
    QAction* const last = bar->actions().constLast();
    EXPECT_EQ(last->text(), QStringLiteral("Customize..."));
    last->trigger();
    auto* const dialog = Window().findChild<CustomizeDialog*>();
    ASSERT_NE(dialog, nullptr);
    dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(Customizing, IsNotModalAndOpensOnce)
{
  Window().RunCommand(CommandId::Customize);
  Window().RunCommand(CommandId::Customize);
  const auto open = Window().findChildren<CustomizeDialog*>();
  ASSERT_EQ(open.size(), 1);
  EXPECT_TRUE(open.first()->isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Customizing, OffersWhatTheMenusHold)
{
  Customize([](QDialog& dialog) {
    QStringList names;
    auto* const available = dialog.findChildren<QListWidget*>().at(0);
    for (int row = 0; row < available->count(); ++row) {
      names.append(available->item(row)->text().section(QStringLiteral(" \u2013 "), 0, 0));
    }
    for (const char* name :
         {"Separator", "New Design", "Exit", "Status Bar", "Grid...", "Windows 2000", "Aqua Style",
          "Undo", "Toggle Grid", "Toggle Snap", "View Mode", "Show All", "Top", "About"}) {
      EXPECT_EQ(names.count(QLatin1String(name)), 1) << name;
    }
    for (const char* name : {"Print", "Cut", "Copy", "Paste", "Recent File"}) {
      EXPECT_FALSE(names.contains(QLatin1String(name))) << name;
    }
  });
}

TEST_F(Customizing, HasListsWithNamesThatCutTheirTextsInsteadOfScrollingThem)
{
  Customize([](QDialog& dialog) {
    const auto lists = dialog.findChildren<QListWidget*>();
    ASSERT_EQ(lists.size(), 2);
    EXPECT_EQ(lists.at(0)->accessibleName(), QStringLiteral("Commands"));
    EXPECT_EQ(lists.at(1)->accessibleName(), QStringLiteral("Buttons"));
    for (const QListWidget* const list : lists) {
      EXPECT_EQ(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }
  });
}

TEST_F(Customizing, ListsAreNeverTooSmallToWorkIn)
{
  Customize([](QDialog& dialog) {
    const auto lists = dialog.findChildren<QListWidget*>();
    ASSERT_EQ(lists.size(), 2);
    for (const QListWidget* const list : lists) EXPECT_EQ(list->minimumSize(), QSize(160, 120));
  });
}

TEST_F(Customizing, ToolBarsKeepPlaceAndVisibilityWhenTheyAreCustomized)
{
  MakeBar("Mine");
  Window().addToolBar(Qt::BottomToolBarArea, Bars().at(1));
  Window().addToolBar(Qt::LeftToolBarArea, Bars().at(0));
  Bars().at(1)->hide();
  MakeBar("Another");
  ASSERT_EQ(Bars().size(), 3);
  EXPECT_EQ(Window().toolBarArea(Bars().at(0)), Qt::LeftToolBarArea);
  EXPECT_EQ(Window().toolBarArea(Bars().at(1)), Qt::BottomToolBarArea);
  EXPECT_TRUE(Bars().at(1)->isHidden());
  EXPECT_EQ(Window().toolBarArea(Bars().at(2)), Qt::TopToolBarArea);
  EXPECT_FALSE(Bars().at(2)->isHidden());
}

TEST_F(Customizing, AToolBarKeepsItsPlaceWhenAnotherOneGoesAndANewOneComes)
{
  MakeBar("First");
  MakeBar("Second");
  Window().addToolBar(Qt::BottomToolBarArea, Bars().at(2));
  Bars().at(1)->hide();
  Customize([this](QDialog& dialog) {
    dialog.findChild<QComboBox*>()->setCurrentIndex(1);
    Press(dialog, "Delete");
    AddBar(dialog, "Third");
    Press(dialog, "OK");
  });
  for (int start = 0; start < 2; ++start) {
    ASSERT_EQ(Bars().size(), 3);
    EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Second"));
    EXPECT_EQ(Bars().at(1)->objectName(), QStringLiteral("59433"));
    EXPECT_EQ(Window().toolBarArea(Bars().at(1)), Qt::BottomToolBarArea);
    EXPECT_EQ(Bars().at(2)->windowTitle(), QStringLiteral("Third"));
    EXPECT_EQ(Bars().at(2)->objectName(), QStringLiteral("59432"));
    Restart();
  }
}

TEST_F(Customizing, TheWindowClosesWithTheOpenDialogAndALookMayChangeUnderIt)
{
  Window().RunCommand(CommandId::Customize);
  Window().RunCommand(CommandOf(Look::Black));
  QPointer<CustomizeDialog> dialog = Window().findChild<CustomizeDialog*>();
  ASSERT_NE(dialog, nullptr);
  Press(*dialog, "OK");
  Window().RunCommand(CommandId::Customize);
  EXPECT_TRUE(Window().close());
  Restart();
  EXPECT_EQ(dialog, nullptr);
}

TEST_F(Customizing, OnlyTheFirstSideButtonOfTheStandardToolBarShowsTheSide)
{
  Customize([this](QDialog& dialog) {
    AddBar(dialog, "Mine");
    AddButton(dialog, "View Mode");
    dialog.findChild<QComboBox*>()->setCurrentIndex(0);
    AddButton(dialog, "View Mode");
    Press(dialog, "OK");
  });
  Window().RunCommand(CommandId::ViewRear);
  QStringList shown;
  for (const QToolBar* const bar : Bars()) {
    for (QAction* const action : bar->actions()) {
      const QWidget* const button = bar->widgetForAction(action);
      if (button != nullptr && button->objectName() == QStringLiteral("SideButton")) {
        shown.append(button->accessibleDescription());
      }
    }
  }
  EXPECT_EQ(shown, (QStringList{QStringLiteral("Rear"), QString(), QString()}));
}

TEST_F(Customizing, ButtonsCanBeTakenAwayAndMovedAndStayAwayAfterARestart)
{
  Customize([](QDialog& dialog) {
    auto* const shown = dialog.findChildren<QListWidget*>().at(1);
    shown->setCurrentRow(0);
    Press(dialog, "Remove");  // New
    shown->setCurrentRow(0);
    Press(dialog, "Move Down");  // Open behind Save
    dialog.accept();
  });
  // Closing the dialog by itself takes nothing over.
  EXPECT_EQ(Labels(*Bars().first()).first(), QStringLiteral("New\nDesign"));
  Customize([](QDialog& dialog) {
    auto* const shown = dialog.findChildren<QListWidget*>().at(1);
    shown->setCurrentRow(0);
    Press(dialog, "Remove");
    shown->setCurrentRow(0);
    Press(dialog, "Move Down");
    Press(dialog, "OK");
  });
  const QStringList wanted = {QStringLiteral("Save\nDesign"), QStringLiteral("Open\nDesign")};
  EXPECT_EQ(Labels(*Bars().first()).mid(0, 2), wanted);
  Restart();
  EXPECT_EQ(Labels(*Bars().first()).mid(0, 2), wanted);
  Customize([](QDialog& dialog) {
    Press(dialog, "Reset");
    Press(dialog, "OK");
  });
  EXPECT_EQ(Labels(*Bars().first()).first(), QStringLiteral("New\nDesign"));
}

TEST_F(Customizing, AToolBarOfTheUsersOwnSurvivesARestartAndCanBeDeleted)
{
  Customize([this](QDialog& dialog) {
    AddBar(dialog, "Mine | 2");
    AddButton(dialog, "New Design");
    AddButton(dialog, "Separator");
    Press(dialog, "OK");
  });
  for (int start = 0; start < 2; ++start) {
    ASSERT_EQ(Bars().size(), 2);
    EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Mine | 2"));
    EXPECT_EQ(Labels(*Bars().at(1)),
              (QStringList{QStringLiteral("New\nDesign"), QStringLiteral("|"),
                           QStringLiteral("Customize...")}));
    Restart();
  }
  Customize([](QDialog& dialog) {
    dialog.findChild<QComboBox*>()->setCurrentIndex(1);
    Press(dialog, "Delete");
    Press(dialog, "OK");
  });
  EXPECT_EQ(Bars().size(), 1);
}

TEST_F(Customizing, TheNameOfAToolBarStandsInTheMenuAsItWasTyped)
{
  MakeBar("Bow & Stern");
  EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Bow & Stern"));
  EXPECT_EQ(Bars().at(1)->toggleViewAction()->text(), QStringLiteral("Bow && Stern"));
}

TEST_F(Customizing, AToolBarThatIsGivenNoNameTakesTheProposedOne)
{
  MakeBar("  ");
  ASSERT_EQ(Bars().size(), 2);
  EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Toolbar 1"));
}

TEST_F(Customizing, ATenthToolBarOfTheUsersOwnCanBeMade)
{
  Customize([this](QDialog& dialog) {
    for (int bar = 0; bar < 10; ++bar) AddBar(dialog, "Mine");
    EXPECT_EQ(dialog.findChild<QComboBox*>()->count(), 11);
  });
}

TEST_F(Customizing, TheFirstButtonGoesNoFurtherUpNorTheLastDown)
{
  Customize([](QDialog& dialog) {
    auto* const shown = dialog.findChildren<QListWidget*>().at(1);
    const int last = shown->count() - 1;
    ASSERT_GT(last, 0);
    shown->setCurrentRow(0);
    Press(dialog, "Move Up");
    EXPECT_EQ(shown->currentRow(), 0);
    shown->setCurrentRow(last);
    Press(dialog, "Move Down");
    EXPECT_EQ(shown->currentRow(), last);
  });
}

TEST_F(Customizing, AButtonIsAddedBehindTheChosenOne)
{
  Customize([](QDialog& dialog) {
    auto* const shown = dialog.findChildren<QListWidget*>().at(1);
    shown->setCurrentRow(0);
    AddButton(dialog, "Zoom In");
    EXPECT_EQ(shown->currentRow(), 1);
    EXPECT_TRUE(shown->item(1)->text().startsWith(QStringLiteral("Zoom In")));
  });
}

TEST_F(Customizing, FieldsStandAtTheLabelsWhoseKeysLeadToThem)
{
  Customize([](QDialog& dialog) {
    const auto labels = dialog.findChildren<QLabel*>();
    const auto lists = dialog.findChildren<QListWidget*>();
    ASSERT_EQ(labels.size(), 3);
    const QWidget* const bars = labels.at(0)->buddy();
    ASSERT_EQ(bars, dialog.findChild<QComboBox*>());
    EXPECT_LT(labels.at(0)->geometry().right(), bars->x());
    for (int i = 0; i < 2; ++i) {
      const QLabel& label = *labels.at(i + 1);
      EXPECT_EQ(label.buddy(), lists.at(i));
      EXPECT_EQ(label.x(), lists.at(i)->x());
      EXPECT_LT(label.geometry().bottom(), lists.at(i)->y());
    }
  });
}

TEST_F(Customizing, TheButtonsThatMakeAndDeleteAToolBarStandSideBySide)
{
  Customize([](QDialog& dialog) {
    const auto buttons = dialog.findChildren<QPushButton*>();
    ASSERT_GE(buttons.size(), 2);
    EXPECT_EQ(buttons.at(0)->text(), QStringLiteral("&New..."));
    EXPECT_EQ(buttons.at(1)->text(), QStringLiteral("&Delete"));
    EXPECT_LT(buttons.at(0)->geometry().right(), buttons.at(1)->x());
    // Those that end the dialog stand below everything, as wide as it.
    EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->geometry().right(),
              dialog.findChildren<QListWidget*>().at(1)->geometry().right());
  });
}

TEST_F(Customizing, ARowThatIsCutCanBeReadInItsTooltip)
{
  Customize([](QDialog& dialog) {
    const auto& available = *dialog.findChildren<QListWidget*>().at(0);
    ASSERT_GT(available.count(), 30);
    for (int row = 1; row < available.count(); ++row) {  // behind the separator
      const QListWidgetItem& item = *available.item(row);
      EXPECT_EQ(item.toolTip(), item.text().toHtmlEscaped()) << row;
    }
  });
}

TEST_F(Customizing, TheTextOfARowWithoutAnImageStandsInLineWithTheOthers)
{
  Customize([](QDialog& dialog) {
    const auto& available = *dialog.findChildren<QListWidget*>().at(0);
    ASSERT_GT(available.count(), 30);
    for (int row = 0; row < available.count(); ++row) {
      EXPECT_FALSE(available.item(row)->icon().isNull()) << row;
    }
    const QImage separator = available.item(0)->icon().pixmap(16).toImage();
    ASSERT_FALSE(separator.isNull());
    EXPECT_EQ(separator.pixelColor(8, 8).alpha(), 0);
  });
}

TEST_F(Customizing, TheDialogLeavesATenthOfASmallScreenFree)
{
  Customize([](QDialog& dialog) {
    const QSize room = dialog.screen()->availableSize() * 0.9;
    EXPECT_EQ(dialog.size(), QSize(860, 560).boundedTo(room));
  });
}

}  // namespace
}  // namespace hullwright
