#include <gtest/gtest.h>

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusTipEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <filesystem>

#include "qt/PromptPane.h"
#include "resources/CommandIds.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

class WindowTexts : public test::DeskFixture {
protected:
  QToolBar& Bar() { return *Window().findChild<QToolBar*>(QStringLiteral("StandardToolBar")); }

  QToolButton& Button(const char* label)
  {
    for (QToolButton* button : Bar().findChildren<QToolButton*>()) {
      if (button->text() == QLatin1String(label)) return *button;
    }
    ADD_FAILURE() << label;
    return *Bar().findChild<QToolButton*>();
  }

  static QStringList Texts(const QList<QAction*>& actions)
  {
    QStringList texts;
    for (const QAction* action : actions) texts.append(action->text());
    return texts;
  }

  /// The menu of toolbars and panes, as it opens.
  QMenu& BarsMenu()
  {
    QMenu& menu = *Action("Toolbars and Docking Windows")->menu();
    Q_EMIT menu.aboutToShow();
    return menu;
  }

  /// The mouse comes onto a widget.
  static void Enter(QWidget& widget)
  {
    const QPointF middle(widget.rect().center());
    QEnterEvent enter(middle, middle, widget.mapToGlobal(middle));
    QApplication::sendEvent(&widget, &enter);
  }
};

TEST_F(WindowTexts, ThePromptIsReadyWhenIdle)
{
  const auto* const prompt =
      Window().statusBar()->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
  ASSERT_NE(prompt, nullptr);
  EXPECT_EQ(prompt->text(), QStringLiteral("Ready"));
  EXPECT_TRUE(prompt->isVisible());
}

TEST_F(WindowTexts, TheDataPanesAre250WideAndTheUnitsStandRightmost)
{
  const auto panes = Window().statusBar()->findChildren<StatusPane*>();
  ASSERT_EQ(panes.size(), 2);
  for (const int width : {1280, 900}) {
    Window().resize(width, 700);
    QApplication::processEvents();
    EXPECT_EQ(panes.at(0)->width(), 250);
    EXPECT_EQ(panes.at(1)->width(), 250);
  }
  EXPECT_LT(panes.at(0)->x(), panes.at(1)->x());
}

TEST_F(WindowTexts, NamesInTheDataPanesStandThereAsTheyAreWritten)
{
  for (const StatusPane* pane : Window().statusBar()->findChildren<StatusPane*>()) {
    EXPECT_EQ(pane->textFormat(), Qt::PlainText);
  }
}

TEST_F(WindowTexts, TheObjectPaneStandsAtTheLeftUnderItsCaption)
{
  auto* const pane = Window().findChild<QDockWidget*>();
  ASSERT_NE(pane, nullptr);
  EXPECT_EQ(pane->windowTitle(), QStringLiteral("Object View"));
  EXPECT_EQ(Window().dockWidgetArea(pane), Qt::LeftDockWidgetArea);
  EXPECT_FALSE(pane->isFloating());
  EXPECT_LT(pane->x(), View().x());
  EXPECT_EQ(pane->widget(), &Tree());
  EXPECT_EQ(pane->width(), 200);
}

TEST_F(WindowTexts, TheMenuOfBarsEndsWithCustomize)
{
  EXPECT_EQ(Texts(BarsMenu().actions()),
            (QStringList{QStringLiteral("Standard"), QStringLiteral("Object View"), QString(),
                         QStringLiteral("Customize...")}));
  BarsMenu().actions().constLast()->trigger();
  const auto* const dialog = Window().findChild<CustomizeDialog*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Customize Toolbars"));
}

TEST_F(WindowTexts, TheDialogOfTheToolBarsHasItsLabels)
{
  BarsMenu().actions().constLast()->trigger();
  const auto& dialog = *Window().findChild<CustomizeDialog*>();
  QStringList labels;
  for (const QLabel* label : dialog.findChildren<QLabel*>()) labels.append(label->text());
  EXPECT_EQ(labels, (QStringList{QStringLiteral("&Toolbar:"), QStringLiteral("&Commands:"),
                                 QStringLiteral("&Buttons:")}));
  QStringList buttons;
  for (const QPushButton* button :
       dialog.findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
    buttons.append(button->text());
  }
  EXPECT_EQ(buttons, (QStringList{QStringLiteral("&New..."), QStringLiteral("&Delete"),
                                  QStringLiteral("&Add"), QStringLiteral("&Remove"),
                                  QStringLiteral("Move &Up"), QStringLiteral("Move Do&wn"),
                                  QStringLiteral("R&eset")}));
}

TEST_F(WindowTexts, AssistiveTechnologyHearsWhatViewAndTreeAre)
{
  EXPECT_EQ(View().accessibleName(), QStringLiteral("Design view"));
  EXPECT_EQ(View().accessibleDescription(),
            QStringLiteral("Outline of the vessel, seen from the selected side"));
  EXPECT_EQ(Tree().accessibleName(), QStringLiteral("Object tree"));
  EXPECT_EQ(Tree().accessibleDescription(),
            QStringLiteral("The design by side, with its polylines, points and anchors"));
}

TEST_F(WindowTexts, ButtonsOfTheToolBarHaveTheirTooltips)
{
  QStringList tips;
  for (QAction* action : Bar().actions()) {
    const auto* const button = qobject_cast<QToolButton*>(Bar().widgetForAction(action));
    if (button == nullptr) continue;
    const QStringList lines = button->toolTip().split(QLatin1Char('\n'));
    tips.append(lines.first());
    // The second line is the prompt, unless it says no more than the first.
    EXPECT_EQ(lines.size() > 1 ? lines.at(1).toLower() : lines.first().toLower(),
              button == &Button("Select\nView") ? QStringLiteral("select the current view mode")
                                                : action->statusTip().toLower())
        << lines.first().toStdString();
  }
  EXPECT_EQ(tips.join(QLatin1Char('\n')).toStdString(),
            "New Design (Ctrl+N)\nOpen Design (Ctrl+O)\nSave Design (Ctrl+S)\nImport DXF\n"
            "View Mode: Top\nZoom In\nZoom Out\nShow All\nMove Design\nUndo (Ctrl+Z)\nRedo\n"
            "Scale Design\nMove Design\nMirror Vert\nMirror Horz\nRotate Left\nRotate Right\n"
            "Modify Offsets\nToggle Grid\nToggle Snap\nDraw Shape\nCustomize...");
}

TEST_F(WindowTexts, ButtonsBearTheirLabelsOnTwoLines)
{
  for (const char* label : {"New\nDesign", "Import\nDXF", "Select\nView", "Zoom\nIn", "Show\nAll",
                            "Mirror\nVert", "Rotate\nLeft", "Modify\nOffsets", "Toggle\nGrid"}) {
    EXPECT_TRUE(Button(label).isVisible()) << label;
    EXPECT_EQ(Button(label).toolButtonStyle(), Qt::ToolButtonTextUnderIcon) << label;
  }
}

TEST_F(WindowTexts, PromptsAppearInTheStatusBarWhenTheMouseIsOnAButton)
{
  Enter(Button("Mirror\nVert"));
  EXPECT_EQ(Window().statusBar()->currentMessage(), QStringLiteral("Mirror design vertical"));
  Enter(Button("Select\nView"));
  EXPECT_EQ(Window().statusBar()->currentMessage(), QStringLiteral("Select the current view mode"));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&Button("Select\nView"), &leave);
  EXPECT_EQ(Window().statusBar()->currentMessage(), QString());
}

TEST_F(WindowTexts, WhatCameOfACommandIsSeenThoughTheMouseIsOnItsButtonUntilTheNextCommand)
{
  Enter(Button("Mirror\nVert"));
  Window().ShowNote(u"20 polylines");
  EXPECT_EQ(Window().statusBar()->currentMessage(), QString());
  const auto& prompt = *Window().findChild<PromptPane*>();
  EXPECT_EQ(prompt.Text(), QStringLiteral("20 polylines"));
  Window().RunCommand(CommandId::ToggleGrid);
  EXPECT_EQ(prompt.Text(), QStringLiteral("Ready"));
}

TEST_F(WindowTexts, APromptIsCutInTheMiddleWhereItsPaneGetsTooNarrow)
{
  PromptPane prompt(QString(), nullptr);
  prompt.resize(400, 20);
  prompt.Show(QStringLiteral("Saved <b>.xml"));
  EXPECT_EQ(prompt.text(), QStringLiteral("Saved <b>.xml"));
  EXPECT_EQ(prompt.toolTip(), QString());
  prompt.show();
  prompt.resize(40, 20);
  EXPECT_LT(prompt.text().size(), 10);
  EXPECT_TRUE(prompt.text().contains(QChar(0x2026)));
  EXPECT_EQ(prompt.toolTip(), QStringLiteral("Saved &lt;b&gt;.xml"));
}

TEST_F(WindowTexts, PromptsAppearInTheStatusBarWhenTheMouseIsOnAnEntry)
{
  QAction* const title = Window().menuBar()->actions().at(3);
  ASSERT_EQ(title->text(), QStringLiteral("Modify"));
  Window().menuBar()->setActiveAction(title);
  QMenu& menu = *title->menu();
  ASSERT_TRUE(menu.isVisible());
  const auto hover = [&](const char* entry) {
    // A menu takes no notice of the mouse until it has moved a few times.
    const QPoint place = menu.actionGeometry(Action(entry)).center();
    for (int step = 8; step >= 0; --step) QTest::mouseMove(&menu, place - QPoint(step, 0));
    return Window().statusBar()->currentMessage().toStdString();
  };
  EXPECT_EQ(hover("Offsets..."), "Modify offsets for devices");
  EXPECT_EQ(hover("Move..."), "Move design in a specified direction");
  menu.close();
  EXPECT_EQ(Window().statusBar()->currentMessage(), QString());
}

TEST_F(WindowTexts, YesIsTheDefaultOfAQuestion)
{
  WhenAsked<QMessageBox>([this](QMessageBox& box) {
    lastQuestion = box.text();
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.standardButton(box.defaultButton()), QMessageBox::Yes);
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_TRUE(shell->App().AskYesNo(u"Really <b>?"));
  EXPECT_EQ(lastQuestion, QStringLiteral("Really <b>?"));
  Answer(QMessageBox::No);
  EXPECT_FALSE(shell->App().AskYesNo(u"Really?"));
}

TEST_F(WindowTexts, AQuestionIsLeftByItsButtonsOnly)
{
  WhenAsked<QMessageBox>([](QMessageBox& box) {
    EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QTest::keyClick(&box, Qt::Key_Escape);
    box.close();
    EXPECT_TRUE(box.isVisible());
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(shell->App().AskYesNo(u"Really?"));
}

TEST_F(WindowTexts, APromptHidesANoteOnlyWhereTheMouseHasMovedSince)
{
  const auto prompt = [this](const char* text) {
    QStatusTipEvent event{QLatin1String(text)};
    QApplication::sendEvent(&Window(), &event);
    return Window().statusBar()->currentMessage();
  };
  const QPoint before = QCursor::pos();
  QCursor::setPos(40, 40);
  Window().ShowNote(u"3 polylines");
  EXPECT_EQ(prompt("Import a drawing"), QString());
  QCursor::setPos(60, 40);
  EXPECT_EQ(prompt("Import a drawing"), QStringLiteral("Import a drawing"));
  EXPECT_EQ(prompt(""), QString());
  QCursor::setPos(before);
}

/// A window whose frame has been made and not yet shown anything.
class NewWindow : public test::ShellFixture {
protected:
  void Create()
  {
    shell.OpenUserStore("Quillmere", 4);
    ASSERT_TRUE(shell.CreateDocumentTemplate());
  }

  Shell shell{QString()};
};

TEST_F(NewWindow, TheDataPanesBeginAsNotAvailable)
{
  Create();
  const auto panes = shell.Window()->findChildren<StatusPane*>();
  ASSERT_EQ(panes.size(), 2);
  for (const StatusPane* pane : panes) EXPECT_EQ(pane->text(), QStringLiteral("N/A"));
}

TEST_F(NewWindow, WithoutThePaneStyleTheSmallToolBarStandsInForTheMainOne)
{
  shell.App().paneStyleFlag = 0;
  Create();
  QStringList labels;
  for (const QAction* action : shell.Window()->findChild<QToolBar*>()->actions()) {
    labels.append(action->isSeparator() ? QStringLiteral("|") : action->iconText());
  }
  EXPECT_EQ(labels.join(QLatin1Char(' ')).toStdString(),
            "New\nDesign Open\nDesign Save\nDesign | Cut Copy Paste | Print About Customize...");
  EXPECT_EQ(shell.Window()->findChild<QToolBar*>()->windowTitle(), QStringLiteral("Standard"));
}

TEST_F(NewWindow, ShowsOnceWhatIsWrongWithTheUnits)
{
  std::filesystem::create_directories(folder.Path() / "data/Sondaris/Database");
  folder.Write("data/Sondaris/Database/geo.db", "this is no database, not even a small one");
  Create();
  EXPECT_EQ(shell.App().GetUnitName(), u"");
  QCoreApplication::processEvents();
  const auto* const prompt = shell.Window()->findChild<PromptPane*>();
  EXPECT_TRUE(prompt->Text().startsWith(QStringLiteral("The units of length can't be read")))
      << prompt->Text().toStdString();
  shell.Window()->ShowNote(u"3 polylines");
  EXPECT_EQ(shell.App().GetUnitName(), u"");
  QCoreApplication::processEvents();
  EXPECT_EQ(prompt->Text(), QStringLiteral("3 polylines"));
}

}  // namespace
}  // namespace hullwright
