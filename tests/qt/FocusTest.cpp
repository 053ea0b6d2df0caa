#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "qt/Icons.h"
#include "qt/Looks.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

/// Where the keyboard is, how that is shown, and the keys that lead to menus.
class Focus : public test::DeskFixture {
protected:
  Focus()
  {
    Window().activateWindow();
    QApplication::processEvents();
  }

  QColor EdgeColour() { return {View().grab().toImage().pixel(0, View().height() / 2)}; }
};

TEST_F(Focus, TheDesignHasAFrameInTheHighlightColourWhileTheKeyboardIsThere)
{
  View().setFocus();
  EXPECT_EQ(EdgeColour(), View().palette().color(QPalette::Highlight));
  Tree().setFocus();
  EXPECT_NE(EdgeColour(), View().palette().color(QPalette::Highlight));
}

TEST_F(Focus, EveryLookShowsWhetherAChosenRowHasTheKeyboard)
{
  for (const int look : {205, 206, 207, 208, 209, 210, 215, 216, 217, 218, 219}) {
    ApplyLook(Look{look});
    const QPalette palette = QApplication::palette();
    const QColor with = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor without = palette.color(QPalette::Inactive, QPalette::Highlight);
    EXPECT_GT(with.hsvSaturation(), without.hsvSaturation() + 80) << look;
  }
  ApplyLook(shell->App().applicationLook);
}

TEST_F(Focus, TheImageOfAChosenRowIsDrawnInTheColourOfItsText)
{
  const QPalette palette = QApplication::palette();
  const QImage image =
      ThemedIcon("tree-polyline", palette).pixmap(QSize(32, 32), QIcon::Selected).toImage();
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      if (pixel.alpha() < 255) continue;
      ++drawn;
      EXPECT_EQ(pixel, palette.color(QPalette::HighlightedText));
    }
  }
  EXPECT_GT(drawn, 20);
}

TEST_F(Focus, F10OpensTheMenuBar)
{
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_F10);
  ASSERT_NE(Window().menuBar()->activeAction(), nullptr);
  EXPECT_EQ(Window().menuBar()->activeAction()->text(), QStringLiteral("&File"));
  if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
}

TEST_F(Focus, ShiftF10OpensTheMenuOfThePaneThatHasTheKeyboard)
{
  const auto firstEntry = [] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QString text = menu == nullptr ? QString() : menu->actions().constFirst()->text();
    if (menu != nullptr) menu->close();
    return text;
  };
  View().setFocus();
  QTest::keyClick(&View(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(firstEntry(), QStringLiteral("Zoom &In"));
  Tree().setFocus();
  Tree().setCurrentIndex(Tree().model()->index(0, 0, Tree().model()->index(0, 0)));
  QTest::keyClick(&Tree(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(firstEntry(), QStringLiteral("&Add Polyline..."));
}

TEST_F(Focus, TheKeysThatOpenMenusAreUsedUpAndOthersAreLeftToWhoWantsThem)
{
  View().setFocus();
  const auto isUsedUp = [this](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&Window(), &press);
    if (QWidget* const menu = QApplication::activePopupWidget()) menu->close();
    return press.isAccepted();
  };
  EXPECT_TRUE(isUsedUp(Qt::Key_F10, Qt::ShiftModifier));
  EXPECT_TRUE(isUsedUp(Qt::Key_F10, Qt::NoModifier));
  EXPECT_FALSE(isUsedUp(Qt::Key_F10, Qt::ControlModifier));
  EXPECT_FALSE(isUsedUp(Qt::Key_F11, Qt::NoModifier));
}

TEST_F(Focus, TheObjectPaneDoesNotStayASliverAfterTheWindowWasTiny)
{
  Window().resize(200, 150);
  QApplication::processEvents();
  Window().resize(1200, 800);
  QApplication::processEvents();
  EXPECT_GE(Tree().width(), 120);
}

}  // namespace
}  // namespace hullwright
