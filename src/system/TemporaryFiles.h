#pragma once

#include <filesystem>
#include <string>

/// Files that exist for a moment only. They are known here, so that a signal that ends the program
/// can take them along.
namespace hullwright {

/// Makes an empty file with a name of its own in a folder; its path, empty with `errno` where that
/// fails.
std::string MakeTemporary(const std::filesystem::path& folder);

/// Removes such a file; an empty path is none.
void RemoveTemporary(const std::string& path);

/// Gives such a file the name that it is to keep, replacing what bears it. False with `errno` where
/// that fails; the file is still a temporary one then.
bool KeepTemporary(const std::string& path, const std::string& name);

/// Where temporary files lie that belong to no folder of the user.
std::filesystem::path TemporaryFolder();

/// From now on signals that end the program remove its temporary files first. Those that the
/// program was started to ignore stay ignored.
void RemoveTemporaryFilesAtSignals();

}  // namespace hullwright
