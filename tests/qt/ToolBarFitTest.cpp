#include <gtest/gtest.h>

#include <QInputDialog>
#include <QLayout>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include "qt/CustomizeDialog.h"
#include "resources/ViewSides.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

class ToolBarRow : public test::DeskFixture {
protected:
  QToolBar& Bar() { return *Window().findChild<QToolBar*>(QStringLiteral("StandardToolBar")); }

  void SetWidth(int width)
  {
    Window().resize(width, 700);
    QApplication::processEvents();
    ASSERT_EQ(Window().width(), width);
  }

  /// The buttons that can't be seen, and the one that offers them.
  static QStringList Hidden(const QToolBar& bar)
  {
    QStringList hidden;
    for (QAction* const action : bar.actions()) {
      const QWidget* const widget = bar.widgetForAction(action);
      if (!widget->isVisible() || !bar.rect().contains(widget->geometry())) {
        hidden.append(action->text());
      }
    }
    const auto* const more = bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    if (more != nullptr && more->isVisible()) hidden.append(QStringLiteral(">>"));
    return hidden;
  }

  static bool HasLabels(const QToolBar& bar)
  {
    return bar.toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
  }

  static int SeparatorWidth(const QToolBar& bar)
  {
    for (QAction* const action : bar.actions()) {
      if (action->isSeparator()) return bar.widgetForAction(action)->sizeHint().width();
    }
    return 0;
  }

  QToolButton& SideButton()
  {
    return *Window().findChild<QToolButton*>(QStringLiteral("SideButton"));
  }

  static void Press(const QDialog& dialog, const QString& text)
  {
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
      if (button->text() == text) return button->click();
    }
    ADD_FAILURE() << text.toStdString();
  }

  /// Adds toolbars of the user's own.
  void AddBars(int count)
  {
    Window().RunCommand(CommandId::Customize);
    auto* const dialog = Window().findChild<CustomizeDialog*>();
    ASSERT_NE(dialog, nullptr);
    for (int i = 0; i < count; ++i) {
      WhenAsked<QInputDialog>([](QInputDialog& input) { input.accept(); });
      Press(*dialog, QStringLiteral("&New..."));
      Press(*dialog, QStringLiteral("&Add"));
    }
    Press(*dialog, QStringLiteral("OK"));
    QApplication::processEvents();
  }
};

TEST_F(ToolBarRow, NothingIsHiddenAt1024PixelsAndMore)
{
  for (const int width : {1024, 1100, 1200, 1280, 1340, 1600, 1280, 1024}) {
    SetWidth(width);
    EXPECT_EQ(Hidden(Bar()), QStringList()) << width;
  }
}

TEST_F(ToolBarRow, GetsCloserTogetherBeforeTheLabelsGo)
{
  SetWidth(1600);
  const int wide = Bar().sizeHint().width();
  ASSERT_TRUE(HasLabels(Bar()));
  EXPECT_GT(SeparatorWidth(Bar()), 4);
  const int wideButton = SideButton().sizeHint().width();
  SetWidth(wide - 1);
  EXPECT_LT(SideButton().sizeHint().width(), wideButton);
  EXPECT_TRUE(HasLabels(Bar()));
  EXPECT_EQ(SeparatorWidth(Bar()), 4);
  EXPECT_EQ(Bar().layout()->spacing(), 0);
  const int close = Bar().sizeHint().width();
  EXPECT_LT(close, wide - 40);
  EXPECT_EQ(Hidden(Bar()), QStringList());
  SetWidth(close - 1);
  EXPECT_FALSE(HasLabels(Bar()));
  EXPECT_EQ(SideButton().toolButtonStyle(), Qt::ToolButtonIconOnly);
  EXPECT_LT(Bar().sizeHint().width(), close);
  EXPECT_EQ(Hidden(Bar()), QStringList());
}

TEST_F(ToolBarRow, LabelsAndSpacingComeBackWithTheRoom)
{
  SetWidth(1600);
  const QSize before = Bar().sizeHint();
  SetWidth(640);
  EXPECT_FALSE(HasLabels(Bar()));
  SetWidth(1600);
  EXPECT_TRUE(HasLabels(Bar()));
  EXPECT_EQ(SideButton().toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  EXPECT_EQ(Bar().sizeHint(), before);
  EXPECT_EQ(Hidden(Bar()), QStringList());
  const auto* const customize = Bar().findChild<QToolButton*>(QStringLiteral("CustomizeButton"));
  ASSERT_NE(customize, nullptr);
  EXPECT_EQ(customize->toolButtonStyle(), Qt::ToolButtonIconOnly);
}

TEST_F(ToolBarRow, TheButtonForMoreGoesWhenThereIsRoom)
{
  SetWidth(400);
  EXPECT_TRUE(Hidden(Bar()).contains(QStringLiteral(">>")));
  SetWidth(1280);
  EXPECT_EQ(Hidden(Bar()), QStringList());
}

TEST_F(ToolBarRow, AStyleOfAnotherLookIsMeasuredAnew)
{
  SetWidth(1024);
  for (const Look look : {Look::Windows2000, Look::Black, Look::VisualStudio2008}) {
    Window().RunCommand(CommandOf(look));
    QApplication::processEvents();
    EXPECT_EQ(Hidden(Bar()), QStringList()) << static_cast<int>(look);
  }
}

TEST_F(ToolBarRow, AnotherFontIsFittedWithTheEventsThatFollow)
{
  SetWidth(1600);
  ASSERT_TRUE(HasLabels(Bar()));
  Bar().setToolButtonStyle(Qt::ToolButtonIconOnly);
  QEvent change(QEvent::FontChange);
  QApplication::sendEvent(&Window(), &change);
  EXPECT_FALSE(HasLabels(Bar()));
  QApplication::processEvents();
  EXPECT_TRUE(HasLabels(Bar()));
}

TEST_F(ToolBarRow, AToolBarThatComesBackFromTheSideIsMeasuredAnew)
{
  SetWidth(1600);
  const int wide = Bar().sizeHint().width();
  const auto comeBack = [this](int width) {
    Window().addToolBar(Qt::LeftToolBarArea, &Bar());
    SetWidth(width);  // by which it is measured there
    Window().addToolBar(Qt::TopToolBarArea, &Bar());
    QApplication::processEvents();
    return Bar().sizeHint().width();
  };
  EXPECT_EQ(comeBack(wide), wide);
  EXPECT_LT(comeBack(wide - 1), wide);
}

TEST_F(ToolBarRow, AToolBarOfOnesOwnStartsARowOfItsOwn)
{
  AddBars(2);
  const auto bars = Window().findChildren<QToolBar*>(Qt::FindDirectChildrenOnly);
  ASSERT_EQ(bars.size(), 3);
  EXPECT_LT(bars.at(0)->geometry().bottom(), bars.at(1)->y());
  EXPECT_LT(bars.at(1)->geometry().bottom(), bars.at(2)->y());
  for (const QToolBar* const bar : bars) EXPECT_EQ(Hidden(*bar), QStringList());
}

TEST_F(ToolBarRow, ToolBarsThatShareARowShareItsRoom)
{
  AddBars(1);
  const auto bars = Window().findChildren<QToolBar*>(Qt::FindDirectChildrenOnly);
  ASSERT_EQ(bars.size(), 2);
  Window().removeToolBarBreak(bars.at(1));
  SetWidth(1200);
  SetWidth(1201);
  ASSERT_EQ(bars.at(0)->y(), bars.at(1)->y());
  for (const QToolBar* const bar : bars) EXPECT_EQ(Hidden(*bar), QStringList());
  // Room for each of them by itself is not room for both.
  SetWidth(2000);
  SetWidth(Bar().sizeHint().width() + 1);
  ASSERT_EQ(bars.at(0)->y(), bars.at(1)->y());
  for (const QToolBar* const bar : bars) EXPECT_EQ(Hidden(*bar), QStringList());
}

TEST_F(ToolBarRow, TheDropDownMarksTheSideInViewAndItsTooltipNamesIt)
{
  for (const ViewSideEntry& side : viewSides) {
    Window().RunCommand(side.command);
    QStringList marked;
    for (const QAction* const entry : SideButton().menu()->actions()) {
      if (entry->isChecked()) marked.append(entry->text());
    }
    ASSERT_EQ(marked.size(), 1);
    const QByteArray name(side.name.data(), static_cast<qsizetype>(side.name.size()));
    EXPECT_EQ(marked.first().toLower(), QString::fromLatin1(name));
    EXPECT_EQ(SideButton().toolTip(),
              QStringLiteral("View Mode: %1\nSelect the current view mode").arg(marked.first()));
  }
  const QString last = SideButton().toolTip();
  AddBars(1);  // which makes all buttons anew
  EXPECT_EQ(SideButton().toolTip(), last);
}

TEST_F(ToolBarRow, NoTwoButtonsHaveTheSameTooltip)
{
  QStringList tips;
  for (QAction* const action : Bar().actions()) {
    if (!action->isSeparator()) tips.append(Bar().widgetForAction(action)->toolTip());
  }
  EXPECT_EQ(tips.removeDuplicates(), 0);
  EXPECT_TRUE(tips.contains(QStringLiteral("Move Design\nCursor moves vessel")));
  EXPECT_TRUE(tips.contains(QStringLiteral("Move Design\nMove design in a specified direction")));
}

TEST_F(ToolBarRow, TheUnitsPaneTellsThatItCanBeClicked)
{
  const auto panes = Window().findChildren<StatusPane*>();
  ASSERT_EQ(panes.size(), 2);
  EXPECT_EQ(panes.at(0)->toolTip(), QString());
  EXPECT_EQ(panes.at(1)->toolTip(), QStringLiteral("Click to change the unit of the design"));
  EXPECT_EQ(panes.at(1)->cursor().shape(), Qt::PointingHandCursor);
}

}  // namespace
}  // namespace hullwright
