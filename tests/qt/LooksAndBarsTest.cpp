#include <gtest/gtest.h>

#include <QProxyStyle>
#include <QPushButton>

#include "qt/CustomizeDialog.h"
#include "resources/CommandIds.h"
#include "resources/ToolBarButtons.h"
#include "support/FrameFixture.h"
#include "support/PaintCounter.h"

namespace hullwright {
namespace {

class Frame : public test::FrameFixture {
protected:
  /// The style of the toolkit's that the look is drawn over.
  static QString BaseStyle()
  {
    const auto* const style = qobject_cast<QProxyStyle*>(QApplication::style());
    return style == nullptr ? QString() : style->baseStyle()->name().toLower();
  }
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

TEST_F(Frame, AnInvalidToolBarIsPaintedWhole)
{
  QToolBar& bar = *Bars().first();
  test::PaintCounter paints(bar);
  Window().InvalidateToolBar();
  paints.Settle();
  EXPECT_EQ(paints.painted.boundingRect(), bar.rect());
}

}  // namespace
}  // namespace hullwright
