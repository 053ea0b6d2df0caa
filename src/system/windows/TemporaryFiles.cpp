#include "system/TemporaryFiles.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <mutex>
#include <random>
#include <vector>

#include "base/Numbers.h"
#include "base/Paths.h"
#include "base/windows/SharedFile.h"
#include "system/Descriptors.h"

namespace hullwright {
namespace {

namespace fs = std::filesystem;

/// The files that there are now. The system's call at the end of the program comes on a thread of
/// its own.
struct Places {
  std::mutex mutex;
  std::vector<fs::path> paths;
};

Places& AllPlaces()
{
  static Places places;
  return places;
}

void Forget(const fs::path& path)
{
  const std::lock_guard lock(AllPlaces().mutex);
  std::erase(AllPlaces().paths, path);
}

BOOL WINAPI RemoveAndEnd(DWORD)
{
  const std::lock_guard lock(AllPlaces().mutex);
  for (const fs::path& path : AllPlaces().paths) DeleteFileW(path.c_str());
  return FALSE;  // what happens by itself comes next
}

}  // namespace

std::string MakeTemporary(const fs::path& folder)
{
  constexpr int mostTries = 100;
  std::random_device random;
  for (int i = 0; i < mostTries; ++i) {
    const fs::path path = folder / PathOf(".hullwright-" + FormatHex(random(), 8));
    const Descriptor file(OpenShared(path, toMake));
    if (file.Number() < 0 && errno == EEXIST) continue;
    if (file.Number() < 0) return {};
    const std::lock_guard lock(AllPlaces().mutex);
    AllPlaces().paths.push_back(path);
    return TextOf(path);
  }
  return {};
}

void RemoveTemporary(const std::string& path)
{
  if (path.empty()) return;
  DeleteFileW(PathOf(path).c_str());
  Forget(PathOf(path));
}

bool KeepTemporary(const std::string& path, const std::string& name)
{
  constexpr DWORD replacing = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (MoveFileExW(PathOf(path).c_str(), PathOf(name).c_str(), replacing) == 0) {
    errno = LastError();
    return false;
  }
  Forget(PathOf(path));
  return true;
}

fs::path TemporaryFolder()
{
  std::error_code failed;
  const fs::path folder = fs::temp_directory_path(failed);
  return failed ? fs::path(".") : folder;
}

void RemoveTemporaryFilesAtSignals() { SetConsoleCtrlHandler(RemoveAndEnd, TRUE); }

}  // namespace hullwright
