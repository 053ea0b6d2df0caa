#include "exchange/DxfText.h"

#include <gtest/gtest.h>

namespace hullwright::test {
namespace {

TEST(DxfTextTest, AGroupIsTwoLines)
{
  DxfText text;
  text.Group(0, "LINE");
  text.Integer(70, -5);
  text.Real(40, 5.0);
  text.Place(10, -0.0, 1e-7);
  text.Place(11, 1.0, 2.0, 3.5);
  EXPECT_EQ(text.Bytes(),
            "0\nLINE\n70\n-5\n40\n5.0\n10\n-0.0\n20\n1e-07\n11\n1.0\n21\n2.0\n31\n3.5\n");
}

TEST(DxfTextTest, RecordsArePartedByBarsAndLineEnds)
{
  DxfText text;
  text.Records("0 LAYER|2 two words|3 \n0 ENDTAB");
  EXPECT_EQ(text.Bytes(), "0\nLAYER\n2\ntwo words\n3\n\n0\nENDTAB\n");
}

TEST(DxfTextTest, WhatIsNoPlainCharacterIsEscaped)
{
  EXPECT_EQ(EscapedText(u"Bow 1 ~"), "Bow 1 ~");
  EXPECT_EQ(EscapedText(u"\u00E4\u20AC"), "\\U+00E4\\U+20AC");
  EXPECT_EQ(EscapedText(u"\U0001F6A2"), "\\U+D83D\\U+DEA2");
  EXPECT_EQ(EscapedText(u"a\\Pb^J"), "a\\U+005CPb^ J");
  EXPECT_EQ(EscapedText(u"a\r\nb\tc\x7F"), "a  b c ");
}

TEST(DxfTextTest, ATextThatIsTooLongForALineIsShortened)
{
  bool shortened = false;
  const std::u16string longest(250, u'x');
  EXPECT_EQ(EscapedText(longest, shortened), std::string(250, 'x'));
  EXPECT_FALSE(shortened);
  EXPECT_EQ(EscapedText(longest + u"x", shortened), std::string(243, 'x') + "\\U+2026");
  EXPECT_TRUE(shortened);
}

TEST(DxfTextTest, NoCharacterIsCutInTwo)
{
  bool shortened = false;
  std::u16string ships(230, u'x');
  for (int i = 0; i < 9; ++i) ships += u"\U0001F6A2";
  // 13 bytes are left beside the ellipsis: one half would fit, the whole does not.
  EXPECT_EQ(EscapedText(ships, shortened), std::string(230, 'x') + "\\U+2026");
}

}  // namespace
}  // namespace hullwright::test
