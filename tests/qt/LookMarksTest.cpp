#include "qt/LookMarks.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <vector>

#include "qt/Contrast.h"

namespace hullwright {
namespace {

using Pixels = std::vector<int>;

/// Marks in a place of 40 by 30 pixels, with 10 pixels of the window around it.
class LookMarks : public testing::Test {
protected:
  LookMarks()
  {
    option.rect = QRect(10, 10, 40, 30);
    option.state = QStyle::State_Enabled;
    option.palette = QPalette(window);
    option.palette.setColor(QPalette::Highlight, Qt::blue);
  }

  template <class Draw>
  void Paint(Draw draw)
  {
    picture.fill(window);
    QPainter painter(&picture);
    draw(painter);
  }

  /// The pixels of the middle row, and of the middle column, that are seen on the window.
  Pixels Across() const { return Seen(QPoint(0, picture.height() / 2), QPoint(1, 0)); }
  Pixels Down() const { return Seen(QPoint(picture.width() / 2, 0), QPoint(0, 1)); }

  QStyleOption option;
  const QColor window{0xef, 0xef, 0xef};
  QImage picture{60, 50, QImage::Format_RGB32};

private:
  Pixels Seen(QPoint at, QPoint step) const
  {
    Pixels seen;
    for (int i = 0; picture.rect().contains(at); ++i, at += step) {
      if (Contrast(picture.pixelColor(at), window) >= shapeContrast) seen.push_back(i);
    }
    return seen;
  }
};

TEST_F(LookMarks, TheEdgeOfAFieldIsAPixelWideAndTwoWithTheKeyboard)
{
  const auto draw = [this](QPainter& painter) { DrawFieldEdge(painter, option); };
  Paint(draw);
  EXPECT_EQ(Across(), (Pixels{10, 49}));
  EXPECT_EQ(Down(), (Pixels{10, 39}));
  option.state |= QStyle::State_HasFocus;
  Paint(draw);
  EXPECT_EQ(Across(), (Pixels{10, 11, 48, 49}));
  EXPECT_EQ(Down(), (Pixels{10, 11, 38, 39}));
}

TEST_F(LookMarks, TheEdgeOfABoxIsDarkerThanItMustBeAndNotBlack)
{
  Paint([this](QPainter& painter) { DrawCheckBox(painter, option); });
  const Pixels across = Across();
  ASSERT_FALSE(across.empty());
  const QColor edge = picture.pixelColor(across.front(), picture.height() / 2);
  EXPECT_GT(Contrast(edge, window), 2.0 * shapeContrast);
  EXPECT_LT(Contrast(edge, window), 4.0 * shapeContrast);
}

TEST_F(LookMarks, TheBoxOfABranchHoldsAMinusWhereItIsOpenAndElseAPlus)
{
  option.rect = QRect(11, 11, 39, 29);  // whose middle is that of the picture
  option.state = QStyle::State_Enabled | QStyle::State_Children | QStyle::State_Open;
  const auto draw = [this](QPainter& painter) { DrawBranch(painter, option); };
  Paint(draw);
  EXPECT_EQ(Across(), (Pixels{26, 28, 29, 30, 31, 32, 34}));
  EXPECT_EQ(Down(), (Pixels{21, 25, 29}));
  option.state.setFlag(QStyle::State_Open, false);
  Paint(draw);
  EXPECT_EQ(Across(), (Pixels{26, 28, 29, 30, 31, 32, 34}));
  EXPECT_EQ(Down(), (Pixels{21, 23, 24, 25, 26, 27, 29}));
}

TEST_F(LookMarks, ASliderLeavesItsGrooveFreeAroundIt)
{
  Paint([this](QPainter& painter) { DrawSlider(painter, option, option.rect); });
  // Of the third pixel from each edge it covers a half, which is too pale to count.
  const Pixels across = Across();
  const Pixels down = Down();
  ASSERT_EQ(across.size(), 34U);
  ASSERT_EQ(down.size(), 24U);
  EXPECT_EQ(across.front(), 13);
  EXPECT_EQ(across.back(), 46);
  EXPECT_EQ(down.front(), 13);
  EXPECT_EQ(down.back(), 36);
}

TEST_F(LookMarks, ASliderIsDarkEnoughForItsGrooveAndNotMuchDarker)
{
  Paint([this](QPainter& painter) { DrawSlider(painter, option, option.rect); });
  const double contrast = Contrast(picture.pixelColor(option.rect.center()), window);
  EXPECT_GE(contrast, 1.2 * shapeContrast);
  EXPECT_LT(contrast, 1.5 * shapeContrast);
}

}  // namespace
}  // namespace hullwright
