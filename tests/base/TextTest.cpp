#include "base/Text.h"

#include <gtest/gtest.h>

namespace hullwright {
namespace {

TEST(Utf8, TakesEveryWidthThereAndBack)
{
  const std::u16string text = u"A\u00E4\u20AC\U0001F600";
  EXPECT_EQ(Utf8FromWide(text), "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
  EXPECT_EQ(WideFromUtf8(Utf8FromWide(text)), text);
  EXPECT_EQ(WideFromUtf8(""), u"");
}

TEST(Utf8, TakesTheFirstAndTheLastCodeOfEveryWidthThereAndBack)
{
  const std::u16string text = u"\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF";
  EXPECT_EQ(Utf8FromWide(text),
            "\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
  EXPECT_EQ(WideFromUtf8(Utf8FromWide(text)), text);
}

TEST(Utf8, TakesALetterAtAnyPlaceAmongOthers)
{
  for (std::size_t length = 0; length < 40; ++length) {
    const std::string plain(length, 'a');
    const std::u16string wide(length, u'a');
    EXPECT_EQ(WideFromUtf8(plain), wide);
    for (std::size_t place = 0; place <= length; ++place) {
      EXPECT_EQ(WideFromUtf8(std::string(plain).insert(place, "\xC3\xA9")),
                std::u16string(wide).insert(place, 1, u'\u00E9'));
    }
  }
}

TEST(Utf8, ALoneSurrogateBecomesTheReplacementCharacter)
{
  EXPECT_EQ(Utf8FromWide(std::u16string(1, char16_t{0xD83D})), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromWide(std::u16string{char16_t{0xDE00}, u'x'}), "\xEF\xBF\xBDx");
  EXPECT_EQ(Utf8FromWide(std::u16string{char16_t{0xD83D}, u'x'}), "\xEF\xBF\xBDx");
}

TEST(Utf8, EachIllFormedPieceBecomesOneReplacementCharacter)
{
  EXPECT_EQ(WideFromUtf8("a\xFF"
                         "b"),
            u"a\uFFFDb");
  EXPECT_EQ(WideFromUtf8("\xE2\x82"), u"\uFFFD");
  EXPECT_EQ(WideFromUtf8("\xE2\x82x"), u"\uFFFDx");
  EXPECT_EQ(WideFromUtf8("\xC0\xAF"), u"\uFFFD\uFFFD");
  EXPECT_EQ(WideFromUtf8("\xED\xA0\x80"), u"\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(WideFromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8, RecognisesWhatIsWellFormed)
{
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("m\xC3\xA8tre \xF0\x9F\x98\x80 \xEF\xBF\xBD"));
  EXPECT_FALSE(IsUtf8("m\xE8tre"));
  EXPECT_FALSE(IsUtf8("\xC3"));
  EXPECT_TRUE(IsUtf8("\xE2\x82\xBF"));
  EXPECT_FALSE(IsUtf8("\xE2\x82\xC0"));
}

TEST(Utf8, ACharacterEndsWithTheTextWhateverLiesBehind)
{
  const std::string_view cut("a\xC3\xA8", 2);
  EXPECT_FALSE(IsUtf8(cut));
  EXPECT_EQ(WideFromUtf8(cut), u"a\uFFFD");
}

TEST(Ansi, IsWindows1252)
{
  EXPECT_EQ(WideFromAnsi("A\x80\xE4\x9F"), u"A\u20AC\u00E4\u0178");
  EXPECT_EQ(AnsiFromWide(u"A\u20AC\u00E4\u0178"), "A\x80\xE4\x9F");
  EXPECT_EQ(AnsiFromWide(u"\u4E2D"), "?");
}

TEST(Ansi, EveryByteComesBack)
{
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  EXPECT_EQ(AnsiFromWide(WideFromAnsi(bytes)), bytes);
}

TEST(TrimSpace, TakesEveryWhiteSpaceOffBothEndsAndNoneFromBetween)
{
  constexpr std::u16string_view spaces =
      u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008"
      u"\u2009\u200A\u2028\u2029\u202F\u205F\u3000";
  for (const char16_t space : spaces) {
    std::u16string text = {space, space, u'a', space, u'b', space, space};
    TrimSpace(text);
    EXPECT_EQ(text, (std::u16string{u'a', space, u'b'})) << static_cast<int>(space);
  }
}

TEST(Case, CountsForEveryCharacterThatIsNoLetterOfAscii)
{
  EXPECT_TRUE(EqualButForCase("Windows-1252", "wINDOWS-1252"));
  EXPECT_TRUE(EqualButForCase("AZaz", "azAZ"));
  EXPECT_TRUE(EqualButForCase("", ""));
  EXPECT_FALSE(EqualButForCase("@[", "`{"));
  EXPECT_FALSE(EqualButForCase("\xC4", "\xE4"));
  EXPECT_FALSE(EqualButForCase("ab", "abc"));
}

TEST(Pair, IsAHighHalfWithALowOneBehindIt)
{
  const std::u16string text = {0xD800, 0xDC00, 0xDBFF, 0xDFFF, 0xD7FF,
                               0xDC00, 0xD800, 0xE000, 0xD800};
  for (std::size_t at = 0; at < text.size(); ++at) {
    EXPECT_EQ(IsPairAt(text, at), at == 0 || at == 2) << at;
  }
}

}  // namespace
}  // namespace hullwright
