#include <gtest/gtest.h>

#include <QTest>
#include <QToolButton>
#include <ostream>
#include <set>

#include "qt/TemplateDialog.h"
#include "resources/CommandIds.h"
#include "resources/Commands.h"
#include "resources/GridDialog.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

struct KeyCase {
  const char* name;
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  CommandId command;
};

std::ostream& operator<<(std::ostream& out, const KeyCase& row) { return out << row.name; }

class Keys : public test::ShellFixture, public testing::WithParamInterface<KeyCase> {};

TEST_P(Keys, RunTheirCommand)
{
  QWidget window;
  std::vector<CommandId> ran;
  Actions actions(&window, [&ran](CommandId command) { ran.push_back(command); });
  for (const CommandEntry& command : Commands()) actions.Get(command.id);
  window.show();
  window.activateWindow();
  QApplication::processEvents();
  QTest::keyClick(&window, GetParam().key, GetParam().modifiers);
  EXPECT_EQ(ran, std::vector<CommandId>{GetParam().command});
}

INSTANTIATE_TEST_SUITE_P(
    Accelerators, Keys,
    testing::Values(KeyCase{"CtrlN", Qt::Key_N, Qt::ControlModifier, CommandId{57600}},
                    KeyCase{"CtrlO", Qt::Key_O, Qt::ControlModifier, CommandId{57601}},
                    KeyCase{"CtrlS", Qt::Key_S, Qt::ControlModifier, CommandId{57603}},
                    KeyCase{"CtrlP", Qt::Key_P, Qt::ControlModifier, CommandId{57607}},
                    KeyCase{"CtrlZ", Qt::Key_Z, Qt::ControlModifier, CommandId{57643}},
                    KeyCase{"AltBackspace", Qt::Key_Backspace, Qt::AltModifier, CommandId{57643}},
                    KeyCase{"CtrlX", Qt::Key_X, Qt::ControlModifier, CommandId{57635}},
                    KeyCase{"ShiftDelete", Qt::Key_Delete, Qt::ShiftModifier, CommandId{57635}},
                    KeyCase{"CtrlC", Qt::Key_C, Qt::ControlModifier, CommandId{57634}},
                    KeyCase{"CtrlInsert", Qt::Key_Insert, Qt::ControlModifier, CommandId{57634}},
                    KeyCase{"CtrlV", Qt::Key_V, Qt::ControlModifier, CommandId{57637}},
                    KeyCase{"ShiftInsert", Qt::Key_Insert, Qt::ShiftModifier, CommandId{57637}},
                    KeyCase{"F6", Qt::Key_F6, Qt::NoModifier, CommandId{57680}},
                    KeyCase{"ShiftF6", Qt::Key_F6, Qt::ShiftModifier, CommandId{57681}}),
    [](const auto& row) { return row.param.name; });

class Marks : public test::DeskFixture {
protected:
  Marks()
  {
    Window().activateWindow();
    QApplication::processEvents();
  }

  QToolButton& Button(const char* label)
  {
    for (QToolButton* button : Window().findChildren<QToolButton*>()) {
      if (button->text() == QLatin1String(label)) return *button;
    }
    ADD_FAILURE() << label;
    return *Window().findChild<QToolButton*>();
  }

  /// The looks of the menu that bear the mark.
  QStringList MarkedLooks()
  {
    QStringList marked;
    for (const char* look :
         {"Windows 2000", "Office XP", "Windows XP", "Office 2003", "Visual Studio 2005",
          "Visual Studio 2008", "Blue Style", "Black Style", "Silver Style", "Aqua Style"}) {
      const QAction* const action = Action(look);
      if (action == nullptr || !action->isCheckable()) {
        ADD_FAILURE() << look;
      } else if (action->isChecked()) {
        marked.append(QLatin1String(look));
      }
    }
    return marked;
  }

  void Restart()
  {
    Window().close();
    shell.reset();
    shell = std::make_unique<Shell>(QString());
    ASSERT_TRUE(shell->App().InitInstance(*shell));
  }
};

TEST_F(Marks, TheKeysOfTheWindowReachItsCommands)
{
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_F6);
  EXPECT_EQ(Window().focusWidget(), &Tree());
  QTest::keyClick(&Tree(), Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_EQ(Window().focusWidget(), &View());
  QTest::keyClick(&View(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(shell->App().shapeGroups.empty());
}

TEST_F(Marks, TheWindowKnowsEveryKeyAndThoseWithoutAHandlerAreGrey)
{
  const std::set<CommandId> answered = {CommandId::FileNew, CommandId::FileOpen,
                                        CommandId::FileSave, CommandId::NextPane,
                                        CommandId::PreviousPane};
  std::vector<std::pair<std::string_view, CommandId>> keys;
  for (const CommandEntry& command : Commands()) {
    for (const std::string_view key : {command.key, command.otherKey}) {
      if (!key.empty()) keys.emplace_back(key, command.id);
    }
  }
  ASSERT_EQ(keys.size(), 14U);
  for (const auto& [name, command] : keys) {
    const QKeySequence key(QString::fromLatin1(name.data()));
    int found = 0;
    for (const QAction* action : Window().actions()) {
      if (!action->shortcuts().contains(key)) continue;
      ++found;
      EXPECT_EQ(action->isEnabled(), answered.contains(command)) << name;
    }
    EXPECT_EQ(found, 1) << name;
  }
}

TEST_F(Marks, TheGridButtonShowsAndHidesTheGridAndBearsItsMark)
{
  QToolButton& grid = Button("Toggle\nGrid");
  EXPECT_TRUE(grid.isCheckable());
  EXPECT_TRUE(grid.isChecked());
  grid.click();
  EXPECT_EQ(shell->App().LoadGridSettings().show, 0);
  EXPECT_EQ(shell->App().LoadGridSettings().snap, 1);
  EXPECT_FALSE(grid.isChecked());
  grid.click();
  EXPECT_EQ(shell->App().LoadGridSettings().show, 1);
  EXPECT_TRUE(grid.isChecked());
}

TEST_F(Marks, TheSnapButtonSwitchesTheSnapAndBearsItsMark)
{
  QToolButton& snap = Button("Toggle\nSnap");
  EXPECT_TRUE(snap.isCheckable());
  EXPECT_TRUE(snap.isChecked());
  snap.click();
  EXPECT_EQ(shell->App().LoadGridSettings().snap, 0);
  EXPECT_EQ(shell->App().LoadGridSettings().show, 1);
  EXPECT_FALSE(snap.isChecked());
  snap.click();
  EXPECT_EQ(shell->App().LoadGridSettings().snap, 1);
  EXPECT_TRUE(snap.isChecked());
}

TEST_F(Marks, TheMarksOfGridAndSnapFollowTheGridDialog)
{
  WhenAsked<TemplateDialog>([](TemplateDialog& dialog) {
    dialog.SetChecked(GridControls::showGrid, false);
    dialog.SetChecked(GridControls::snapToGrid, false);
    dialog.accept();
  });
  Action("Grid...")->trigger();
  EXPECT_FALSE(Button("Toggle\nGrid").isChecked());
  EXPECT_FALSE(Button("Toggle\nSnap").isChecked());
}

TEST_F(Marks, TheCursorToolThatIsChosenBearsTheMarkAlone)
{
  for (const char* chosen : {"Zoom In", "Zoom Out", "Move"}) {
    Action(chosen)->trigger();
    for (const char* tool : {"Zoom In", "Zoom Out", "Move"}) {
      EXPECT_EQ(Action(tool)->isChecked(), tool == chosen) << chosen << ' ' << tool;
    }
  }
}

TEST_F(Marks, TheLookThatIsShownBearsARadioMark)
{
  EXPECT_EQ(MarkedLooks(), QStringList{QStringLiteral("Visual Studio 2008")});
  for (const char* look : {"Office XP", "Black Style", "Black Style", "Windows 2000"}) {
    Action(look)->trigger();
    EXPECT_EQ(MarkedLooks(), QStringList{QLatin1String(look)});
    ASSERT_NE(Action(look)->actionGroup(), nullptr);
    EXPECT_TRUE(Action(look)->actionGroup()->isExclusive());
  }
}

TEST_F(Marks, AStoredLookThatTheMenuLacksIsKeptAndMarksNone)
{
  Window().RunCommand(CommandOf(Look::Windows7));
  EXPECT_EQ(MarkedLooks(), QStringList());
  Restart();
  EXPECT_EQ(shell->App().applicationLook, Look::Windows7);
  EXPECT_EQ(MarkedLooks(), QStringList());
}

}  // namespace
}  // namespace hullwright
