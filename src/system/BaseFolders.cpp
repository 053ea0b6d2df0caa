#include "system/BaseFolders.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
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

std::vector<std::string> SystemDataFolders()
{
  const std::string all = Environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share");
  std::vector<std::string> folders;
  for (std::string_view list = all; !list.empty();) {
    const std::size_t end = std::min(list.find(':'), list.size());
    if (list.front() == '/') folders.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return folders;
}

std::filesystem::path ProgramFile()
{
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error);
}

}  // namespace hullwright
