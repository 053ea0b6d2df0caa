#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hullwright {

/// An environment variable; `fallback` where it is missing or empty.
std::string Environment(const char* name, std::string fallback);

/// A folder of the user's as the XDG base directories have it: what `variable` names, else
/// `belowHome` in the user's home, on Windows the folder of local data in its place. Folders that
/// are not absolute are ignored; empty where neither is left.
std::filesystem::path BaseFolder(const char* variable, const char* belowHome);

/// The folders of all users' data, in order of preference: those that XDG_DATA_DIRS names, else the
/// system's own. What is not absolute is left out.
std::vector<std::string> SystemDataFolders();

/// The file that this program runs from; empty where the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace hullwright
