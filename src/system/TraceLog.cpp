#include "system/TraceLog.h"

#include <array>
#include <chrono>
#include <deque>
#include <new>
#include <optional>
#include <thread>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/OpenFile.h"
#include "base/Text.h"
#include "system/CommonDataFolder.h"
#include "system/Descriptors.h"

namespace hullwright {
namespace {

constexpr std::size_t longestLine = 2048;
constexpr std::size_t mostRecords = 200;
constexpr std::size_t longestPath = 259;

struct Log {
  /// Adds a record behind the others, of which the last ones stay.
  void Add(std::string record)
  {
    records.push_back(std::move(record));
    if (records.size() > mostRecords) records.pop_front();
  }

  std::uint32_t sequence = 0;
  std::deque<std::string> records;  ///< with their line ends
};

/// One line with its line end, cut after the longest length; nothing at the end of the file.
std::optional<std::string> ReadLine(std::FILE* file)
{
  std::array<char, longestLine + 1> line{};
  if (std::fgets(line.data(), static_cast<int>(line.size()), file) == nullptr) return std::nullopt;
  return std::string(line.data());
}

Log ReadLog(std::u16string_view path)
{
  Log log;
  const FilePointer file = OpenToRead(path);
  if (!file) return log;
  if (const auto header = ReadLine(file.get())) {
    log.sequence = static_cast<std::uint32_t>(ParseInt32(*header, 10));
  }
  bool continued = false;  // the piece before was cut and has no line end of its own
  while (auto line = ReadLine(file.get())) {
    const bool blank = line->find_first_not_of("\r\n") == std::string::npos;
    const bool keep = continued || !blank;
    continued = !line->ends_with('\n');
    if (keep) log.Add(std::move(*line));
  }
  return log;
}

std::string OnOneLine(std::string_view text)
{
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    switch (c) {
      case '\r': out += "<CR>"; break;
      case '\n': out += "<LF>"; break;
      case '\t': out += "<TAB>"; break;
      default: out.push_back(c);
    }
  }
  return out;
}

/// Numbers of records wrap at the end of the signed 32-bit range.
std::string Decimal(std::uint32_t number)
{
  return std::to_string(static_cast<std::int32_t>(number));
}

/// Waits until no other program is between the reading and the writing of a log. One that stays
/// there, because it was halted, is not waited for any longer.
void Lock(int file)
{
  constexpr std::chrono::milliseconds between(1);
  constexpr int mostTries = 1000;
  for (int i = 0; i < mostTries && IsLockedElsewhere(file); ++i) {
    std::this_thread::sleep_for(between);
  }
}

/// Replaces what a file holds.
void Rewrite(int file, const Log& log)
{
  std::string text = Decimal(log.sequence) + '\n';
  for (const std::string& record : log.records) text += record;
  if (EmptyFile(file)) WriteAll(file, text);
}

}  // namespace

std::u16string CTraceLog::PathOf(std::u16string_view category) const
{
  return folder_() + u'/' + std::u16string(logPlace) + u"/Trace_" + std::u16string(category) +
         u".txt";
}

void CTraceLog::Trace(double elapsedSeconds, TraceLevel level, std::u16string_view category,
                      std::u16string_view text) const
{
  try {
    Add(elapsedSeconds, level, category, text);
  } catch (const std::bad_alloc&) {
    // The log goes without this record; what it holds is replaced only once the new text is there.
  }
}

void CTraceLog::Add(double elapsedSeconds, TraceLevel level, std::u16string_view category,
                    std::u16string_view text) const
{
  const std::u16string path = PathOf(category);
  if (path.size() > longestPath) return;
  const Descriptor file(OpenDescriptor(Utf8FromWide(path), Access::MakeOrWrite));
  if (file.Number() < 0) return;
  Lock(file.Number());
  Log log = ReadLog(path);
  ++log.sequence;
  const std::string record = Decimal(log.sequence) + "|" + FormatFixed(elapsedSeconds, 3) + "|" +
                             std::to_string(NumberOf(level)) + "|" +
                             AnsiFromWide(text.substr(0, text.find(u'\0')));
  log.Add(OnOneLine(record) + "\r\n");
  Rewrite(file.Number(), log);
}

}  // namespace hullwright
