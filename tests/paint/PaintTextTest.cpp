#include <gtest/gtest.h>

#include <QPicture>
#include <chrono>
#include <limits>
#include <string>

#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "paint/PaintText.h"

namespace hullwright {
namespace {

/// Texts on a small picture.
class PaintedText : public testing::Test {
protected:
  PixelSize Measure(std::u16string_view text, float size)
  {
    return target.MeasureText(text, {u"Consolas", size}, {1000.0F, 100.0F}).value();
  }

  /// Draws a text; the number of pixels that are not white, and their lowest row.
  void Draw(const TextBlock& block)
  {
    target.Resize(200, 100);
    target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
    target.DrawText(block);
    EXPECT_EQ(target.EndFrame().code, 0);
    ink = 0;
    lowest = -1;
    const QImage& picture = surface.Picture();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (qGray(picture.pixel(x, y)) > 128) continue;
        ++ink;
        lowest = y;
      }
    }
  }

  /// At the upper left of the picture.
  void Draw(std::u16string_view text, float size)
  {
    Draw({text, {u"Consolas", size}, {0.0F, 0.0F, 200.0F, 100.0F}});
  }

  PaintSurface surface{200, 100};
  PaintTarget target{surface};
  int ink = 0;
  int lowest = -1;
};

TEST_F(PaintedText, LinesAreMeasuredAsTheyAreDrawn)
{
  const PixelSize one = Measure(u"Line", 20.0F);
  const PixelSize three = Measure(u"Line\nLine\nLine", 20.0F);
  EXPECT_NEAR(three.width, one.width, 0.5F);
  EXPECT_NEAR(three.height, 3.0F * one.height, 1.0F);
  Draw(u"Line", 20.0F);
  const int first = lowest;
  Draw(u"Line\nLine\nLine", 20.0F);
  EXPECT_NEAR(lowest - first, 2.0F * one.height, 2.0F);
}

TEST_F(PaintedText, TabsAndSeparatorsHideNothing)
{
  EXPECT_NEAR(Measure(u"a\tb", 20.0F).width, Measure(u"a b", 20.0F).width, 0.5F);
  Draw(u"abcdef", 20.0F);
  const int whole = ink;
  Draw(u"abc\u009Cdef", 20.0F);
  EXPECT_NEAR(ink, whole, whole / 20.0);
}

TEST_F(PaintedText, GrowsWithItsSizeBeyondTheLargestFont)
{
  EXPECT_NEAR(Measure(u"W", 500.0F).height * 16.0F, Measure(u"W", 8000.0F).height, 8.0F);
  Draw(u"\u2588", 8000.0F);  // a full block
  const int block = ink;
  EXPECT_GT(block, 0);
  Draw(u"\u2588", 16000.0F);
  EXPECT_LE(ink, block);
}

TEST_F(PaintedText, IsNothingWhereItIsTooSmallOrTooLargeToRead)
{
  for (const float size : {0.01F, 1e-30F, 1e6F, 1e30F}) {
    Draw(u"WWWW", size);
    EXPECT_EQ(ink, 0) << size;
    EXPECT_GT(Measure(u"WWWW", size).height, 0.0F) << size;
  }
}

TEST_F(PaintedText, OfAnyLengthAndSizeTakesNoTime)
{
  const std::u16string text(10000000, u'W');
  const auto start = std::chrono::steady_clock::now();
  for (const float size : {0.001F, 1.0F, 20.0F, 4000.0F, 60000.0F, 1e9F}) {
    Measure(text, size);
    Draw(text, size);
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  EXPECT_LT(taken.count(), 20.0);
}

TEST_F(PaintedText, OfAnyLengthIsSeen)
{
  Draw(std::u16string(60, u'W'), 20.0F);
  const int line = ink;
  for (const std::size_t length : {500U, 5000U, 9999U, 100000U}) {
    Draw(std::u16string(length, u'W'), 20.0F);
    EXPECT_EQ(ink, line) << length;
  }
}

TEST_F(PaintedText, OnAPageEndsSoonBehindItsEdge)
{
  const auto orders = [this](std::size_t length) {
    QPicture page;
    surface.SetDevice(&page);
    target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
    const std::u16string text(length, u'W');
    target.DrawText({text, {u"Consolas", 20.0F}, {0.0F, 0.0F, 200.0F, 100.0F}});
    EXPECT_EQ(target.EndFrame().code, 0);
    surface.SetDevice(nullptr);
    return page.size();
  };
  EXPECT_LT(orders(5), orders(30));
  EXPECT_EQ(orders(500), orders(5000));
}

TEST_F(PaintedText, IsCutBehindTenThousandUnits)
{
  EXPECT_EQ(Drawable(std::u16string(10001, u'W')).size(), 10000);
}

TEST_F(PaintedText, ControlCharactersAreBlanks)
{
  Draw(u"abc def", 20.0F);
  const int blank = ink;
  Draw(u"abc\u0001def", 20.0F);
  EXPECT_EQ(ink, blank);
}

TEST_F(PaintedText, IsNotWrappedInANarrowRectangle)
{
  TextBlock block{u"WWW WWW", {u"Consolas", 20.0F}, {0.0F, 0.0F, 200.0F, 30.0F}};
  Draw(block);
  const int whole = ink;
  const int row = lowest;
  block.rect.right = 50.0F;
  Draw(block);
  EXPECT_EQ(ink, whole);
  EXPECT_EQ(lowest, row);
}

TEST_F(PaintedText, TurnsWithItsGroundAndLeavesNothingTurned)
{
  TextBlock block{u"W", {u"Consolas", 20.0F}, {100.0F, 50.0F, 130.0F, 60.0F}};
  block.ground = Colour{0.0F, 0.0F, 0.0F, 1.0F};
  block.turn = Turn{90.0F, {100.0F, 50.0F}};
  Draw(block);
  EXPECT_EQ(qGray(surface.Picture().pixel(95, 75)), 0);
  EXPECT_EQ(qGray(surface.Picture().pixel(125, 55)), 255);
  target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
  target.DrawText(block);
  target.FillRectangle({10.0F, 10.0F, 30.0F, 20.0F}, {0.0F, 0.0F, 0.0F, 1.0F});
  EXPECT_EQ(target.EndFrame().code, 0);
  EXPECT_EQ(qGray(surface.Picture().pixel(25, 15)), 0);
}

TEST_F(PaintedText, LiesOverItsGround)
{
  TextBlock block{u"W", {u"Consolas", 20.0F}, {100.0F, 50.0F, 130.0F, 80.0F}};
  Draw(block);
  const int bare = ink;
  ASSERT_GT(bare, 0);
  block.ground = Colour{1.0F, 1.0F, 1.0F, 1.0F};
  Draw(block);
  EXPECT_EQ(ink, bare);
}

TEST_F(PaintedText, OfManySizesAndFacesIsEachInItsOwn)
{
  const float small = Measure(u"mm", 10.0F).width;
  const float large = Measure(u"mm", 20.0F).width;
  const PixelSize limits{1000.0F, 100.0F};
  const float other = target.MeasureText(u"mm", {u"Arial", 20.0F}, limits)->width;
  EXPECT_NEAR(large, 2.0F * small, 0.5F);
  EXPECT_NE(other, large);
  EXPECT_EQ(Measure(u"mm", 20.0F).width, large);
}

TEST_F(PaintedText, HasNoStyleWithoutASize)
{
  for (const float size : {0.0F, -1.0F, std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_FALSE(target.MeasureText(u"W", {u"Consolas", size}, {1000.0F, 100.0F}).has_value());
    Draw(u"W", size);
    EXPECT_EQ(ink, 0);
  }
}

int complaints = 0;  ///< of the toolkit

void CountComplaint(QtMsgType, const QMessageLogContext&, const QString&) { ++complaints; }

TEST(PaintTargets, WithoutAPictureTakeLinesAndTextsInSilence)
{
  PaintSurface surface(0, 0);
  PaintTarget target(surface);
  TextBlock block{u"W", {u"Consolas", 20.0F}, {0.0F, 0.0F, 2.0F, 2.0F}};
  block.turn = Turn{90.0F, {1.0F, 1.0F}};
  complaints = 0;
  const QtMessageHandler before = qInstallMessageHandler(CountComplaint);
  target.BeginFrame({1.0F, 1.0F, 1.0F, 1.0F});
  target.DrawLine({0.0F, 0.0F}, {2.0F, 2.0F}, {{0.0F, 0.0F, 0.0F, 1.0F}, 1.0F});
  EXPECT_EQ(complaints, 0);
  target.DrawText(block);
  EXPECT_EQ(complaints, 0);
  EXPECT_EQ(target.EndFrame().code, 0);
  qInstallMessageHandler(before);
}

}  // namespace
}  // namespace hullwright
