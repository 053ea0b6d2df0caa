#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "base/Text.h"
#include "support/FailingNew.h"
#include "support/TempFolder.h"
#include "system/Descriptors.h"
#include "system/TraceLog.h"

namespace hullwright {
namespace {

/// A log that several programs, or one short of memory, write to.
class SharedTraceLog : public testing::Test {
protected:
  SharedTraceLog() { std::filesystem::create_directories(folder.Path() / "Sondaris" / "Tracing"); }
  std::string General() const { return folder.Read("Sondaris/Tracing/Trace_General.txt"); }
  void Trace(std::u16string_view text) const
  {
    log.Trace(0.0, TraceLevel::Failure, u"General", text);
  }

  test::TempFolder folder;
  CTraceLog log{[this] { return WideFromUtf8(folder.Path().string()); }};
};

TEST_F(SharedTraceLog, HasTheRecordsOfAllProgramsThatWriteAtOnce)
{
  constexpr int programs = 4;
  constexpr int records = 40;
  for (int program = 0; program < programs; ++program) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child != 0) continue;
    for (int i = 0; i < records; ++i) Trace(WideFromAscii("program " + std::to_string(program)));
    _exit(0);
  }
  for (int program = 0; program < programs; ++program) wait(nullptr);

  std::istringstream lines(General());
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "160");
  std::set<int> numbers;
  std::map<std::string, int> byProgram;
  while (std::getline(lines, line)) {
    numbers.insert(std::stoi(line));
    ++byProgram[line.substr(line.rfind('|') + 1)];
  }
  EXPECT_EQ(numbers.size(), 160U);
  EXPECT_EQ(byProgram.size(), 4U);
  for (const auto& [program, count] : byProgram) EXPECT_EQ(count, records) << program;
}

TEST_F(SharedTraceLog, IsWrittenAfterAWhileEvenIfAHaltedProgramHoldsIt)
{
  Trace(u"first");
  const auto path = folder.Path() / "Sondaris/Tracing/Trace_General.txt";
  const Descriptor held(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(flock(held.Number(), LOCK_EX), 0);
  Trace(u"second");
  EXPECT_EQ(General(), "2\n1|0.000|1|first\r\n2|0.000|1|second\r\n");
}

TEST_F(SharedTraceLog, KeepsWhatItHoldsWhereverMemoryEnds)
{
  Trace(u"first");
  const std::string before = General();
  const std::string path = (folder.Path() / "Sondaris/Tracing/Trace_General.txt").string();
  bool failed = true;
  std::size_t which = 0;
  while (failed) {
    folder.Write("Sondaris/Tracing/Trace_General.txt", before);
    const test::FailingNew memory(++which);
    Trace(u"a record that is too long to go without memory of its own");
    failed = test::FailingNew::Stop();
    if (failed) {
      EXPECT_EQ(General(), before) << which;
    }
  }
  EXPECT_GT(which, 5U);
  EXPECT_TRUE(General().starts_with("2\n"));
}

}  // namespace
}  // namespace hullwright
