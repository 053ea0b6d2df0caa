#pragma once

#include <cstdint>
#include <string_view>

namespace hullwright {

/// The per-user settings store: integers by section and key. What it holds never enters a design.
class ISettingsStore {
public:
  virtual ~ISettingsStore() = default;

  /// Takes in what another program has stored meanwhile. Settings that are read together are
  /// refreshed once, before the first.
  virtual void Refresh() const {}

  /// The stored integer; `fallback` where there is none, or none that is an integer.
  virtual std::int32_t ReadInteger(std::string_view section, std::string_view key,
                                   std::int32_t fallback) const = 0;
  virtual void WriteInteger(std::string_view section, std::string_view key, std::int32_t value) = 0;
};

}  // namespace hullwright
