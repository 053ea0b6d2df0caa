#pragma once

#include <string_view>

#include "platform/Trace.h"

namespace hullwright {

// The logs that an import writes to.
inline constexpr std::u16string_view generalLog = u"General";
inline constexpr std::u16string_view processingLog = u"Processing";

/// Adds a record to a log, with the clock in seconds, in steps of a millisecond.
void LogRecord(const ITrace& log, TraceLevel level, std::u16string_view category,
               std::u16string_view text);

}  // namespace hullwright
