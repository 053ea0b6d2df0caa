#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDockWidget>
#include <QPainter>

#include "support/DeskFixture.h"
#include "support/Pixels.h"

namespace hullwright {
namespace {

using test::ForEachLook;
using test::PixelsSeen;

/// The signs on the buttons of a pane's title: one closes it, the other lets it float.
class PaneSigns : public test::DeskFixture {};

TEST_F(PaneSigns, AreSeenInEachLook)
{
  auto& pane = *Window().findChild<QDockWidget*>();
  ForEachLook([&pane](int look) {
    QApplication::processEvents();
    for (const char* name : {"qt_dockwidget_closebutton", "qt_dockwidget_floatbutton"}) {
      auto* const button = pane.findChild<QAbstractButton*>(QLatin1String(name));
      ASSERT_NE(button, nullptr);
      ASSERT_TRUE(button->isVisible());
      const QRect place = button->geometry();
      const QImage image = pane.grab(place).toImage();
      EXPECT_GE(PixelsSeen(image, image.rect(), image.pixelColor(0, 0)), 18) << look << name;
    }
  });
}

TEST_F(PaneSigns, TheCrossStandsInTheMiddle)
{
  const auto& pane = *Window().findChild<QDockWidget*>();
  const QIcon icon = pane.style()->standardIcon(QStyle::SP_TitleBarCloseButton, nullptr, &pane);
  const QImage cross = icon.pixmap(15).toImage();
  double ink = 0.0;
  QPointF moment;
  for (int y = 0; y < cross.height(); ++y) {
    for (int x = 0; x < cross.width(); ++x) {
      const double alpha = cross.pixelColor(x, y).alphaF();
      ink += alpha;
      moment += alpha * QPointF(x + 0.5, y + 0.5);
    }
  }
  ASSERT_GT(ink, 0.0);
  EXPECT_LT(ink, 60.0);  // two thin lines
  EXPECT_NEAR(moment.x() / ink, 7.5, 0.2);
  EXPECT_NEAR(moment.y() / ink, 7.5, 0.2);
}

TEST_F(PaneSigns, LeaveThePenOfWhoPaintsThem)
{
  const auto& pane = *Window().findChild<QDockWidget*>();
  const QIcon icon = pane.style()->standardIcon(QStyle::SP_TitleBarNormalButton, nullptr, &pane);
  QImage image(20, 20, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setPen(Qt::red);
  icon.paint(&painter, image.rect());
  EXPECT_EQ(painter.pen().color(), QColor(Qt::red));
}

}  // namespace
}  // namespace hullwright
