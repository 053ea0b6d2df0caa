#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace hullwright {

/// What the survey package keeps in a common data folder.
enum class CommonData {
  UnitDatabase,  ///< the file `unitDatabasePlace`
  Logs,          ///< the folder `logPlace`
};

// Places in a common data folder.
inline constexpr std::u16string_view unitDatabasePlace = u"Sondaris/Database/geo.db";
inline constexpr std::u16string_view logPlace = u"Sondaris/Tracing";

/// The folders that may hold the survey package's common data.
struct DataFolderCandidates {
  std::string user;                 ///< the user's data folder
  std::vector<std::string> system;  ///< the system's, in order of preference
  std::string besideProgram;        ///< the one that came with the program
};

/// The candidates of this user and this program, by the XDG base directories.
DataFolderCandidates FindDataFolderCandidates();

/// The common data folder to use for one thing: the first candidate that has it, the user's first,
/// then the system's; where none has it, the one beside the program. Each thing is looked for on
/// its own, so a user's folder made for the logs does not hide the database of the system.
std::u16string CommonDataFolder(const DataFolderCandidates& candidates, CommonData what);

/// Finds the common data folder of this user and this program for one thing, as it is at each call.
/// An import adds some ten records to the logs: the candidates themselves are found once.
std::function<std::u16string(CommonData)> CommonDataFinder();

}  // namespace hullwright
