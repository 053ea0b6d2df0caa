#include "system/BaseFolders.h"

#include <cstdlib>
#include <utility>

namespace hullwright {

std::string Environment(const char* name, std::string fallback)
{
  const char* const value = std::getenv(name);
  return value == nullptr || *value == '\0' ? std::move(fallback) : std::string(value);
}

std::filesystem::path BaseFolder(const char* variable, const char* belowHome)
{
  std::filesystem::path named = Environment(variable, "");
  if (named.is_absolute()) return named;
  const std::filesystem::path home = Environment("HOME", "");
  return home.is_absolute() ? home / belowHome : std::filesystem::path();
}

}  // namespace hullwright
