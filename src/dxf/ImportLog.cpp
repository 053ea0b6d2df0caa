#include "dxf/ImportLog.h"

#include <chrono>
#include <new>
#include <string>

#include "base/Text.h"

namespace hullwright {
namespace {

std::u16string Joined(std::initializer_list<LogPiece> pieces)
{
  std::u16string text;
  for (const LogPiece& piece : pieces) {
    if (const auto* const number = std::get_if<std::size_t>(&piece)) {
      text += WideFromAscii(std::to_string(*number));
    } else {
      text += std::get<std::u16string_view>(piece);
    }
  }
  return text;
}

}  // namespace

void LogRecord(const ITrace& log, TraceLevel level, std::u16string_view category,
               std::initializer_list<LogPiece> pieces)
{
  using std::chrono::milliseconds;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto elapsed = std::chrono::duration_cast<milliseconds>(now).count();
  try {
    log.Trace(static_cast<double>(elapsed) / 1000.0, level, category, Joined(pieces));
  } catch (const std::bad_alloc&) {
    // What is imported matters more than its record.
  }
}

}  // namespace hullwright
