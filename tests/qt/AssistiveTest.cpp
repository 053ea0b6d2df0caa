#include <gtest/gtest.h>

#include <QAccessible>
#include <QFileDialog>
#include <QHeaderView>
#include <QListWidget>
#include <QMenuBar>
#include <QRadioButton>
#include <QScreen>
#include <QTest>
#include <QTreeView>
#include <filesystem>
#include <fstream>
#include <set>

#include "app/Dialogs.h"
#include "base/Code.h"
#include "qt/Accessibility.h"
#include "qt/FileDialogLook.h"
#include "support/DeskFixture.h"
#include "support/TemplateDialogFixture.h"

namespace hullwright {
namespace {

/// Roles that a user works with, each of which must have a name.
const std::set<QAccessible::Role>& WorkedWith()
{
  static const std::set<QAccessible::Role> roles = {
      QAccessible::Button,      QAccessible::ButtonMenu,   QAccessible::CheckBox,
      QAccessible::RadioButton, QAccessible::EditableText, QAccessible::ComboBox,
      QAccessible::List,        QAccessible::Tree,         QAccessible::Canvas,
      QAccessible::MenuItem,    QAccessible::ProgressBar,  QAccessible::Dialog};
  return roles;
}

/// What assistive technology finds below an object, with the path to it where it has no name.
void FindNameless(QAccessibleInterface& parent, const QString& path, QStringList& nameless,
                  int& named)
{
  for (int i = 0; i < parent.childCount(); ++i) {
    QAccessibleInterface* const child = parent.child(i);
    if (child == nullptr || child->state().invisible) continue;
    const QString name = child->text(QAccessible::Name);
    const QString here =
        path + QLatin1Char('/') + (name.isEmpty() ? QString::number(child->role()) : name);
    const bool isSeparator = child->role() == QAccessible::Separator;
    const QWidget* const widget = qobject_cast<QWidget*>(child->object());
    // What the toolkit itself adds: buttons of panes, scroll bars.
    const bool isToolkits = child->object() != nullptr &&
                            child->object()->objectName().startsWith(QLatin1String("qt_"));
    if (!isSeparator && !isToolkits && WorkedWith().contains(child->role())) {
      if (name.isEmpty()) nameless.append(here);
      ++named;
    }
    if (widget == nullptr || widget->isVisible()) FindNameless(*child, here, nameless, named);
  }
}

/// As the start of the program does before the first widget.
struct WithAccessibility {
  WithAccessibility() { InstallAccessibility(); }
};

class Assistive : WithAccessibility, public test::DeskFixture {
protected:
  static QAccessibleInterface& Of(QObject* object)
  {
    return *QAccessible::queryAccessibleInterface(object);
  }
};

TEST_F(Assistive, WhateverTheWindowHasToWorkWithHasAName)
{
  QStringList nameless;
  int named = 0;
  FindNameless(Of(&Window()), QString(), nameless, named);
  EXPECT_EQ(nameless, QStringList());
  EXPECT_GE(named, 30);
}

TEST_F(Assistive, TheProgramsOwnWidgetsHaveTheirRolesAndNames)
{
  EXPECT_EQ(Of(&View()).role(), QAccessible::Canvas);
  EXPECT_EQ(Of(&View()).text(QAccessible::Name), QStringLiteral("Design view"));
  EXPECT_EQ(Of(&Tree()).role(), QAccessible::Tree);
  EXPECT_EQ(Of(&Tree()).text(QAccessible::Name), QStringLiteral("Object tree"));
  const auto panes = Window().findChildren<StatusPane*>();
  EXPECT_EQ(Of(panes.at(0)).role(), QAccessible::StaticText);
  EXPECT_EQ(Of(panes.at(1)).role(), QAccessible::Button);
  EXPECT_EQ(Of(panes.at(1)).text(QAccessible::Name), panes.at(1)->text());
  Window().StartProgress("Importing");
  auto* const bar = Window().findChild<QProgressBar*>();
  Window().ShowProgress(40);
  EXPECT_EQ(Of(bar).role(), QAccessible::ProgressBar);
  EXPECT_EQ(Of(bar).text(QAccessible::Name), QStringLiteral("Importing"));
  EXPECT_EQ(Of(bar).valueInterface()->currentValue().toInt(), 40);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  Window().EndProgress();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Assistive, TheUnitsPaneCanBePressed)
{
  WhenAsked<TemplateDialog>([](TemplateDialog& dialog) { dialog.reject(); });
  QAccessibleInterface& pane = Of(Window().findChildren<StatusPane*>().at(1));
  ASSERT_NE(pane.actionInterface(), nullptr);
  pane.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(dialogs, 0);  // who pressed doesn't wait for the dialog
  EXPECT_TRUE(QTest::qWaitFor([this] { return dialogs == 1; }));
}

TEST_F(Assistive, IsToldOfTheTextOfAPaneOnlyWhenItIsAnother)
{
  // Who tells of a change asks first what it is a change of; the answer is forgotten each time.
  static int asked = 0;
  const QAccessible::InterfaceFactory count = [](const QString&, QObject*) {
    ++asked;
    return static_cast<QAccessibleInterface*>(nullptr);
  };
  QAccessible::installFactory(count);
  auto& pane = *Window().findChildren<StatusPane*>().at(0);
  const auto isToldOf = [&pane](const char* text) {
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(&Of(&pane)));
    asked = 0;
    pane.Show(QLatin1String(text));
    return asked > 0;
  };
  EXPECT_TRUE(isToldOf("X: +01.00"));
  EXPECT_FALSE(isToldOf("X: +01.00"));
  EXPECT_TRUE(isToldOf("X: +02.00"));
  QAccessible::removeFactory(count);
}

TEST_F(Assistive, EveryMenuIsReachedByAltAndByF10)
{
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_F10);
  QStringList reached;
  for (qsizetype i = 0; i < Window().menuBar()->actions().size(); ++i) {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) break;
    reached.append(menu->title());
    // To the left, where no entry opens a menu of its own.
    QTest::keyClick(menu, Qt::Key_Left);
    QApplication::processEvents();
  }
  while (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
  EXPECT_EQ(reached.join(QLatin1Char(' ')).toStdString(),
            "&File &Help Cursor &Options Modify &Edit &View");
}

class AssistiveDialogs : public test::TemplateDialogFixture {};

TEST_F(AssistiveDialogs, WhateverADialogHasToWorkWithHasANameAndIsReachedByTheTabKey)
{
  for (const DialogId id : {DialogId::Grid, DialogId::Move, DialogId::Offsets, DialogId::Rotate,
                            DialogId::Scale, DialogId::Vertex, DialogId::Units, DialogId::About}) {
    Open(id);
    QStringList nameless;
    int named = 0;
    FindNameless(*QAccessible::queryAccessibleInterface(dialog.get()), QString(), nameless, named);
    EXPECT_EQ(nameless, QStringList()) << NumberOf(id);
    std::set<QWidget*> reached;
    QWidget* widget = dialog.get();
    for (int i = 0; i < 100; ++i) {
      widget = widget->nextInFocusChain();
      if ((widget->focusPolicy() & Qt::TabFocus) != 0) reached.insert(widget);
    }
    for (QWidget* const child : dialog->findChildren<QWidget*>()) {
      // Of radio buttons the chosen one is; arrow keys lead to the others.
      if (const auto* const radio = qobject_cast<QRadioButton*>(child)) {
        if (!radio->isChecked()) continue;
      }
      const bool works = qobject_cast<QLineEdit*>(child) != nullptr ||
                         qobject_cast<QAbstractButton*>(child) != nullptr ||
                         qobject_cast<QListWidget*>(child) != nullptr;
      if (works && child->isEnabled()) {
        EXPECT_TRUE(reached.contains(child)) << NumberOf(id);
      }
    }
  }
}

TEST_F(AssistiveDialogs, TheListOfUnitsShowsSixteenWholeRows)
{
  Open(DialogId::Units);
  std::vector<DialogListItem> items;
  for (int i = 0; i < 60; ++i) items.push_back({u"unit of length", 9001 + i});
  dialog->FillList(items);
  QApplication::processEvents();
  auto& list = *dialog->findChild<QListWidget*>();
  const int row = list.sizeHintForRow(0);
  ASSERT_GT(row, 0);
  EXPECT_EQ(list.viewport()->height(), 16 * row);
  list.scrollToBottom();
  EXPECT_EQ(list.visualItemRect(list.item(59)).bottom(), list.viewport()->height() - 1);
}

class BusyCursor : public test::DeskFixture {
protected:
  static bool Waits()
  {
    return QApplication::overrideCursor() != nullptr &&
           QApplication::overrideCursor()->shape() == Qt::WaitCursor;
  }
};

TEST_F(BusyCursor, IsThereWhileADesignIsSavedAndOpenedAndGoesWithTheNextEvents)
{
  const std::string path = (folder.Path() / "boat.xml").string();
  std::filesystem::copy_file(HULLWRIGHT_SAMPLES "/workboat.xml", path);
  ASSERT_TRUE(shell->Window()->Document().Open(std::filesystem::path(path).u16string()));
  QApplication::processEvents();
  EXPECT_FALSE(Waits());
  Window().RunCommand(CommandId::FileSave);
  EXPECT_TRUE(Waits());
  QApplication::processEvents();
  EXPECT_FALSE(Waits());
  QMenu& recent = *Action("Recent File")->menu();
  Q_EMIT recent.aboutToShow();
  ASSERT_FALSE(recent.actions().isEmpty());
  recent.actions().constFirst()->trigger();
  EXPECT_TRUE(Waits());
  QApplication::processEvents();
  EXPECT_FALSE(Waits());
}

class DialogPlaces : public test::DeskFixture {};

TEST_F(DialogPlaces, NoDialogOpensOffTheScreen)
{
  const QRect screen = Window().screen()->availableGeometry();
  for (const QPoint place : {screen.topLeft() - QPoint(900, 500), screen.bottomRight()}) {
    Window().move(place);
    for (const CommandId command : {CommandId::Grid, CommandId::Offsets, CommandId::About,
                                    CommandId::Units, CommandId::RotateLeft}) {
      WhenAsked<TemplateDialog>([&](TemplateDialog& dialog) {
        EXPECT_TRUE(screen.contains(dialog.geometry())) << NumberOf(command);
        dialog.reject();
      });
      Window().RunCommand(command);
    }
  }
  EXPECT_EQ(dialogs, 10);
}

TEST_F(DialogPlaces, TheNamesInAFileDialogAreSeenWhole)
{
  const std::string name = "survey-vessel-with-a-name-of-forty-letters.xml";
  std::ofstream(folder.Path() / name) << "x";
  QFileDialog dialog(&Window(), QString(), QString::fromStdString(folder.Path().string()));
  PrepareFileDialog(dialog);
  dialog.show();
  auto& list = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  ASSERT_TRUE(QTest::qWaitFor([&list] { return list.model()->rowCount(list.rootIndex()) > 0; }));
  const QModelIndex root = list.rootIndex();
  EXPECT_TRUE(QTest::qWaitFor([&] {
    int row = 0;
    while (row < list.model()->rowCount(root) &&
           list.model()->index(row, 0, root).data().toString().toStdString() != name) {
      ++row;
    }
    const QModelIndex file = list.model()->index(row, 0, root);
    return file.isValid() && list.visualRect(file).isValid();
  }));
  for (int column = 0; column < 4; ++column) {
    int needed = list.fontMetrics().horizontalAdvance(
        column == 0 ? QString::fromStdString(name)
                    : list.model()->index(0, column, root).data().toString());
    EXPECT_GE(list.columnWidth(column), needed) << column;
  }
  EXPECT_EQ(list.header()->length(), list.viewport()->width());
  EXPECT_TRUE(dialog.screen()->availableGeometry().contains(QRect(QPoint(), dialog.size())));
}

}  // namespace
}  // namespace hullwright
