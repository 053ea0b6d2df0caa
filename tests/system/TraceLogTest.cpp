#include "system/TraceLog.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

class TraceLog : public testing::Test {
protected:
  void MakeFolder() const
  {
    std::filesystem::create_directories(folder.Path() / "Sondaris" / "Tracing");
  }
  std::string General() const { return folder.Read("Sondaris/Tracing/Trace_General.txt"); }

  test::TempFolder folder;
  CTraceLog log{[this] { return WideFromUtf8(folder.Path().string()); }};
};

TEST_F(TraceLog, WithoutItsFolderNothingIsWrittenAndNothingIsMade)
{
  log.Trace(1.0, TraceLevel::Success, u"General", u"text");
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "Sondaris"));
}

TEST_F(TraceLog, TheFirstRecordHasNumberOne)
{
  MakeFolder();
  log.Trace(12.3456, TraceLevel::Progress, u"General", u"[DXF] Processing file...");
  EXPECT_EQ(General(), "1\n1|12.346|4|[DXF] Processing file...\r\n");
}

TEST_F(TraceLog, RecordsAddUpAndTheHeaderCountsThem)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, u"General", u"first");
  log.Trace(0.5, TraceLevel::Success, u"General", u"second|with a bar");
  EXPECT_EQ(General(), "2\n1|0.000|1|first\r\n2|0.500|32|second|with a bar\r\n");
}

TEST_F(TraceLog, EachCategoryHasItsOwnFile)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, u"General", u"a");
  log.Trace(0.0, TraceLevel::Failure, u"Processing", u"b");
  EXPECT_EQ(General(), "1\n1|0.000|1|a\r\n");
  EXPECT_EQ(folder.Read("Sondaris/Tracing/Trace_Processing.txt"), "1\n1|0.000|1|b\r\n");
}

TEST_F(TraceLog, ARecordStaysOnOneLine)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, u"General", u"a\r\nb\tc");
  EXPECT_EQ(General(), "1\n1|0.000|1|a<CR><LF>b<TAB>c\r\n");
}

TEST_F(TraceLog, TextIsWrittenInTheAnsiCodePage)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, u"General", u"\u00FC\u20AC");
  EXPECT_EQ(General(), "1\n1|0.000|1|\xFC\x80\r\n");
}

TEST_F(TraceLog, TheTwoHundredAndFirstRecordDropsTheOldest)
{
  MakeFolder();
  for (int i = 1; i <= 201; ++i) log.Trace(0.0, TraceLevel::Failure, u"General", u"x");
  const std::string text = General();
  EXPECT_TRUE(text.starts_with("201\n2|0.000|1|x\r\n"));
  EXPECT_TRUE(text.ends_with("201|0.000|1|x\r\n"));
  EXPECT_EQ(std::ranges::count(text, '\n'), 201);
}

TEST_F(TraceLog, GoesOnFromTheHeaderOfAnOlderLog)
{
  MakeFolder();
  folder.Write("Sondaris/Tracing/Trace_General.txt", "41\nold\r\n");
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
  EXPECT_EQ(General(), "42\nold\r\n42|0.000|1|new\r\n");
}

TEST_F(TraceLog, BlankLinesAreDroppedAndLongOnesKeptWhole)
{
  MakeFolder();
  const std::string longest(2048, 'x');
  folder.Write("Sondaris/Tracing/Trace_General.txt", "1\n\n\r\n" + longest + "\r\n");
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
  EXPECT_EQ(General(), "2\n" + longest + "\r\n2|0.000|1|new\r\n");
}

TEST_F(TraceLog, ARecordLongerThanItsBufferCountsAsSeveralLinesOfTheLimit)
{
  MakeFolder();
  std::string old = "200\n" + std::string(5000, 'x') + "\r\n";
  for (int i = 0; i < 198; ++i) old += "y\r\n";
  folder.Write("Sondaris/Tracing/Trace_General.txt", old);
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");  // three pieces and 198 lines
  const std::string text = General();
  EXPECT_TRUE(text.starts_with("201\n" + std::string(5000 - 2 * 2048, 'x') + "\r\ny"));
  EXPECT_TRUE(text.ends_with("y\r\n201|0.000|1|new\r\n"));
}

TEST_F(TraceLog, AHeaderLongerThanItsBufferEndsAtTheLimitAndTheRestIsARecord)
{
  MakeFolder();
  folder.Write("Sondaris/Tracing/Trace_General.txt", "7" + std::string(2057, 'x') + "\n");
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
  EXPECT_EQ(General(), "8\n" + std::string(10, 'x') + "\n8|0.000|1|new\r\n");
}

TEST_F(TraceLog, TextEndsAtANul)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, u"General", std::u16string_view(u"ab\0cd", 5));
  EXPECT_EQ(General(), "1\n1|0.000|1|ab\r\n");
}

TEST_F(TraceLog, AHeaderThatIsNoNumberCountsFromZero)
{
  MakeFolder();
  folder.Write("Sondaris/Tracing/Trace_General.txt", "abc\n");
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
  EXPECT_EQ(General(), "1\n1|0.000|1|new\r\n");
}

TEST_F(TraceLog, ALineOfBlanksIsKeptAsARecord)
{
  MakeFolder();
  folder.Write("Sondaris/Tracing/Trace_General.txt", "5\n   \n\t\r\n\n");
  log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
  EXPECT_EQ(General(), "6\n   \n\t\r\n6|0.000|1|new\r\n");
}

TEST_F(TraceLog, AHeaderBeyondTheLargestNumberCountsOnFromTheLargest)
{
  MakeFolder();
  for (const char* header : {"2147483648\n", "4294967295\n", "99999999999\n"}) {
    folder.Write("Sondaris/Tracing/Trace_General.txt", header);
    log.Trace(0.0, TraceLevel::Failure, u"General", u"new");
    EXPECT_EQ(General(), "-2147483648\n-2147483648|0.000|1|new\r\n") << header;
  }
}

TEST_F(TraceLog, TheFolderIsAskedForAtEachRecord)
{
  int asked = 0;
  const CTraceLog counting([&] {
    ++asked;
    return folder.File("");
  });
  EXPECT_EQ(asked, 0);
  counting.Trace(0.0, TraceLevel::Failure, u"General", u"lost");
  MakeFolder();
  counting.Trace(0.0, TraceLevel::Failure, u"General", u"first");
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(General(), "1\n1|0.000|1|first\r\n");
}

TEST_F(TraceLog, APathOf259CharactersIsWrittenAndOneOf260IsNot)
{
  MakeFolder();
  const std::u16string category(259 - log.PathOf(u"").size(), u'c');
  const auto files = [this] {
    return std::ranges::distance(
        std::filesystem::directory_iterator(folder.Path() / "Sondaris" / "Tracing"),
        std::filesystem::directory_iterator());
  };
  log.Trace(0.0, TraceLevel::Failure, category + u"c", u"x");
  EXPECT_EQ(files(), 0);
  log.Trace(0.0, TraceLevel::Failure, category, u"x");
  EXPECT_EQ(files(), 1);
}

TEST_F(TraceLog, APathBeyondItsBufferIsNotWritten)
{
  MakeFolder();
  log.Trace(0.0, TraceLevel::Failure, std::u16string(300, u'c'), u"x");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path() / "Sondaris" / "Tracing"));
}

}  // namespace
}  // namespace hullwright
