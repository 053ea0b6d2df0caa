#pragma once

#include <cstdint>
#include <string_view>

namespace hullwright {

/// Levels of log records.
enum class TraceLevel : std::int32_t {
  Failure = 1,
  Progress = 4,
  Success = 32,
};

/// Where records of the log go.
class ITrace {
public:
  virtual ~ITrace() = default;

  /// Adds a record to the log of a category. `elapsedSeconds` counts from the beginning of 1970
  /// (UTC), in steps of a millisecond. `text` is the formatted message.
  virtual void Trace(double elapsedSeconds, TraceLevel level, std::u16string_view category,
                     std::u16string_view text) const = 0;
};

}  // namespace hullwright
