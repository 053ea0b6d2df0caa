#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/SettingsStore.h"

namespace hullwright {

/// Settings that last as long as the program. A setting is called "section/key".
class MemorySettings : public ISettingsStore {
public:
  std::int32_t ReadInteger(std::string_view section, std::string_view key,
                           std::int32_t fallback) const override;
  void WriteInteger(std::string_view section, std::string_view key, std::int32_t value) override;

  std::map<std::string, std::int32_t> values;
  std::vector<std::string> written;  ///< each setting that was written, in order
};

}  // namespace hullwright
