#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>
#include <array>

#include "base/Code.h"
#include "qt/Looks.h"

namespace hullwright {
namespace {

class LookColours : public testing::Test {
protected:
  ~LookColours() override { ApplyLook(Look::VisualStudio2008); }
};

struct ColoursSeen {
  Look look;
  QRgb window;
  QRgb chosen;  ///< behind what is chosen, dark enough for white letters
};

TEST_F(LookColours, EachLookHasItsOwnAndNumbersBetweenThemTheBlueOnes)
{
  constexpr auto expected = std::to_array<ColoursSeen>({
      {Look::Windows2000, 0xffd4d0c8, 0xff0a246a},
      {Look::OfficeXp, 0xffece9d8, 0xff316ac5},
      {Look::WindowsXp, 0xfff1efe2, 0xff316ac5},
      {Look::Office2003, 0xffdde8f7, 0xff316ac5},
      {Look::VisualStudio2005, 0xfff0eee6, 0xff316ac5},
      {Look::VisualStudio2008, 0xffefefef, 0xff206fa8},
      {Look{214}, 0xffd6e4f5, 0xff1f6fb2},
      {Look::Blue, 0xffd6e4f5, 0xff1f6fb2},
      {Look::Black, 0xff35373a, 0xff2a6aa3},
      {Look::Silver, 0xffe4e6ea, 0xff455f85},
      {Look::Aqua, 0xffd9efee, 0xff197672},
      {Look::Windows7, 0xfff0f4fa, 0xff1a6ac4},
  });
  for (const ColoursSeen& seen : expected) {
    ApplyLook(seen.look);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(palette.color(QPalette::Window), QColor(seen.window)) << NumberOf(seen.look);
    EXPECT_EQ(palette.color(QPalette::Highlight), QColor(seen.chosen)) << NumberOf(seen.look);
  }
}

TEST_F(LookColours, TheBlackLookHasGreyTextsWhereNothingCanBeDone)
{
  ApplyLook(Look::Black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    EXPECT_EQ(QApplication::palette().color(QPalette::Disabled, role), QColor(0x8a, 0x8d, 0x91));
  }
}

TEST_F(LookColours, TheBlackLookHasDarkerListsWhoseRowsAlternate)
{
  ApplyLook(Look::Black);
  const QPalette palette = QApplication::palette();
  const auto lightness = [&palette](QPalette::ColorRole role) {
    return palette.color(role).lightness();
  };
  EXPECT_LT(lightness(QPalette::Base), lightness(QPalette::AlternateBase));
  EXPECT_LT(lightness(QPalette::AlternateBase), lightness(QPalette::Window));
  EXPECT_EQ(lightness(QPalette::ToolTipBase), lightness(QPalette::Base));
}

TEST_F(LookColours, WhatIsChosenHasWhiteLettersWhateverTheDesktopPrefers)
{
  ApplyLook(Look::Silver);
  const QPalette palette = QApplication::palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    EXPECT_EQ(palette.color(group, QPalette::HighlightedText), QColor(Qt::white));
    // What a palette leaves unset comes from the desktop's.
    EXPECT_TRUE(palette.isBrushSet(group, QPalette::HighlightedText));
  }
}

}  // namespace
}  // namespace hullwright
