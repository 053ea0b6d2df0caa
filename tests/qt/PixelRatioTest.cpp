#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <set>
#include <utility>

#include "support/DesignPaneFixture.h"

namespace hullwright {
namespace {

/// Runs at the ratio of the environment, which a second run of these tests makes fractional.
class PixelRatio : public test::DesignPaneFixture {
protected:
  PixelRatio() : ratio(widget.devicePixelRatioF()) {}

  double ratio;
};

TEST_F(PixelRatio, IsTheOneThatTheRunIsFor)
{
  const QByteArray expected = qgetenv("HULLWRIGHT_EXPECT_RATIO");
  EXPECT_EQ(ratio, expected.isEmpty() ? 1.0 : expected.toDouble());
}

TEST_F(PixelRatio, ThePictureIsPaintedInThePixelsOfTheMonitor)
{
  AddLine({{-50.0, -20.0, 0.0}, {-20.0, 30.0, 0.0}, {45.5, -31.0, 0.0}});
  design.activeView = ViewSide::Top;
  AddLine({{-50.0, -20.0, 0.0}, {-20.0, 30.0, 0.0}, {45.5, -31.0, 0.0}});
  view.Repaint();
  widget.clearFocus();  // its mark lies over the picture
  const QImage shown = Shown();
  // The same frame painted at once in a picture of that many pixels.
  PaintSurface surface(800, 600, ratio);
  PaintTarget target(surface);
  CCanvas canvas;
  ASSERT_TRUE(canvas.Initialize(&target));
  CCanvas* const before = std::exchange(view.viewPort->canvas, &canvas);
  view.Repaint();
  view.viewPort->canvas = before;
  QImage sharp = surface.Picture();
  sharp.setDevicePixelRatio(shown.devicePixelRatio());
  ASSERT_EQ(shown.width(), static_cast<int>(std::ceil(800 * ratio)));
  EXPECT_EQ(shown, sharp);
}

TEST_F(PixelRatio, TheMouseMeetsWhatIsSeenUnderIt)
{
  design.activeView = ViewSide::Top;
  *design.offsetGps = CShapeVertex(60.25, -40.5, 0.0);
  view.Repaint();
  // The middle of the crossed circle, in pixels of the monitor.
  const QImage shown = Shown();
  long long sumX = 0;
  long long sumY = 0;
  int count = 0;
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      if (shown.pixel(x, y) != qRgb(255, 0, 0)) continue;
      sumX += x;
      sumY += y;
      ++count;
    }
  }
  ASSERT_GT(count, 20);
  const double left = static_cast<double>(sumX) / count / ratio;
  const double middle = 400.0 + 60.25 * 4.0;
  EXPECT_NEAR(left, middle, 1.0);
  EXPECT_NEAR(static_cast<double>(sumY) / count / ratio, 300.0 + 40.5 * 4.0, 12.0);  // and its name
  Move({left, 300.0 + 40.5 * 4.0});
  EXPECT_EQ(view.hitKind, HitKind::Gps);
}

TEST_F(PixelRatio, TheBandIsAPixelOfTheMonitorWide)
{
  BeginLineAt({200, 250});
  const QImage clean = Shown();
  Move({600, 250});
  const QImage picture = Shown();
  std::set<int> rows;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != clean.pixel(x, y)) rows.insert(y);
    }
  }
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_NEAR(*rows.begin(), 250.0 * ratio, 1.0);
}

TEST_F(PixelRatio, APositionBetweenPixelsCountsAsThePixelThatItLiesIn)
{
  Move({406.7, 309.4});
  EXPECT_EQ(view.statusText, u"X: +01.50 Y: -02.25");
  Move({-0.3, -0.3});
  EXPECT_EQ(view.statusText, u"X: -100.25 Y: +75.25");
  Press({123.9, 45.6}, Qt::RightButton);
  EXPECT_EQ(view.menuPoint, (ClientPoint{123, 45}));
  ASSERT_NE(OpenMenu(), nullptr);
  OpenMenu()->close();
}

}  // namespace
}  // namespace hullwright
