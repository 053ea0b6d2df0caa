#include <gtest/gtest.h>

#include <QImage>
#include <QMenuBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <new>

#include "qt/Application.h"
#include "qt/TemplateDialog.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

class Desk : public test::DeskFixture {};

TEST_F(Desk, StartsAndShowsTheDesign)
{
  ASSERT_TRUE(started);
  const QImage picture = View().grab().toImage();
  EXPECT_EQ(QColor(picture.pixel(2, 2)), QColor(255, 255, 224));
  int ink = 0;
  for (int x = 0; x < picture.width(); ++x) {
    ink += QColor(picture.pixel(x, picture.height() / 2)).lightness() < 100 ? 1 : 0;
  }
  EXPECT_GT(ink, 5);
}

TEST_F(Desk, TheMenuBarHasItsMenus)
{
  QStringList titles;
  for (const QAction* menu : Window().menuBar()->actions()) titles.append(menu->text());
  EXPECT_EQ(titles,
            (QStringList{QStringLiteral("&File"), QStringLiteral("&View"), QStringLiteral("&Edit"),
                         QStringLiteral("Modify"), QStringLiteral("&Options"),
                         QStringLiteral("Cursor"), QStringLiteral("&Help")}));
}

/// What a menu shows: the texts of its entries, "|" for a separator.
std::string Entries(const QMenu& menu)
{
  QStringList texts;
  for (const QAction* entry : menu.actions()) {
    texts.append(entry->isSeparator() ? QStringLiteral("|") : entry->text());
  }
  return texts.join(QLatin1Char('\n')).toStdString();
}

TEST_F(Desk, TheMenusHaveTheirSeparatorsAndTheMenusInsideThem)
{
  const auto menu = [this](int number) -> const QMenu& {
    return *Window().menuBar()->actions().at(number)->menu();
  };
  EXPECT_EQ(Entries(menu(0)),
            "&New Design\n&Open Design...\n&Save Design\nSave Design &As...\n|\n"
            "Import DXF File...\n|\nRecent File\n|\nE&xit");
  EXPECT_EQ(Entries(menu(1)), "&Toolbars and Docking Windows\n&Status Bar\n&Application Look");
  const QMenu& looks = *menu(1).actions().constLast()->menu();
  EXPECT_EQ(Entries(looks),
            "Windows &2000\nOffice &XP\n&Windows XP\nOffice 200&3\nVisual Studio 200&5\n"
            "Visual Studio 200&8\nOffice 200&7");
  EXPECT_EQ(Entries(*looks.actions().constLast()->menu()),
            "&Blue Style\nB&lack Style\n&Silver Style\n&Aqua Style");
  EXPECT_EQ(Entries(menu(3)),
            "Mirror Vertically\nMirror Horizontally\n|\nRotate Right...\nRotate Left...\n|\n"
            "Scale...\n|\nMove...\n|\nOffsets...");
  EXPECT_EQ(Entries(menu(4)), "Grid...\n|\n&Units...");
  EXPECT_EQ(Entries(menu(5)), "Zoom &In\nZoom &Out\n|\n&Move\n|\nDraw &Polyline");
}

TEST_F(Desk, CommandsWithoutAHandlerAreGrey)
{
  ASSERT_NE(Action("Undo"), nullptr);
  EXPECT_FALSE(Action("Undo")->isEnabled());
  EXPECT_FALSE(Action("Redo\tCtrl+Y")->isEnabled());
  EXPECT_TRUE(Action("Redo\tCtrl+Y")->shortcut().isEmpty());
  EXPECT_TRUE(Action("New Design")->isEnabled());
  EXPECT_EQ(Action("New Design")->shortcut(), QKeySequence(QStringLiteral("Ctrl+N")));
}

TEST_F(Desk, PromptsStandInTheStatusBar)
{
  EXPECT_EQ(Action("Draw Polyline")->statusTip(), QStringLiteral("Draw new shape"));
  EXPECT_EQ(Action("Zoom In")->statusTip(), QStringLiteral("Cursor zooms in"));
}

TEST_F(Desk, TheSideDropDownSelectsTheSideAndBearsItsImage)
{
  auto* const button = Window().findChild<QToolButton*>(QStringLiteral("SideButton"));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->text(), QStringLiteral("Select\nView"));
  EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
  QStringList entries;
  for (const QAction* entry : button->menu()->actions()) entries.append(entry->text());
  EXPECT_EQ(entries,
            (QStringList{QStringLiteral("Top"), QStringLiteral("Bottom"), QStringLiteral("Front"),
                         QStringLiteral("Rear"), QStringLiteral("Right"), QStringLiteral("Left")}));
  const qint64 top = button->icon().cacheKey();
  Action("Right")->trigger();
  EXPECT_EQ(shell->App().activeView, ViewSide::Right);
  EXPECT_NE(button->icon().cacheKey(), top);
}

TEST_F(Desk, PanesShowPositionAndUnit)
{
  EXPECT_EQ(PaneText(0), QString());
  const int middleX = View().width() / 2;
  const int middleY = View().height() / 2;
  Move({middleX, middleY});
  EXPECT_EQ(PaneText(0), QStringLiteral("X: +00.00 Y: +00.00"));
  EXPECT_EQ(PaneText(1), QStringLiteral("Units: metre"));
}

TEST_F(Desk, TheUnitsPaneFollowsTheDesignThatIsOpened)
{
  ASSERT_TRUE(QTest::qWaitFor([&] { return PaneText(1) == QStringLiteral("Units: metre"); }));
  const auto file = folder.Write("feet.xml", "<vessel><units id='9002'/></vessel>");
  ASSERT_TRUE(Window().Document().Open(file));
  EXPECT_EQ(PaneText(1), QStringLiteral("Units: foot"));
}

TEST_F(Desk, TheWindowIsSeenBeforeTheUnitsAreRead)
{
  shell = std::make_unique<Shell>(QStringLiteral(HULLWRIGHT_SAMPLES "/workboat.xml"));
  ASSERT_TRUE(shell->App().InitInstance(*shell));
  EXPECT_EQ(PaneText(1), QStringLiteral("N/A"));
  EXPECT_TRUE(shell->App().unitTable.empty());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !shell->App().unitTable.empty(); }));
  EXPECT_EQ(PaneText(1), QStringLiteral("Units: metre"));
}

TEST_F(Desk, APressOnTheUnitsPaneOpensTheUnitsDialogAndOneOnTheOtherDoesNot)
{
  const auto panes = Window().statusBar()->findChildren<StatusPane*>();
  const auto press = [](QWidget& pane, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), button, button,
                      Qt::NoModifier);
    QApplication::sendEvent(&pane, &event);
  };
  press(*panes.at(0));
  EXPECT_EQ(dialogs, 0);
  WhenAsked<TemplateDialog>([this](TemplateDialog& dialog) {
    lastQuestion = dialog.windowTitle();
    dialog.reject();
  });
  press(*panes.at(1), Qt::RightButton);
  ASSERT_EQ(dialogs, 0);
  press(*panes.at(1));
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(lastQuestion, QStringLiteral("Switch Units"));
}

TEST_F(Desk, ARebuiltTreeShowsItsRootsOpenAndItsSidesClosed)
{
  ObjectTreeWidget& tree = Tree();
  const QAbstractItemModel& model = *tree.model();
  const auto root = [&] { return model.index(0, 0); };
  tree.expand(model.index(0, 0, root()));
  EXPECT_TRUE(tree.isExpanded(model.index(0, 0, root())));
  Action("Mirror Vertically")->trigger();
  EXPECT_TRUE(tree.isExpanded(root()));
  EXPECT_TRUE(tree.isExpanded(model.index(1, 0)));
  EXPECT_FALSE(tree.isExpanded(model.index(0, 0, root())));
}

TEST_F(Desk, TheWheelGathersFractionsOfANotchAndTakesOneStepAMessage)
{
  const CViewPort& viewPort = *shell->App().viewPort;
  Wheel(60);
  EXPECT_EQ(viewPort.width, 200.0);
  Wheel(60);
  EXPECT_EQ(viewPort.width, 150.0);
  Wheel(100);
  Wheel(-120);
  EXPECT_DOUBLE_EQ(viewPort.width, 200.0);
  Wheel(480);
  EXPECT_DOUBLE_EQ(viewPort.width, 150.0);
}

TEST_F(Desk, TheWheelBringsThePlaceUnderTheMouseToTheMiddle)
{
  const CViewPort& viewPort = *shell->App().viewPort;
  ASSERT_NE(View().mapToGlobal(QPoint(0, 0)), QPoint(0, 0));
  const WorldPoint under = viewPort.ScreenToWorld(200.0, 200.0);
  Wheel(120);
  EXPECT_DOUBLE_EQ((viewPort.left + viewPort.right) / 2.0, under.x);
  EXPECT_DOUBLE_EQ((viewPort.bottom + viewPort.top) / 2.0, under.y);
}

TEST_F(Desk, TheMouseIsAHandOverAnItemAndACrossElsewhere)
{
  const double scale = View().width() / shell->App().viewPort->width;
  const QPoint antenna(qRound(View().width() / 2.0 + shell->App().offsetGps->x * scale),
                       View().height() / 2);
  EXPECT_EQ(View().cursor().shape(), Qt::CrossCursor);
  Move(antenna);
  EXPECT_EQ(View().cursor().shape(), Qt::PointingHandCursor);
  Move({5, 5});
  EXPECT_EQ(View().cursor().shape(), Qt::CrossCursor);
}

TEST_F(Desk, ASecondRightClickBehindAPolylineOpensNoMenu)
{
  Action("Draw Polyline")->trigger();
  Click({50, 50});
  Mouse(QEvent::MouseButtonPress, {200, 200}, Qt::RightButton, Qt::RightButton);
  bool opened = false;
  QTimer::singleShot(0, [&opened] {
    QWidget* const menu = QApplication::activePopupWidget();
    opened = menu != nullptr;
    if (opened) menu->close();
  });
  Mouse(QEvent::MouseButtonDblClick, {210, 210}, Qt::RightButton, Qt::RightButton);
  QApplication::processEvents();
  EXPECT_FALSE(opened);
}

TEST_F(Desk, TheEntriesOfTheViewsMenuBearTheirImages)
{
  Mouse(QEvent::MouseButtonPress, {3, 3}, Qt::RightButton, Qt::RightButton);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  ASSERT_EQ(menu->actions().size(), 6);
  for (const QAction* entry : menu->actions()) {
    EXPECT_EQ(entry->icon().isNull(), entry->isSeparator()) << entry->text().toStdString();
  }
  menu->close();
}

TEST_F(Desk, APolylineIsDrawnClickByClick)
{
  Action("Right")->trigger();
  Action("Draw Polyline")->trigger();
  EXPECT_TRUE(Action("Draw Polyline")->isChecked());
  const std::size_t before =
      FindViewGroup(shell->App().shapeGroups, ViewSide::Right)->shapes.size();
  Click({50, 50});
  Click({150, 50});
  Mouse(QEvent::MouseButtonPress, {200, 200}, Qt::RightButton, Qt::RightButton);
  EXPECT_FALSE(Action("Draw Polyline")->isChecked());
  const CShapes& group = *FindViewGroup(shell->App().shapeGroups, ViewSide::Right);
  ASSERT_EQ(group.shapes.size(), before + 1);
  EXPECT_EQ(group.shapes.back()->vertices.size(), 2U);
}

TEST_F(Desk, TheRubberBandLeavesThePictureIntact)
{
  Action("Right")->trigger();
  const QImage clean = View().grab().toImage();
  Action("Draw Polyline")->trigger();
  Click({150, 150});
  Move({400, 150});
  EXPECT_NE(View().grab().toImage(), clean);
  Action("Left")->trigger();  // a whole new picture under the band
  Action("Right")->trigger();
  Mouse(QEvent::MouseButtonPress, {200, 200}, Qt::RightButton, Qt::RightButton);
  EXPECT_EQ(View().grab().toImage(), clean);
}

TEST_F(Desk, NoBandIsShownBeforeTheFirstPressNorWithAnEndInTheFirstColumnOrRow)
{
  const auto shown = [this](QPoint mouse) {
    Move(mouse);
    return View().grab().toImage();
  };
  Window().RunCommand(CommandId::ToggleSnap);
  Window().RunCommand(CommandId::DrawPolyline);
  EXPECT_EQ(shown({400, 300}), shown({10, 300}));
  Click({0, 300});
  EXPECT_EQ(shown({400, 300}), shown({10, 300}));
  Click({200, 250});
  const QImage withoutBand = shown({300, 0});
  EXPECT_EQ(shown({0, 300}), withoutBand);
  EXPECT_NE(shown({300, 10}), withoutBand);
}

TEST_F(Desk, TheStatusBarHidesAndItsStateSurvivesARestart)
{
  EXPECT_TRUE(Action("Status Bar")->isChecked());
  Action("Status Bar")->trigger();
  EXPECT_TRUE(Window().statusBar()->isHidden());
  EXPECT_FALSE(Action("Status Bar")->isChecked());
  Window().close();
  shell = std::make_unique<Shell>(QString());
  ASSERT_TRUE(shell->App().InitInstance(*shell));
  EXPECT_TRUE(Window().statusBar()->isHidden());
}

TEST_F(Desk, TheWindowsSizeSurvivesARestart)
{
  Window().resize(700, 610);
  Window().close();
  shell = std::make_unique<Shell>(QString());
  ASSERT_TRUE(shell->App().InitInstance(*shell));
  EXPECT_TRUE(QTest::qWaitFor([this] { return Window().size() == QSize(700, 610); }));
}

TEST_F(Desk, ButtonsHaveNamesOnOneLineAndCanBeReachedByKey)
{
  for (const QToolButton* button : Window().findChildren<QToolButton*>()) {
    if (button->parent() != Window().findChild<QToolBar*>() || button->text().isEmpty()) continue;
    EXPECT_FALSE(button->accessibleName().isEmpty());
    EXPECT_FALSE(button->accessibleName().contains(QLatin1Char('\n')));
    EXPECT_TRUE((button->focusPolicy() & Qt::TabFocus) != 0);
    const QAction* const action = button->defaultAction();  // the side drop-down has none
    EXPECT_EQ(button->accessibleDescription(),
              action == nullptr ? QStringLiteral("Top") : action->statusTip());
  }
  EXPECT_EQ(View().accessibleName(), QStringLiteral("Design view"));
}

TEST_F(Desk, AWindowWithoutRoomForTheViewDoesNoHarm)
{
  Window().resize(200, 150);
  QApplication::processEvents();
  Wheel(-120);
  EXPECT_GT(shell->App().viewPort->width, 0.0);
}

TEST_F(Desk, ShowsTheProgressOfAnImportInPlaceOfThePrompt)
{
  auto* const pane = Window().findChild<ProgressPane*>();
  ASSERT_NE(pane, nullptr);
  EXPECT_FALSE(pane->isVisible());
  Window().StartProgress("Loading");
  Window().ShowProgress(40);
  EXPECT_TRUE(pane->isVisible());
  EXPECT_EQ(pane->findChild<QLabel*>()->text(), QStringLiteral("Loading"));
  EXPECT_EQ(pane->findChild<QProgressBar*>()->value(), 40);
  EXPECT_GT(pane->width(), 200);
  EXPECT_LT(pane->findChild<QLabel*>()->geometry().right(), pane->findChild<QProgressBar*>()->x());
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  Window().EndProgress();
  EXPECT_FALSE(pane->isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  // The next one starts anew.
  Window().StartProgress("Again");
  EXPECT_EQ(pane->findChild<QProgressBar*>()->value(), 0);
  Window().EndProgress();
}

TEST_F(Desk, AnEventThatMemoryEndsInIsLeftAndThatIsSaid)
{
  const auto deliver = [this](bool fails) {
    return Application::Deliver(
        [fails] {
          if (fails) throw std::bad_alloc();
          return false;
        },
        [this] { Window().OnMemoryEnded(); });
  };
  const auto& prompt = *Window().findChild<PromptPane*>();
  EXPECT_FALSE(deliver(false));
  EXPECT_EQ(prompt.Text(), QStringLiteral("Ready"));
  shell->App().SetModifiedFlag(true);
  ASSERT_FALSE(Window().isWindowModified());
  EXPECT_TRUE(deliver(true));
  EXPECT_EQ(prompt.Text(), QStringLiteral("There is not enough memory for that"));
  EXPECT_TRUE(Window().isWindowModified());  // what was done before memory ended is shown
  EXPECT_TRUE(Application::Deliver([]() -> bool { throw std::bad_alloc(); },
                                   [] { throw std::bad_alloc(); }));
}

}  // namespace
}  // namespace hullwright
