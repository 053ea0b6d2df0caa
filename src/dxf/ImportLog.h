#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <variant>

#include "platform/Trace.h"

namespace hullwright {

// The logs that an import writes to.
inline constexpr std::u16string_view generalLog = u"General";
inline constexpr std::u16string_view processingLog = u"Processing";

/// A text or a number.
using LogPiece = std::variant<std::u16string_view, std::size_t>;

/// Adds a record, joined from pieces, to a log, with the clock in seconds, in steps of a
/// millisecond. Without memory for it the log goes without.
void LogRecord(const ITrace& log, TraceLevel level, std::u16string_view category,
               std::initializer_list<LogPiece> pieces);

}  // namespace hullwright
