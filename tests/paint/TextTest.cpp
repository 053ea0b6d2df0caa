#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <string>

#include "paint/PaintBackEnd.h"
#include "paint/PaintSurface.h"
#include "platform/Drawing.h"

namespace hullwright {
namespace {

/// Texts on a small picture.
class PaintedText : public testing::Test {
protected:
  PaintedText() : target(drawing.object->CreateWindowTarget(surface, 200, 100, 96.0F, 96.0F)) {}

  PixelSize Measure(std::u16string_view text, float size)
  {
    const auto format = writing.object->CreateTextFormat(u"Consolas", size);
    return writing.object->MeasureText(*format.object, text, 1000.0F, 100.0F).value();
  }

  /// Draws a text at the upper left; the number of pixels that are not white, and their lowest row.
  void Draw(std::u16string_view text, float size)
  {
    const auto format = writing.object->CreateTextFormat(u"Consolas", size);
    format.object->DisableWordWrapping();
    target.object->Resize(200, 100);
    target.object->BeginDraw();
    target.object->Clear({1.0F, 1.0F, 1.0F, 1.0F});
    const auto brush = target.object->CreateSolidColourBrush({0.0F, 0.0F, 0.0F, 1.0F});
    target.object->DrawText(text, *format.object, {0.0F, 0.0F, 200.0F, 100.0F}, *brush);
    EXPECT_EQ(target.object->EndDraw(), 0);
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

  PaintSurface surface{200, 100};
  PaintBackEnd backEnd;
  Created<IDrawFactory> drawing = backEnd.CreateDrawFactory();
  Created<IWriteFactory> writing = backEnd.CreateWriteFactory();
  Created<IRenderTarget> target;
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
  EXPECT_NEAR(ink, whole, whole / 20);
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

TEST_F(PaintedText, ControlCharactersAreBlanks)
{
  Draw(u"abc def", 20.0F);
  const int blank = ink;
  Draw(u"abc\u0001def", 20.0F);
  EXPECT_EQ(ink, blank);
}

TEST_F(PaintedText, HasNoFormatWithoutASize)
{
  for (const float size : {0.0F, -1.0F, std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(writing.object->CreateTextFormat(u"Consolas", size).object, nullptr);
  }
}

}  // namespace
}  // namespace hullwright
