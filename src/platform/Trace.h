#pragma once

#include <cstdint>
#include <string_view>

namespace hullwright {

/// Levels of log records.
namespace TraceLevel {
inline constexpr std::int32_t Failure = 1;
inline constexpr std::int32_t Progress = 4;
inline constexpr std::int32_t Success = 32;
}  // namespace TraceLevel

/// Where records of the log go.
class ITrace {
public:
  virtual ~ITrace() = default;

  /// Adds a record to the log of a category. `text` is the formatted message.
  virtual void Trace(double elapsedSeconds, std::int32_t level, std::u16string_view category,
                     std::u16string_view text) const = 0;
};

}  // namespace hullwright
