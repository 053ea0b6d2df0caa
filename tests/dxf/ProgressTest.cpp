#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "base/Numbers.h"
#include "dxf/DxfLines.h"
#include "support/DxfFixture.h"

namespace hullwright {
namespace {

using namespace test;
using testing::ElementsAre;

const std::string aLine = Entity("LINE", {{8, "Hull"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}});

class Progress : public DxfFixture {
protected:
  /// What the last import reported between its beginning and its end; the next one starts anew.
  std::vector<int> Percents()
  {
    const std::vector<std::string> list = std::exchange(window.list, {});
    std::vector<int> percents;
    EXPECT_GE(list.size(), 2U);
    if (list.size() < 2) return percents;
    EXPECT_EQ(list.front(), "start");
    EXPECT_EQ(list.back(), "end");
    std::transform(list.begin() + 1, list.end() - 1, std::back_inserter(percents),
                   [](const std::string& shown) { return ParseInt32(shown, 10); });
    return percents;
  }

  /// Reads a text up to each of the places, the last of which is its end, and reports the progress
  /// there.
  void ReportAfterEach(const std::vector<std::size_t>& places)
  {
    std::string text(places.back(), 'x');
    for (const std::size_t place : places) {
      if (place != 0) text[place - 1] = '\n';
    }
    DxfLines lines(text);
    std::size_t position = 0;
    for (const std::size_t place : places) {
      std::string_view line;
      EXPECT_EQ(place != position && lines.GetLine(line, DxfLines::longLine), place != position);
      position = place;
      lines.ReportProgress(window);
    }
  }
};

TEST_F(Progress, ProgressBeginsRisesAndEnds)
{
  std::string records;
  for (int i = 0; i < 1000; ++i) records += aLine;
  Import(Entities(records) + endOfFile);
  EXPECT_EQ(window.progressText, "Loading and processing DXF file, please wait...");
  const std::vector<int> percents = Percents();
  EXPECT_GE(percents.size(), 95U);
  EXPECT_LE(percents.size(), 100U);
  EXPECT_TRUE(std::ranges::is_sorted(percents));
}

TEST_F(Progress, PercentIsTruncatedAndReportedOnce)
{
  ReportAfterEach({0, 3, 4, 7, 8, 8, 199, 400});
  EXPECT_THAT(window.list, ElementsAre("1 %", "2 %", "49 %", "100 %"));
}

TEST_F(Progress, PercentIsComputedInSinglePrecision)
{
  ReportAfterEach({29, 100});  // in double precision a hair below 29 per cent
  EXPECT_THAT(window.list, ElementsAre("29 %", "100 %"));
  window.list.clear();
  ReportAfterEach({53, 100});  // in single precision a hair below 53 per cent
  EXPECT_THAT(window.list, ElementsAre("52 %", "100 %"));
}

TEST_F(Progress, AnImportThatFailsShowsNoProgress)
{
  Import("");
  EXPECT_THAT(window.list, testing::IsEmpty());
}

TEST_F(Progress, IsReportedBehindEveryLineBetweenSections)
{
  std::string text;
  for (int i = 0; i < 50; ++i) text += "x\n";
  Import(text);
  std::vector<int> everyLine;
  for (int percent = 2; percent <= 100; percent += 2) everyLine.push_back(percent);
  EXPECT_EQ(Percents(), everyLine);
}

TEST_F(Progress, IsReportedBehindASectionAndNotInsideIt)
{
  for (const auto& section : {Section("HEADER", Lines({{9, "$ACADVER"}, {1, "AC1015"}})),
                              Section("TABLES", LayerRecord("A", 1, 0) + LayerRecord("B", 1, 0)),
                              Section("BLOCKS", Block("A", aLine) + Block("B", aLine))}) {
    const std::string begin = "0\n";
    const std::string body = section.substr(begin.size());
    const std::size_t half = begin.size() + body.size();
    // The line behind the section is as long as all before it, and its percent comes of itself.
    Import(begin + body + std::string(half - 1, 'x') + "\n");
    const auto first = static_cast<int>(100 * begin.size() / (2 * half));
    std::vector<int> expected = {50, 100};
    if (first > 0) expected.insert(expected.begin(), first);
    EXPECT_EQ(Percents(), expected) << section;
  }
}

TEST_F(Progress, IsReportedBehindEveryLineAndEntityOfTheEntities)
{
  std::string text = "SECTION\n2\nENTITIES\n";
  std::vector<int> expected;
  // The text has 100 bytes, so that each place in it is its own percent.
  const auto add = [&](const std::string& part) {
    text += part;
    expected.push_back(static_cast<int>(text.size()));
  };
  add("0\n");
  add("LINE\n10\n1\n0\n");  // an entity with the group 0 behind it
  add("OTHER\n");           // an unknown one, line by line
  add("5\n");
  add("0\n");
  add("HATCH\n0\n");        // one that is skipped
  add("LINE\n67\n1\n0\n");  // one that is left out
  add("ENDSEC\n");
  text += "EOF\n";  // nothing is reported behind the end
  text.resize(100, 'x');
  Import(text);
  EXPECT_EQ(Percents(), expected);
}

/// A window that notes how many records the log has at each report.
class WindowBesideALog : public RecordedNotifications {
public:
  explicit WindowBesideALog(const KeptTrace& log) : log_(log) {}
  void StartProgress(std::string_view) override { atStart = log_.records.size(); }
  void ShowProgress(int) override { atPercents.insert(log_.records.size()); }
  void EndProgress() override { atEnd = log_.records.size(); }

  std::size_t atStart = 0;
  std::set<std::size_t> atPercents;
  std::size_t atEnd = 0;

private:
  const KeptTrace& log_;
};

TEST_F(Progress, IsReportedBetweenTheRecordsOfTheLog)
{
  WindowBesideALog beside(log);
  CLayer target;
  CFileDxf reader(&beside, log);
  const std::string text = Section("TABLES", "") + Blocks("") + Entities(aLine + aLine);
  ASSERT_EQ(reader.Import(folder.Write("a.dxf", text), &target), 0);
  EXPECT_EQ(beside.atStart, 2U);  // behind the opening of the file and the beginning of its walk
  // In front of the tables, behind them, behind the blocks, among the entities, behind these.
  EXPECT_THAT(beside.atPercents, ElementsAre(2U, 4U, 6U, 7U, 8U));
  EXPECT_EQ(beside.atEnd, 8U);  // in front of the extents
}

}  // namespace
}  // namespace hullwright
