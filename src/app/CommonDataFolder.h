#pragma once

#include <string>
#include <vector>

namespace hullwright {

/// The folders that may hold the survey package's common data.
struct DataFolderCandidates {
  std::string user;                 ///< the user's data folder
  std::vector<std::string> system;  ///< the system's, in order of preference
  std::string besideProgram;        ///< the one that came with the program
};

/// The candidates of this user and this program, by the desktop's base folder rules.
DataFolderCandidates FindDataFolderCandidates();

/// The common data folder: the first candidate with a folder "Sondaris" in it, the user's first,
/// then the system's; where there is none, the one beside the program.
std::u16string CommonDataFolder(const DataFolderCandidates& candidates);

/// The common data folder of this user and this program, as it is now.
std::u16string FindCommonDataFolder();

}  // namespace hullwright
