#include "system/CommonDataFolder.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/Text.h"
#include "system/BaseFolders.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> SplitFolders(std::string_view list)
{
  std::vector<std::string> folders;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find(':'), list.size());
    if (list.front() == '/') folders.emplace_back(list.substr(0, end));
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return folders;
}

bool Holds(const std::string& folder, CommonData what)
{
  if (folder.empty()) return false;
  std::error_code error;
  switch (what) {
    case CommonData::UnitDatabase:
      return fs::is_regular_file(fs::path(folder) / unitDatabasePlace, error);
    case CommonData::Logs: return fs::is_directory(fs::path(folder) / logPlace, error);
  }
  return false;
}

}  // namespace

DataFolderCandidates FindDataFolderCandidates()
{
  DataFolderCandidates candidates;
  candidates.user = BaseFolder("XDG_DATA_HOME", ".local/share").string();
  candidates.system = SplitFolders(Environment("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  candidates.besideProgram = (program.parent_path().parent_path() / "share").string();
  return candidates;
}

std::u16string CommonDataFolder(const DataFolderCandidates& candidates, CommonData what)
{
  if (Holds(candidates.user, what)) return WideFromUtf8(candidates.user);
  for (const std::string& folder : candidates.system) {
    if (Holds(folder, what)) return WideFromUtf8(folder);
  }
  return WideFromUtf8(candidates.besideProgram);
}

std::u16string FindCommonDataFolder(CommonData what)
{
  return CommonDataFolder(FindDataFolderCandidates(), what);
}

}  // namespace hullwright
