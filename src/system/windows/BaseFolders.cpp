#include "system/BaseFolders.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "base/Paths.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

/// What a call of the system's writes that tells how much room it wants, or has used.
template <class Call>
std::wstring TextFrom(Call call)
{
  std::wstring text(MAX_PATH, L'\0');
  for (;;) {
    const auto size = static_cast<std::size_t>(call(text.data(), static_cast<DWORD>(text.size())));
    const bool fits = size < text.size();
    text.resize(fits ? size : std::max(size, 2 * text.size()));
    if (fits) return text;
  }
}

fs::path PathIn(const char* variable) { return PathOf(Environment(variable, "")); }

}  // namespace

std::string Environment(const char* name, std::string fallback)
{
  const std::wstring wideName = PathOf(name).wstring();
  const std::wstring value = TextFrom([&wideName](wchar_t* text, DWORD size) {
    return GetEnvironmentVariableW(wideName.c_str(), text, size);
  });
  if (value.empty()) return fallback;
  const std::u8string bytes = fs::path(value).u8string();
  return {bytes.begin(), bytes.end()};
}

fs::path BaseFolder(const char* variable, const char*)
{
  fs::path named = PathIn(variable);
  if (named.is_absolute()) return named;
  fs::path local = PathIn("LOCALAPPDATA");
  return local.is_absolute() ? local : fs::path();
}

std::vector<std::string> SystemDataFolders()
{
  const std::string all = Environment("XDG_DATA_DIRS", Environment("ProgramData", ""));
  std::vector<std::string> folders;
  for (std::string_view list = all; !list.empty();) {
    const std::size_t end = std::min(list.find(';'), list.size());
    const fs::path folder = PathOf(list.substr(0, end));
    if (folder.is_absolute()) folders.push_back(TextOf(folder));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return folders;
}

fs::path ProgramFile()
{
  return TextFrom(
      [](wchar_t* text, DWORD size) { return GetModuleFileNameW(nullptr, text, size); });
}

}  // namespace hullwright
