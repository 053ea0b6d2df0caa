#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/LibraryLoader.h"
#include "platform/MessageBoxes.h"

namespace hullwright {

/// One row of the table of length units.
struct UnitRecord {
  std::u16string strUnitShort;
  std::u16string strUnit;
  std::int32_t numId = 0;  ///< EPSG code
};

/// Path of the unit database in the common data folder; relative for an empty folder.
std::u16string GetDatabasePath(std::u16string_view commonDataFolder);

/// The units of length in the database, in the order of their codes; empty when the library, the
/// file, the table or its rows are missing. Only a missing library is told in a message. A column
/// that is null keeps the value of the row before.
std::vector<UnitRecord> ReadUnits(ILibraryLoader& loader, IMessageBoxes& messages,
                                  std::u16string_view databasePath);

}  // namespace hullwright
