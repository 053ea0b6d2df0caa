#include "dxf/TextCodes.h"

#include <gtest/gtest.h>

#include <ctime>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "base/Text.h"

namespace hullwright {
namespace {

std::u16string Cleaned(std::u16string_view text) { return CleanText(std::u16string(text)).text; }

// ---------------------------------------------------------------------------------------------------
// Inputs and what becomes of them

struct Example {
  const char16_t* text;
  const char16_t* cleaned;
};

void ExpectCleaned(const std::vector<Example>& examples)
{
  for (const Example& example : examples) {
    EXPECT_EQ(Cleaned(example.text), example.cleaned) << Utf8FromWide(example.text);
  }
}

TEST(TextCodes, AFontGoesAndTakesAllUpToItsLastSemicolon)
{
  ExpectCleaned({
      {u"{\\fArial|b0|i0|c0|p34;Hello}", u"Hello"},
      {u"\\fArial;one;two", u"two"},
      {u"\\fArial;one|two;three", u"one|two;three"},
      {u"\\FArial|b1|i1|c1|p1|b1;five", u"\\FArial|b1|i1|c1|p1|b1;five"},
      {u"\\fno end", u"\\fno end"},
  });
}

TEST(TextCodes, ATextWithoutABackslashKeepsItsBraces)
{
  ExpectCleaned({
      {u"Plain {text} stays", u"Plain {text} stays"},
  });
}

TEST(TextCodes, BracesGoWithTheCodes)
{
  ExpectCleaned({
      {u"\\{brace\\}", u"\\brace\\"},
      {u"{\\}L", u""},
  });
}

TEST(TextCodes, HeightsAndAlignmentsGo)
{
  ExpectCleaned({
      {u"\\H2.5x;Big", u"Big"},
      {u"\\H3;a\\H.5x;b\\H3.;c", u"ab\\H3.;c"},
      {u"\\A1;Up", u"Up"},
      {u"\\A;Up", u"\\A;Up"},
  });
}

TEST(TextCodes, AParagraphBecomesALineFeed)
{
  ExpectCleaned({
      {u"Line one\\PLine two", u"Line one\nLine two"},
  });
}

TEST(TextCodes, AnIndentGoesWithAPlainNumberOnly)
{
  ExpectCleaned({
      {u"\\pxi-3,l3;Text", u"xi-3,l3;Text"},
      {u"\\pi2.5;a\\pxi.5;b\\p;c", u"ab;c"},
  });
}

TEST(TextCodes, UnderlinesGo)
{
  ExpectCleaned({
      {u"\\LUnder\\l line", u"Under line"},
      {u"\\\\LL", u"\\L"},
  });
}

TEST(TextCodes, ColoursLeaveTheText)
{
  ExpectCleaned({
      {u"\\C1;Red", u"Red"},
      {u"\\c16711680;X", u"X"},
  });
}

TEST(TextCodes, PercentsBecomeSignsWithOrWithoutABackslash)
{
  ExpectCleaned({
      {u"50%%d", u"50\u00B0"},
      {u"\\L50%%D %%p1 %%P2 %%c3 %%C4", u"50\u00B0 \u00B11 \u00B12 \u23003 \u23004"},
      {u"%%u %%o %%065 %d", u"%%u %%o %%065 %d"},
      {u"%%%d", u"%\u00B0"},
      {u"turned by not quite a 180%%d, by 90%%d", u"turned by not quite a 180\u00B0, by 90\u00B0"},
      {u"%%%%cc", u"%%\u2300c"},
      {u"%%u%%d", u"%%u\u00B0"},
      {u"\\L%%\\U+0064", u"\u00B0"},
  });
}

TEST(TextCodes, CaretsCountInATextWithABackslashOnly)
{
  ExpectCleaned({
      {u"^I", u"^I"},
      {u"\\L^Ia^Jb^Mc^d^", u"\ta\nb\rc^d^"},
      {u"\\L^^A", u"^\x01"},
  });
}

TEST(TextCodes, CodePointsBecomeCharacters)
{
  ExpectCleaned({
      {u"\\U+00B0\\u+00b0\\U+00G0", u"\u00B0\u00B0\\U+00G0"},
      {u"\\U+005CU+0041", u"A"},
      {u"\\U+00\\U+0030B0", u"\v0"},
      {u"\\U+004\\U+0031", u"A"},
      {u"\\U+D83D\\U+DEA2", u"\U0001F6A2"},
  });
}

TEST(TextCodes, WhatIsNoCodeStays)
{
  ExpectCleaned({
      {u"\\O \\o \\K \\k \\T1; \\Q1; \\W1; \\S1/2; \\~ \\\\",
       u"\\O \\o \\K \\k \\T1; \\Q1; \\W1; \\S1/2; \\~ \\\\"},
      {u"", u""},
      {u"\\", u"\\"},
  });
}

TEST(TextCodes, GoStepByStepSoThatOneStepMayUncoverWhatALaterOneTakes)
{
  // For each two neighbours: a text that would end otherwise if they changed places.
  ExpectCleaned({
      {u"\\{fArial;x", u"x"},        // opening braces, fonts
      {u"\\}fArial;x", u"x"},        // closing braces, fonts
      {u"\\A\\f|b1;1;x", u"x"},      // fonts, alignments
      {u"\\H\\A1;2;x", u"x"},        // alignments, heights
      {u"\\A\\H2;1;x", u"\\A1;x"},   // and not the other way round
      {u"\\\\H2;Lx", u"x"},          // heights, underline on
      {u"\\H\\L2;x", u"\\H2;x"},     // and not the other way round
      {u"\\\\Llx", u"x"},            // underline on, underline off
      {u"\\\\lLx", u"\\Lx"},         // and not the other way round
      {u"\\\\lPx", u"\nx"},          // underline off, paragraphs
      {u"\\\\pPx", u"\\Px"},         // paragraphs, indents
      {u"\\\\pC1;x", u"x"},          // indents, colour indices
      {u"\\p\\C1;i2;x", u"i2;x"},    // and not the other way round
      {u"\\\\C1;c5;x", u"x"},        // colour indices, true colours
      {u"\\\\c5;C1;x", u"\\C1;x"},   // and not the other way round
      {u"\\U+005Cc1;x", u"\\c1;x"},  // true colours, units
      {u"\\\\c1;U+0041x", u"Ax"},    // a unit behind a true colour
      {u"\\U+005EIx", u"\tx"},       // units, carets
      {u"%\\L%dx", u"\u00B0x"},      // codes, percents
  });
}

TEST(TextCodes, ForColoursAreReadWhereTheirStepStands)
{
  // Uncovered by the step before: an index by an indent, a true colour by an index.
  EXPECT_EQ(CleanText(u"\\\\pC1;").colourIndex, ColourIndex{1});
  EXPECT_EQ(CleanText(u"\\\\C1;c5;").colourValue, 5U);
  // Uncovered by a later step.
  EXPECT_FALSE(CleanText(u"\\\\c5;C1;").colourIndex);
  EXPECT_FALSE(CleanText(u"\\U+005Cc1;").colourValue);
}

TEST(TextCodes, TheCodeOfNulBecomesOneUnit)
{
  EXPECT_EQ(Cleaned(u"a\\U+0000b"), std::u16string(u"a\0b", 3));
}

TEST(TextCodes, ReportTheFirstColourOfEachKind)
{
  const CleanedText none = CleanText(u"C1; \\C; \\cX;");
  EXPECT_FALSE(none.colourIndex);
  EXPECT_FALSE(none.colourValue);
  const CleanedText both = CleanText(u"\\c99;a\\C7;b\\C8;\\c1;");
  EXPECT_EQ(both.colourIndex, ColourIndex{7});
  EXPECT_EQ(both.colourValue, 99U);
  EXPECT_EQ(both.text, u"ab");
  EXPECT_EQ(CleanText(u"\\C99999999999;").colourIndex, ColourIndex{2147483647});
}

// ---------------------------------------------------------------------------------------------------
// The matchers against a regular-expression engine

/// A text in which each character is one 16-bit unit, for the engine.
std::wstring ForEngine(const std::u16string& text) { return {text.begin(), text.end()}; }
std::u16string FromEngine(const std::wstring& text) { return {text.begin(), text.end()}; }

void ReplaceAllByEngine(std::u16string& text, const wchar_t* pattern, const wchar_t* replacement)
{
  text = FromEngine(std::regex_replace(ForEngine(text), std::wregex(pattern), replacement));
}

/// A step and what it does in terms of patterns.
struct Step {
  const char* name;
  void (*byHand)(std::u16string& text);
  void (*byEngine)(std::u16string& text);
};

void DecodeByEngine(std::u16string& text, const wchar_t* pattern,
                    char16_t (*decode)(const std::wstring&))
{
  const std::wregex code(pattern);
  std::wsmatch match;
  for (std::wstring all = ForEngine(text); std::regex_search(all, match, code);
       text = FromEngine(all)) {
    const auto at = static_cast<std::size_t>(match.position(0));
    const wchar_t unit = decode(match.str(1));
    all.replace(at, static_cast<std::size_t>(match.length(0)), 1, unit);
  }
}

/// A step for codes that begin with a backslash.
template <void (BackslashCodes::*step)()>
void ByHand(std::u16string& text)
{
  BackslashCodes codes(text);
  (codes.*step)();
}

const std::vector<Step>& Steps()
{
  static const std::vector<Step> steps = {
      {"braces", TextCodes::RemoveBraces,
       [](std::u16string& t) {
         ReplaceAllByEngine(t, L"\\{", L"");
         ReplaceAllByEngine(t, L"\\}", L"");
       }},
      {"fonts", ByHand<&BackslashCodes::RemoveFonts>,
       [](std::u16string& t) {
         ReplaceAllByEngine(t,
                            L"\\\\[Ff]([^|]*)(?:\\|([bicp])(\\d+))?(?:\\|([bicp])(\\d+))?"
                            L"(?:\\|([bicp])(\\d+))?(?:\\|([bicp])(\\d+))?;",
                            L"");
       }},
      {"alignments", ByHand<&BackslashCodes::RemoveAlignments>,
       [](std::u16string& t) { ReplaceAllByEngine(t, L"\\\\A(\\d+);", L""); }},
      {"heights", ByHand<&BackslashCodes::RemoveHeights>,
       [](std::u16string& t) { ReplaceAllByEngine(t, L"\\\\H(\\d*\\.?\\d+)(x?);", L""); }},
      {"underlines", ByHand<&BackslashCodes::RemoveUnderlines>,
       [](std::u16string& t) {
         ReplaceAllByEngine(t, L"\\\\L", L"");
         ReplaceAllByEngine(t, L"\\\\l", L"");
       }},
      {"paragraphs", ByHand<&BackslashCodes::BreakParagraphs>,
       [](std::u16string& t) { ReplaceAllByEngine(t, L"\\\\P", L"\n"); }},
      {"indents", ByHand<&BackslashCodes::RemoveIndents>,
       [](std::u16string& t) { ReplaceAllByEngine(t, L"\\\\p(?:x?i(\\d*\\.?\\d+);)?", L""); }},
      {"colours",
       [](std::u16string& t) {
         BackslashCodes codes(t);
         codes.RemoveColours(u'C');
         codes.RemoveColours(u'c');
       },
       [](std::u16string& t) {
         ReplaceAllByEngine(t, L"\\\\C(\\d+);", L"");
         ReplaceAllByEngine(t, L"\\\\c(\\d+);", L"");
       }},
      {"units", ByHand<&BackslashCodes::DecodeUnits>,
       [](std::u16string& t) {
         DecodeByEngine(t, L"\\\\[Uu]\\+([0-9a-fA-F]{4})", [](const std::wstring& digits) {
           return static_cast<char16_t>(std::stoi(digits, nullptr, 16));
         });
       }},
      {"carets", TextCodes::DecodeCarets,
       [](std::u16string& t) {
         DecodeByEngine(t, L"\\^([A-Z])", [](const std::wstring& letter) {
           return static_cast<char16_t>(letter[0] ^ 64);
         });
       }},
  };
  return steps;
}

TEST(TextCodes, EachStepDoesWhatItsPatternSays)
{
  // Pieces that codes are made of, so that whole, broken and overlapping ones come up.
  const std::vector<std::u16string> pieces = {
      u"\\",  u"\\",  u"\\f",  u"\\F",  u"\\A",  u"\\H",  u"\\L", u"\\l",    u"\\P",    u"\\p",
      u"\\C", u"\\c", u"\\U+", u"\\u+", u"005C", u"0041", u"|b1", u"|i0",    u"|c",     u"|p34",
      u"|",   u";",   u";",    u"1",    u"2.5",  u".",    u"x",   u"i",      u"xi",     u"{",
      u"}",   u"^",   u"^I",   u"A",    u"U+",   u"b0",   u"\n",  u"\u00E4", u"\xD83D", u" "};
  std::mt19937 random(20240229);
  std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
  std::uniform_int_distribution<int> length(1, 14);
  int changed = 0;
  for (int round = 0; round < 4000; ++round) {
    std::u16string text;
    for (int left = length(random); left > 0; --left) text += pieces[pick(random)];
    // Where no code stands, many units are passed over at a time.
    if (round % 4 == 0) text.insert(text.size() / 2, pick(random), u'a');
    for (const Step& step : Steps()) {
      std::u16string byHand = text;
      std::u16string byEngine = text;
      step.byHand(byHand);
      step.byEngine(byEngine);
      ASSERT_EQ(byHand, byEngine) << step.name << " of " << Utf8FromWide(text);
      changed += byHand == text ? 0 : 1;
    }
    // One after the other they carry the places of the backslashes along.
    if (text.find(u'\\') == std::u16string::npos) continue;
    std::u16string byEngine = text;
    for (const Step& step : Steps()) step.byEngine(byEngine);
    ASSERT_EQ(Cleaned(text), byEngine) << Utf8FromWide(text);
  }
  EXPECT_GT(changed, 4000);  // the texts are not beside the point
}

// ---------------------------------------------------------------------------------------------------
// Length

std::u16string Repeated(std::u16string_view piece, std::size_t units)
{
  std::u16string text;
  text.reserve(units + piece.size());
  while (text.size() < units) text += piece;
  return text;
}

TEST(TextCodes, OfTenMillionUnitsAreCleanedInOneGo)
{
  // None of these comes to an end in a quadratic search, or without overflowing the stack in a
  // recursive one.
  constexpr std::size_t units = 10000000;
  // Processor time, because a busy machine counts for nothing.
  const std::clock_t start = std::clock();
  EXPECT_EQ(Cleaned(Repeated(u"a", units) + u"\\L").size(), units);
  EXPECT_GE(Cleaned(Repeated(u"\\fArial", units)).size(), units);
  EXPECT_EQ(Cleaned(Repeated(u"\\f;", units)).size(), 0U);
  EXPECT_GE(Cleaned(Repeated(u"\\f|b1", units)).size(), units);
  EXPECT_GE(Cleaned(u"\\H" + Repeated(u"1", units)).size(), units);
  EXPECT_EQ(Cleaned(Repeated(u"\\U+0041", units)), std::u16string((units + 6) / 7, u'A'));
  EXPECT_GE(Cleaned(Repeated(u"\\U+005C", units)).size(), units / 7);
  EXPECT_GE(Cleaned(Repeated(u"\\\\", units)).size(), units);
  EXPECT_EQ(Cleaned(Repeated(u"%%d", units)).size(), (units + 2) / 3);
  EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 120);
}

}  // namespace
}  // namespace hullwright
