#pragma once

#include <string>

namespace hullwright {

/// Version of the SQLite library that the program finds when it runs, such as "3.40.1"; empty where
/// there is none.
std::string SqliteVersion();

}  // namespace hullwright
