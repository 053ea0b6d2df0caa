#include <gtest/gtest.h>

#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QToolBar>

#include "qt/CustomizeDialog.h"
#include "qt/Shell.h"
#include "resources/CommandIds.h"
#include "resources/ToolBarButtons.h"
#include "support/ShellFixture.h"

namespace hullwright {
namespace {

class Frame : public test::ShellFixture {
protected:
  Frame() { Restart(); }

  void Restart()
  {
    if (shell) shell->Window()->close();
    shell.reset();
    shell = std::make_unique<Shell>(QString());
    EXPECT_TRUE(shell->App().InitInstance(*shell));
  }

  MainWindow& Window() { return *shell->Window(); }

  /// Commands of a toolbar's buttons by their labels.
  static QStringList Labels(const QToolBar& bar)
  {
    QStringList labels;
    for (const QAction* action : bar.actions()) {
      labels.append(action->isSeparator() ? QStringLiteral("|") : action->iconText());
    }
    return labels;
  }

  /// The style of the toolkit's that the look is drawn over.
  static QString BaseStyle()
  {
    const auto* const style = qobject_cast<QProxyStyle*>(QApplication::style());
    return style == nullptr ? QString() : style->baseStyle()->name().toLower();
  }

  QList<QToolBar*> Bars() { return Window().findChildren<QToolBar*>(Qt::FindDirectChildrenOnly); }

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

  std::unique_ptr<Shell> shell;
};

TEST_F(Frame, TheLookIsStoredAndRestoredByItsId)
{
  EXPECT_EQ(shell->App().applicationLook, Look::VisualStudio2008);
  Window().RunCommand(CommandOf(Look::Black));
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
  Restart();
  EXPECT_EQ(shell->App().applicationLook, Look::Black);
  EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
  Window().RunCommand(CommandOf(Look::Windows2000));
  EXPECT_EQ(BaseStyle(), QStringLiteral("windows"));
  Window().RunCommand(CommandOf(Look::VisualStudio2008));
  EXPECT_EQ(BaseStyle(), QStringLiteral("fusion"));
}

TEST_F(Frame, AStartStoresItsLookUnderTheNameOfTheMaker)
{
  shell->Window()->close();
  shell.reset();
  const std::string stored = folder.Read("config/Quillmere/Hullwright.ini");
  EXPECT_NE(stored.find("[Workspace]\n"), std::string::npos) << stored;
  EXPECT_NE(stored.find("ApplicationLook=210\n"), std::string::npos) << stored;
}

TEST_F(Frame, TheCursorWaitsWhileALookIsPutOn)
{
  struct Watch : QWidget {
    void changeEvent(QEvent*) override
    {
      const QCursor* const cursor = QApplication::overrideCursor();
      waits |= cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    }
    bool waits = false;
  } watch;
  watch.show();
  Window().RunCommand(CommandOf(Look::Windows2000));
  EXPECT_TRUE(watch.waits);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Frame, TheStandardToolBarBeginsAsItsTableSays)
{
  ASSERT_EQ(Bars().size(), 1);
  EXPECT_EQ(Bars().first()->windowTitle(), QStringLiteral("Standard"));
  // The table's buttons, and the one that ends every toolbar.
  EXPECT_EQ(Bars().first()->actions().size(), static_cast<qsizetype>(mainToolBar.size()) + 1);
}

TEST_F(Frame, EveryToolBarEndsWithTheButtonThatCustomizes)
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

TEST_F(Frame, CustomizingIsNotModalAndOpensOnce)
{
  Window().RunCommand(CommandId::Customize);
  Window().RunCommand(CommandId::Customize);
  const auto open = Window().findChildren<CustomizeDialog*>();
  ASSERT_EQ(open.size(), 1);
  EXPECT_TRUE(open.first()->isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Frame, CustomizingOffersWhatTheMenusHold)
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

TEST_F(Frame, ToolBarsKeepPlaceAndVisibilityWhenTheyAreCustomized)
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

TEST_F(Frame, AToolBarKeepsItsPlaceWhenAnotherOneGoesAndANewOneComes)
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

TEST_F(Frame, TheWindowClosesWithTheOpenDialogAndALookMayChangeUnderIt)
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

TEST_F(Frame, OnlyTheFirstSideButtonOfTheStandardToolBarShowsTheSide)
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

TEST_F(Frame, ButtonsCanBeTakenAwayAndMovedAndStayAwayAfterARestart)
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

TEST_F(Frame, AToolBarOfTheUsersOwnSurvivesARestartAndCanBeDeleted)
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

TEST_F(Frame, TheNameOfAToolBarStandsInTheMenuAsItWasTyped)
{
  MakeBar("Bow & Stern");
  EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Bow & Stern"));
  EXPECT_EQ(Bars().at(1)->toggleViewAction()->text(), QStringLiteral("Bow && Stern"));
}

TEST_F(Frame, AToolBarThatIsGivenNoNameTakesTheProposedOne)
{
  MakeBar("  ");
  ASSERT_EQ(Bars().size(), 2);
  EXPECT_EQ(Bars().at(1)->windowTitle(), QStringLiteral("Toolbar 1"));
}

TEST_F(Frame, ToolBarsOfTheUsersOwnAreNumberedFrom59432)
{
  Actions actions(&Window(), [](CommandId) {});
  ToolBars bars(Window(), actions, {CommandId::FileNew});
  const ToolBarSpec own = {QStringLiteral("Mine"), {CommandId::FileOpen}};
  bars.Build({bars.StandardSpec(), own, own, own});
  QStringList names;
  for (const QToolBar* bar : bars.Bars()) names.append(bar->objectName());
  EXPECT_EQ(names, (QStringList{QStringLiteral("StandardToolBar"), QStringLiteral("59432"),
                                QStringLiteral("59433"), QStringLiteral("59434")}));
}

TEST_F(Frame, TenToolBarsOfTheUsersOwnAreTheMost)
{
  QList<ToolBarSpec> specs = {{QStringLiteral("Standard"), {CommandId::FileNew}}};
  for (int i = 0; i < 12; ++i) specs.append({QString::number(i), {CommandId::FileOpen}});
  QSettings settings(QString::fromStdString((folder.Path() / "bars.ini").string()),
                     QSettings::IniFormat);
  Actions actions(&Window(), [](CommandId) {});
  ToolBars bars(Window(), actions, {CommandId::FileNew});
  bars.Build(specs);
  bars.Store(settings);
  bars.Load(settings);
  EXPECT_EQ(bars.Specs().size(), 11);
  CustomizeDialog dialog(bars, actions, &Window());
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    EXPECT_EQ(button->isEnabled(), button->text() != QStringLiteral("&New...") &&
                                       button->text() != QStringLiteral("&Delete"));
  }
}

TEST_F(Frame, WhatAnotherProgramStoredIsLeftOut)
{
  QSettings settings(QString::fromStdString((folder.Path() / "bars.ini").string()),
                     QSettings::IniFormat);
  settings.setValue(QStringLiteral("Workspace/ToolBars"),
                    QStringList{QStringLiteral("57600 abc 12345 0 32788|Renamed")});
  Actions actions(&Window(), [](CommandId) {});
  ToolBars bars(Window(), actions, {CommandId::FileNew});
  bars.Load(settings);
  ASSERT_EQ(bars.Specs().size(), 1);
  EXPECT_EQ(bars.Specs().first(),
            (ToolBarSpec{QStringLiteral("Standard"),
                         {CommandId::FileNew, CommandId::None, CommandId::DrawPolyline}}));
  settings.setValue(QStringLiteral("Workspace/ToolBars"), QStringLiteral("nonsense"));
  bars.Load(settings);
  EXPECT_EQ(bars.Specs().first().commands, QList<CommandId>{CommandId::FileNew});
}

TEST_F(Frame, TheKeysF6AndShiftF6MoveTheFocusBetweenViewAndTree)
{
  auto* const view = Window().findChild<DesignWidget*>();
  auto* const tree = Window().findChild<ObjectTreeWidget*>();
  Window().activateWindow();
  QApplication::processEvents();
  view->setFocus();
  Window().RunCommand(CommandId::NextPane);
  EXPECT_EQ(Window().focusWidget(), tree);
  Window().RunCommand(CommandId::PreviousPane);
  EXPECT_EQ(Window().focusWidget(), view);
}

}  // namespace
}  // namespace hullwright
