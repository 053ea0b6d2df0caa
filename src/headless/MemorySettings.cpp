#include "headless/MemorySettings.h"

namespace hullwright {
namespace {

std::string NameOf(std::string_view section, std::string_view key)
{
  return std::string(section).append("/").append(key);
}

}  // namespace

std::int32_t MemorySettings::ReadInteger(std::string_view section, std::string_view key,
                                         std::int32_t fallback) const
{
  const auto found = values.find(NameOf(section, key));
  return found == values.end() ? fallback : found->second;
}

void MemorySettings::WriteInteger(std::string_view section, std::string_view key,
                                  std::int32_t value)
{
  const std::string name = NameOf(section, key);
  values[name] = value;
  written.push_back(name);
}

}  // namespace hullwright
