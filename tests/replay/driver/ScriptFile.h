#pragma once

#include <filesystem>
#include <vector>

#include "replay/driver/Script.h"

namespace hullwright::replay {

/// Reads the header, if there is one, and the steps of a script, each an object in which numbers
/// stand for all names and texts for the files that they are kept in. An exception with the path
/// and the line of what can't be read.
std::vector<Json> ReadScript(const std::filesystem::path& path);

}  // namespace hullwright::replay
