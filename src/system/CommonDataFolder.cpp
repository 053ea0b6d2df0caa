#include "system/CommonDataFolder.h"

#include <filesystem>
#include <system_error>

#include "base/Paths.h"
#include "base/Text.h"
#include "system/BaseFolders.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

bool Holds(const std::string& folder, CommonData what)
{
  if (folder.empty()) return false;
  std::error_code error;
  switch (what) {
    case CommonData::UnitDatabase:
      return fs::is_regular_file(PathOf(folder) / PathOf(unitDatabasePlace), error);
    case CommonData::Logs: return fs::is_directory(PathOf(folder) / PathOf(logPlace), error);
  }
  return false;
}

}  // namespace

DataFolderCandidates FindDataFolderCandidates()
{
  DataFolderCandidates candidates;
  candidates.user = TextOf(BaseFolder("XDG_DATA_HOME", ".local/share"));
  candidates.system = SystemDataFolders();
  candidates.besideProgram = TextOf(ProgramFile().parent_path().parent_path() / "share");
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

std::function<std::u16string(CommonData)> CommonDataFinder()
{
  return [candidates = FindDataFolderCandidates()](CommonData what) {
    return CommonDataFolder(candidates, what);
  };
}

}  // namespace hullwright
