#include "dxf/DxfLines.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// The pairs of the next record.
std::vector<std::pair<int, std::string>> PairsOf(DxfLines& lines,
                                                 std::size_t limit = DxfLines::longLine)
{
  std::vector<std::pair<int, std::string>> pairs;
  lines.WalkPairs(
      [&](DxfCode code, std::string_view value) {
        pairs.emplace_back(static_cast<int>(code), std::string(value));
      },
      limit);
  return pairs;
}

std::vector<std::pair<int, std::string>> PairsOf(const std::string& text,
                                                 std::size_t limit = DxfLines::longLine)
{
  DxfLines lines(text);
  return PairsOf(lines, limit);
}

// ---------------------------------------------------------------------------------------------------
// Line ends

TEST(LineEnds, AreFoundAmongAnyBytes)
{
  std::mt19937 random(11);
  // Bytes that differ from a line end in one bit, follow it, or have their top bit set.
  const std::string_view pieces("\n\x0B\x09\x8A\x00\xFF\x80 1", 9);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (std::size_t left = random() % 40; left > 0; --left) {
      text += random() % 8 == 0 ? pieces[random() % pieces.size()] : pieces[1 + random() % 8];
    }
    const char* const end = text.data() + text.size();
    for (const char* at = text.data(); at != end; ++at) {
      ASSERT_EQ(FindLineEnd(at, end), std::find(at, end, '\n')) << round;
    }
  }
}

// ---------------------------------------------------------------------------------------------------
// Lines

TEST(Lines, GetLineGivesLineAfterLineWithoutTrimming)
{
  DxfLines lines("  0\n\nLINE \nx\ry\n");
  std::string_view line;
  for (const std::string_view expected : {"  0", "", "LINE ", "x\ry"}) {
    EXPECT_TRUE(lines.GetLine(line, 256));
    EXPECT_EQ(line, expected);
  }
  EXPECT_TRUE(lines.IsAtEnd());
  EXPECT_FALSE(lines.GetLine(line, 256));
}

TEST(Lines, GetLineGivesThePartInFrontOfTheEndOfTheText)
{
  DxfLines lines("ENTITIES\nXY");
  std::string_view line;
  EXPECT_TRUE(lines.GetLine(line, 256));
  EXPECT_FALSE(lines.IsAtEnd());
  EXPECT_FALSE(lines.GetLine(line, 256));
  EXPECT_EQ(line, "XY");
  EXPECT_TRUE(lines.IsAtEnd());
  EXPECT_FALSE(lines.GetLine(line, 256));
  EXPECT_EQ(line, "");
}

TEST(Lines, GetLineGivesUpBehindTheLastByteThatFits)
{
  const std::string text = std::string(255, 'a') + "\n" + std::string(256, 'b') + "\nrest\n";
  DxfLines lines(text);
  std::string_view line;
  EXPECT_TRUE(lines.GetLine(line, 256));
  EXPECT_EQ(line.size(), 255U);
  EXPECT_FALSE(lines.GetLine(line, 256));
  EXPECT_EQ(line, std::string(256, 'b'));
  EXPECT_TRUE(lines.GetLine(line, 256));  // what is left of it: nothing but its end
  EXPECT_EQ(line, "");
  EXPECT_TRUE(lines.GetLine(line, 256));
  EXPECT_EQ(line, "rest");
}

TEST(Lines, EndAtANul)
{
  DxfLines lines({"EOF\0x\n\0\nA\0B", 11});
  std::string_view line;
  for (const std::string_view expected : {"EOF", ""}) {
    EXPECT_TRUE(lines.GetLine(line, 256));
    EXPECT_EQ(line, expected);
  }
  EXPECT_FALSE(lines.GetLine(line, 256));
  EXPECT_EQ(line, "A");
}

TEST(Lines, TextIsGivenUpThatIsNotLookedAtAgain)
{
  class NoProgress : public IProgress {
  public:
    void ShowProgress(int) override {}
    void StartProgress(std::string_view) override {}
    void EndProgress() override {}
  };
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "0\nLINE\n10\n1.5\n";
  std::size_t givenUp = 0;
  DxfLines lines(text, [&](std::size_t read) {
    EXPECT_GT(read, givenUp);
    givenUp = read;
    std::fill_n(text.begin(), read, '?');
  });
  NoProgress progress;
  lines.SkipEntity();
  for (int i = 0; i < 1000; ++i) {
    EXPECT_TRUE(lines.IsAtKeyword());
    std::string_view line;
    EXPECT_TRUE(lines.GetLine(line, 256));
    EXPECT_EQ(line, "LINE");
    EXPECT_THAT(PairsOf(lines), ElementsAre(Pair(10, "1.5")));
    lines.ReportProgress(progress);
  }
  EXPECT_EQ(givenUp, text.size());
}

TEST(Lines, AKeywordStandsBehindAZeroWithOrWithoutBlanks)
{
  for (const auto& [text, isAtKeyword] : {std::pair{"0\n", true},
                                          {" \t0 \n", true},
                                          {"00\n", false},
                                          {"word\n", false},
                                          {"\n", false},
                                          {"0", false}}) {
    DxfLines lines(text);
    EXPECT_FALSE(lines.IsAtKeyword());
    lines.SkipEntity();
    EXPECT_EQ(lines.IsAtKeyword(), isAtKeyword) << text;
  }
  const std::string tooLong = "0" + std::string(300, ' ') + "\n";
  DxfLines lines(tooLong);
  lines.SkipEntity();
  EXPECT_FALSE(lines.IsAtKeyword());
}

TEST(Lines, ABlockOfApplicationDataEndsAtABraceOrALineTooLong)
{
  for (const std::string& last : {std::string("x}x\n"), std::string(256, 'x')}) {
    const std::string text = "{A\n0\n" + last + "behind\n";
    DxfLines lines(text);
    std::string_view line;
    lines.SkipGroupBlock();
    EXPECT_TRUE(lines.GetLine(line, 256));
    EXPECT_EQ(line, "behind");
  }
}

// ---------------------------------------------------------------------------------------------------
// Pairs

TEST(Pairs, GoUpToACodeThatReadsAsZero)
{
  for (const char* zero : {"0", "  0", "word", "", "0x10"}) {
    const std::string text = "10\n1.5\n 8 \nHull\n" + std::string(zero) + "\nLINE\n";
    DxfLines lines(text);
    EXPECT_THAT(PairsOf(lines), ElementsAre(Pair(10, "1.5"), Pair(8, "Hull"))) << zero;
    std::string_view line;
    EXPECT_TRUE(lines.GetLine(line, 256));
    EXPECT_EQ(line, "LINE");
  }
}

TEST(Pairs, HaveCodesInAnyFormThatReadsAsANumber)
{
  for (const auto& [code, group] : {std::pair{"10", 10},
                                    {"   10", 10},
                                    {"+10", 10},
                                    {"-10", -10},
                                    {"\t10", 10},
                                    {"10 ", 10},
                                    {"10x", 10},
                                    {"10\r", 10},
                                    {"           10", 10},
                                    {"000000000010", 10},
                                    {"999999999", 999999999},
                                    {"4294967306", 2147483647}}) {
    EXPECT_THAT(PairsOf(std::string(code) + "\n1\n"), ElementsAre(Pair(group, "1"))) << code;
  }
}

TEST(Pairs, GoUpToACodeThatIsCutShort)
{
  EXPECT_THAT(PairsOf("8\nA\n10"), ElementsAre(Pair(8, "A")));
  EXPECT_THAT(PairsOf("8\nA\n" + std::string(256, ' ') + "10\n1\n"), ElementsAre(Pair(8, "A")));
  EXPECT_THAT(PairsOf(std::string(253, ' ') + "10\n1\n"), ElementsAre(Pair(10, "1")));
}

TEST(Pairs, AValueThatIsTooLongCountsAndItsRestIsACode)
{
  const std::string value(512, '1');
  EXPECT_THAT(PairsOf("1\n" + value + "8\nA\n"), ElementsAre(Pair(1, value), Pair(8, "A")));
  const std::string shortValue(256, '1');
  EXPECT_THAT(PairsOf("1\n" + shortValue + "8\nA\n", DxfLines::shortLine),
              ElementsAre(Pair(1, shortValue), Pair(8, "A")));
}

TEST(Pairs, TheValueAtTheEndOfTheTextStandsOverTheOnesBefore)
{
  EXPECT_THAT(PairsOf("1\nXY"), ElementsAre(Pair(1, "XY")));
  EXPECT_THAT(PairsOf("1\nENTITIES\n1\nXY"), ElementsAre(Pair(1, "ENTITIES"), Pair(1, "XYTITIES")));
  EXPECT_THAT(PairsOf("1\nENTITIES\n1\n"), ElementsAre(Pair(1, "ENTITIES"), Pair(1, "ENTITIES")));
  // The first is covered by the second up to its end, and shows behind that only.
  EXPECT_EQ(PairsOf("1\nENTITIES\n1\nabc\n1\nXY").back().second, "XYc");
  EXPECT_EQ(PairsOf("1\nENTITIES\n1\nab\n1\nXY").back().second, "XY");
  EXPECT_EQ(PairsOf("1\nENTITIES\n1\na\n1\nXY").back().second, "XYTITIES");
}

TEST(Pairs, TheValueAtTheEndOfTheTextStandsOverNoOtherRecord)
{
  DxfLines lines("1\nENTITIES\n0\nTEXT\n1\nXY");
  std::string_view keyword;
  PairsOf(lines);
  EXPECT_TRUE(lines.GetLine(keyword, 256));
  EXPECT_THAT(PairsOf(lines), ElementsAre(Pair(1, "XY")));
}

TEST(Pairs, ANulEndsWhatTheValueAtTheEndStandsOver)
{
  EXPECT_EQ(PairsOf(std::string("1\nENTI\0IES\n1\nXY", 15)).back().second, "XYTI");
  EXPECT_EQ(PairsOf(std::string("1\nE\0TITIES\n1\nXY", 15)).back().second, "XYTITIES");
  EXPECT_EQ(PairsOf(std::string("1\nENTITIES\n1\nX\0", 15)).back().second, "X");
}

TEST(Pairs, AValueThatIsTooLongIsStoodOverAsWell)
{
  const std::string value(512, '1');
  EXPECT_EQ(PairsOf("1\n" + value + "8\nA\n1\nXY").back().second, "XY" + value.substr(2));
}

TEST(Pairs, OfNoTextAreNone)
{
  EXPECT_THAT(PairsOf(""), IsEmpty());
  EXPECT_THAT(PairsOf("\n"), IsEmpty());
}

}  // namespace
}  // namespace hullwright
