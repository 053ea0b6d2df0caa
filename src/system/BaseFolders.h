#pragma once

#include <filesystem>
#include <string>

namespace hullwright {

/// An environment variable; `fallback` where it is missing or empty.
std::string Environment(const char* name, std::string fallback);

/// A folder of the user's by the desktop's base folder rules: what `variable` names, else
/// `belowHome` in the user's home. Folders that are not absolute are ignored; empty where neither
/// is left.
std::filesystem::path BaseFolder(const char* variable, const char* belowHome);

}  // namespace hullwright
