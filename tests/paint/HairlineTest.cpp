#include <gtest/gtest.h>

#include <QImage>
#include <QPicture>
#include <array>
#include <cmath>
#include <limits>

#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "platform/Drawing.h"
#include "render/Canvas.h"

namespace hullwright {
namespace {

/// Everything that has a stroke, painted at one width.
class Strokes : public testing::Test {
protected:
  static void Paint(CCanvas& canvas, float width)
  {
    constexpr std::array<PixelPoint, 3> corner = {{{5.5F, 5.5F}, {40.5F, 5.5F}, {50.0F, 30.0F}}};
    const Stroke black{{0.0F, 0.0F, 0.0F, 1.0F}, width};
    IDrawingTarget& target = *canvas.Target();
    target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
    canvas.DrawPolyline(corner, black);
    target.DrawLine({5.0F, 35.5F}, {55.0F, 35.5F}, black);
    target.DrawRectangle({10.5F, 12.5F, 20.5F, 20.5F}, black);
    target.DrawEllipse({30.0F, 24.0F}, 8.0F, 6.0F, black);
    EXPECT_EQ(target.EndFrame().code, 0);
  }

  /// On a picture of a pixel ratio.
  static QImage Picture(float width, double ratio = 1.0)
  {
    PaintSurface surface(60, 40, ratio);
    PaintTarget target(surface);
    CCanvas canvas;
    EXPECT_TRUE(canvas.Initialize(&target));
    Paint(canvas, width);
    return surface.Picture().copy();
  }

  /// The orders that a page or a file of vectors gets for what is painted on a canvas.
  template <class PaintOn>
  static QByteArray OrdersOf(PaintOn paintOn)
  {
    PaintSurface surface(60, 40);
    PaintTarget target(surface);
    CCanvas canvas;
    EXPECT_TRUE(canvas.Initialize(&target));
    QPicture page;
    surface.SetDevice(&page);
    paintOn(canvas);
    return {page.data(), static_cast<qsizetype>(page.size())};
  }
  static QByteArray Orders(float width)
  {
    return OrdersOf([width](CCanvas& canvas) { Paint(canvas, width); });
  }
  static QByteArray OrdersOfLine(std::span<const PixelPoint> points)
  {
    return OrdersOf([points](CCanvas& canvas) {
      canvas.Target()->BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
      canvas.DrawPolyline(points, {{0.0F, 0.0F, 0.0F, 1.0F}, 1.0F});
      EXPECT_EQ(canvas.Target()->EndFrame().code, 0);
    });
  }
};

TEST_F(Strokes, AStrokeWithoutWidthIsALineOfOnePixel)
{
  const QImage hairlines = Picture(0.0F);
  EXPECT_EQ(qGray(hairlines.pixel(30, 35)), 0);
  EXPECT_GE(qGray(hairlines.pixel(30, 34)), 254);
  EXPECT_EQ(qGray(hairlines.pixel(20, 5)), 0);
  EXPECT_EQ(qGray(hairlines.pixel(10, 16)), 0);
  EXPECT_EQ(hairlines, Picture(1.0F));
  EXPECT_EQ(Picture(-0.0F), Picture(1.0F));
}

TEST_F(Strokes, AStrokeWithoutWidthIsAsWideOnEveryMonitorAndPage)
{
  for (const double ratio : {1.5, 2.0, 3.0}) {
    EXPECT_EQ(Picture(0.0F, ratio), Picture(1.0F, ratio)) << ratio;
  }
  EXPECT_EQ(Orders(0.0F), Orders(1.0F));
  EXPECT_NE(Orders(0.0F), Orders(0.5F));
}

TEST_F(Strokes, AThinStrokeStaysPalerThanOneWithoutWidth)
{
  const QImage pale = Picture(0.01F);
  EXPECT_GE(qGray(pale.pixel(30, 35)), 250);
  EXPECT_NEAR(qGray(Picture(0.5F).pixel(30, 35)), 127, 2);
}

TEST_F(Strokes, WidthsBelowNothingOrThatAreNoNumbersPaintNothing)
{
  const float infinity = std::numeric_limits<float>::infinity();
  const QByteArray nothing = Orders(-1.0F);
  EXPECT_LT(nothing.size(), Orders(0.0F).size());
  QImage blank = Picture(-1.0F);
  blank.fill(Qt::white);
  for (const float width : {-1.0F, -1e-30F, -infinity, infinity, std::nanf("")}) {
    EXPECT_EQ(Picture(width), blank) << width;
    EXPECT_EQ(Orders(width), nothing) << width;
  }
}

TEST_F(Strokes, APolylineFromWhichNoSegmentCanBePaintedIsAnOrderAllTheSame)
{
  constexpr PixelPoint start{5.5F, 5.5F};
  const float none = std::nanf("");
  EXPECT_GT(OrdersOfLine(std::array{start, PixelPoint{none, none}}).size(),
            OrdersOfLine({}).size());
}

TEST_F(Strokes, WhatLiesBesideAPageIsNoOrder)
{
  const auto orders = [](bool paints, float left) {
    return OrdersOf([=](CCanvas& canvas) {
      IDrawingTarget& target = *canvas.Target();
      constexpr Colour black{0.0F, 0.0F, 0.0F, 1.0F};
      target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
      if (paints) {
        const PixelRect place{left, 5.0F, left + 20.0F, 25.0F};
        target.DrawRectangle(place, {black, 1.0F});
        target.FillRectangle(place, black);
        target.DrawEllipse({left + 10.0F, 15.0F}, 8.0F, 6.0F, {black, 1.0F});
        target.DrawText({u"W", {u"Consolas", 10.0F}, place});
      }
      EXPECT_EQ(target.EndFrame().code, 0);
    });
  };
  const QByteArray none = orders(false, 0.0F);
  EXPECT_EQ(orders(true, -100.0F), none);
  EXPECT_EQ(orders(true, 200.0F), none);
  EXPECT_GT(orders(true, 10.0F).size(), none.size());
}

TEST_F(Strokes, OnAPageAPointCountsUnlessItLiesOnTheOneBefore)
{
  constexpr PixelPoint start{5.5F, 5.5F};
  constexpr PixelPoint end{40.5F, 5.5F};
  const QByteArray straight = OrdersOfLine(std::array{start, end});
  EXPECT_EQ(OrdersOfLine(std::array{start, PixelPoint{5.6F, 5.6F}, end}), straight);
  EXPECT_NE(OrdersOfLine(std::array{start, PixelPoint{6.5F, 6.5F}, end}), straight);
}

TEST_F(Strokes, OnAPageTheLinesOfOneCallAreNotJoined)
{
  const auto orders = [](bool together) {
    return OrdersOf([together](CCanvas& canvas) {
      constexpr std::array<PixelPoint, 4> points = {
          {{5.5F, 5.5F}, {20.5F, 5.5F}, {5.5F, 30.5F}, {20.5F, 30.5F}}};
      constexpr std::array<std::size_t, 2> both = {2, 4};
      const std::span<const PixelPoint> all(points);
      const std::span<const std::size_t> end = std::span(both).first(1);
      const Stroke black{{0.0F, 0.0F, 0.0F, 1.0F}, 1.0F};
      IDrawingTarget& target = *canvas.Target();
      target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
      if (together) {
        target.DrawFigures({FigureKind::Line, all, both}, black);
      } else {
        target.DrawFigures({FigureKind::Line, all.first(2), end}, black);
        target.DrawFigures({FigureKind::Line, all.last(2), end}, black);
      }
      EXPECT_EQ(target.EndFrame().code, 0);
    });
  };
  EXPECT_EQ(orders(true), orders(false));
}

TEST_F(Strokes, OnAPageOutlinesAreClosedJoinsAreRoundAndNothingIsFilled)
{
  QImage page(60, 40, QImage::Format_RGB888);  // a format that is left to the painter, as pages are
  PaintSurface surface(60, 40);
  PaintTarget target(surface);
  surface.SetDevice(&page);
  constexpr std::array<PixelPoint, 3> corner = {{{10.0F, 30.5F}, {30.5F, 30.5F}, {30.5F, 10.0F}}};
  constexpr std::array<std::size_t, 1> end = {corner.size()};
  constexpr Colour black{0.0F, 0.0F, 0.0F, 1.0F};
  target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
  target.DrawFigures({FigureKind::Outline, corner, end}, {black, 1.0F});
  EXPECT_EQ(target.EndFrame().code, 0);
  EXPECT_LT(qGray(page.pixel(20, 20)), 200);  // on the edge that closes it
  target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
  target.DrawFigures({FigureKind::Line, corner, end}, {black, 10.0F});
  target.DrawEllipse({46.0F, 12.0F}, 8.0F, 8.0F, {black, 1.0F});
  target.DrawFigures({FigureKind::Line, corner, end}, {black, 10.0F});
  target.DrawRectangle({40.5F, 24.5F, 54.5F, 34.5F}, {black, 1.0F});
  EXPECT_EQ(target.EndFrame().code, 0);
  EXPECT_EQ(qGray(page.pixel(20, 20)), 255);
  EXPECT_LT(qGray(page.pixel(20, 27)), 10);   // as wide as its own stroke
  EXPECT_EQ(qGray(page.pixel(32, 32)), 0);    // the join
  EXPECT_GT(qGray(page.pixel(34, 34)), 200);  // which has no corner
  EXPECT_EQ(qGray(page.pixel(46, 12)), 255);
  EXPECT_EQ(qGray(page.pixel(47, 29)), 255);
}

}  // namespace
}  // namespace hullwright
