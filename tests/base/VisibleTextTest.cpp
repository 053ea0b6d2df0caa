#include "base/VisibleText.h"

#include <gtest/gtest.h>

namespace hullwright {
namespace {

TEST(VisibleTexts, ShowWhatCannotBeSeenAsEscapes)
{
  EXPECT_EQ(VisibleText(u"B\u00F6w \"1\" \\"), "B\u00F6w \"1\" \\");
  EXPECT_EQ(VisibleText(std::u16string_view(u"a\0b\r\u202E\u0085", 6)),
            "a\\u0000b\\u000D\\u202E\\u0085");
}

TEST(VisibleTexts, KeepPairsOfSurrogatesAndEscapeLoneOnes)
{
  EXPECT_EQ(VisibleText(u"\U0001F6A2"), "\U0001F6A2");
  EXPECT_EQ(VisibleText(std::u16string(1, char16_t{0xD83D}) + u"a"), "\\uD83Da");
  EXPECT_EQ(VisibleText(std::u16string(1, char16_t{0xDEA2})), "\\uDEA2");
}

TEST(QuotedTexts, MarkTheirOwnQuotationMarksAndBackslashes)
{
  EXPECT_EQ(QuotedText(u"a\"\\b\n"), "\"a\\\"\\\\b\\u000A\"");
  EXPECT_EQ(QuotedText(u""), "\"\"");
}

}  // namespace
}  // namespace hullwright
