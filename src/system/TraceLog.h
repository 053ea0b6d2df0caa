#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Trace.h"

namespace hullwright {

/// The log files: one for each category, in the folder `logPlace` of the common data folder. A log
/// is a line with the running count of all records ever written, then the last 200 records,
/// "number|seconds|level|text" each. The folder is never made, and a log that can't be written is
/// silently left.
class CTraceLog : public ITrace {
public:
  /// `commonDataFolder` returns the folder at each record, since it may come to be during the run.
  explicit CTraceLog(std::function<std::u16string()> commonDataFolder)
      : folder_(std::move(commonDataFolder))
  {
  }

  /// Adds one record, rewriting the log whole, which is locked meanwhile: programs that share a log
  /// wait for one another. `text` is the formatted message, which ends at a NUL; its line breaks
  /// and tabs become "<CR>", "<LF>" and "<TAB>". Without memory for it there is no record.
  void Trace(double elapsedSeconds, TraceLevel level, std::u16string_view category,
             std::u16string_view text) const override;

  /// Path of a category's log.
  std::u16string PathOf(std::u16string_view category) const;

private:
  void Add(double elapsedSeconds, TraceLevel level, std::u16string_view category,
           std::u16string_view text) const;

  std::function<std::u16string()> folder_;
};

}  // namespace hullwright
