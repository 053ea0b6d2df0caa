#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include "base/Code.h"
#include "qt/Icons.h"
#include "qt/Looks.h"
#include "resources/CommandIds.h"
#include "resources/Commands.h"
#include "support/DeskFixture.h"

namespace hullwright {
namespace {

class Icons : public test::DeskFixture {
protected:
  static QIcon Save() { return ThemedIcon("file-save", QApplication::palette()); }

  static int Pixels(const QImage& image, QColor colour)
  {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
    }
    return count;
  }
};

TEST_F(Icons, AreDrawnInTheSizeThatIsAskedForOnceEach)
{
  const QIcon icon = Save();
  for (const int side : {15, 24, 37, 300}) {
    const QPixmap pixmap = icon.pixmap(side);
    EXPECT_EQ(pixmap.size(), QSize(side, side));
    EXPECT_EQ(icon.pixmap(side).cacheKey(), pixmap.cacheKey());
  }
  EXPECT_EQ(icon.pixmap(40, 24).size(), QSize(24, 24));
  EXPECT_TRUE(icon.pixmap(0).isNull());
}

TEST_F(Icons, AreDrawnOnAWidgetInPixelsOfItsMonitor)
{
  QImage canvas(60, 48, QImage::Format_ARGB32_Premultiplied);
  canvas.setDevicePixelRatio(2.0);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  const QIcon icon = Save();
  icon.paint(&painter, QRect(0, 0, 30, 24));
  painter.end();
  QImage expected(60, 48, QImage::Format_ARGB32_Premultiplied);
  expected.fill(Qt::transparent);
  QPainter plain(&expected);
  plain.drawPixmap(6, 0, icon.pixmap(48));
  plain.end();
  expected.setDevicePixelRatio(2.0);
  EXPECT_EQ(canvas, expected);
}

TEST_F(Icons, ADisabledOneIsWhatTheStyleMakesOfIt)
{
  const QIcon icon = Save();
  for (const Look look : {Look::VisualStudio2008, Look::Black, Look::Windows2000}) {
    ApplyLook(look);
    QStyleOption option(0);
    option.palette = QApplication::palette();
    const QImage expected = QApplication::style()
                                ->generatedIconPixmap(QIcon::Disabled, icon.pixmap(24), &option)
                                .toImage();
    EXPECT_EQ(icon.pixmap(24, QIcon::Disabled).toImage(), expected) << NumberOf(look);
    EXPECT_NE(expected, icon.pixmap(24).toImage()) << NumberOf(look);
  }
  ApplyLook(shell->App().applicationLook);
}

TEST_F(Icons, TakeTheInkOfThePalette)
{
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::WindowText, QColor(1, 200, 3));
  const QImage image = ThemedIcon("cursor-move", palette).pixmap(32).toImage();
  EXPECT_GT(Pixels(image, QColor(1, 200, 3)), 20);
  EXPECT_EQ(Pixels(image, QColor(0x30, 0x34, 0x38)), 0);
}

TEST_F(Icons, AnUnknownNameGivesAnEmptyOne)
{
  EXPECT_TRUE(ThemedIcon("no-such-icon", QApplication::palette()).isNull());
  EXPECT_TRUE(ThemedIcon("", QApplication::palette()).isNull());
}

TEST_F(Icons, TheProgramsHasTheSizesOfTitleBarsAndSwitchers)
{
  const QList<QSize> sizes = QApplication::windowIcon().availableSizes();
  for (const int side : {16, 24, 32, 48, 64})
    EXPECT_TRUE(sizes.contains(QSize(side, side))) << side;
}

TEST_F(Icons, OfEveryCommandAreThere)
{
  for (const CommandEntry& command : Commands()) {
    if (command.icon.empty()) continue;
    EXPECT_FALSE(ThemedIcon(command.icon, QApplication::palette()).isNull()) << command.icon;
  }
}

}  // namespace
}  // namespace hullwright
