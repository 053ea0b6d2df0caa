#include "dxf/ImportLog.h"

#include <chrono>

namespace hullwright {

void LogRecord(const ITrace& log, TraceLevel level, std::u16string_view category,
               std::u16string_view text)
{
  using std::chrono::milliseconds;
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto elapsed = std::chrono::duration_cast<milliseconds>(now).count();
  log.Trace(static_cast<double>(elapsed) / 1000.0, level, category, text);
}

}  // namespace hullwright
