#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/LibraryLoader.h"
#include "platform/MessageBoxes.h"
#include "platform/UnitDatabasePort.h"

namespace hullwright {

/// Path of the unit database in the common data folder; relative for an empty folder.
std::u16string GetDatabasePath(std::u16string_view commonDataFolder);

/// The units of length in the database, in the order of their codes; empty when the library, the
/// file, the table or its rows are missing. Only a missing library is reported in a message. A
/// column that is null keeps the value of the row before.
std::vector<UnitRecord> ReadUnits(ILibraryLoader& loader, IMessageBoxes& messages,
                                  std::u16string_view databasePath);

/// The unit database in the common data folder. One that asks for too much has no units, and is not
/// asked again.
class UnitDatabase : public IUnitDatabase {
public:
  /// `commonDataFolder` returns the folder at each reading, since it may come to be during the run.
  UnitDatabase(ILibraryLoader& loader, IMessageBoxes& messages,
               std::function<std::u16string()> commonDataFolder)
      : loader_(loader), messages_(messages), folder_(std::move(commonDataFolder))
  {
  }

  std::vector<UnitRecord> ReadUnits() override;

  /// Called with the reason when the units can't be read for the first time.
  std::function<void(std::u16string_view reason)> onProblem;

private:
  void Report(std::u16string_view path, std::u16string_view problem);

  ILibraryLoader& loader_;
  IMessageBoxes& messages_;
  std::function<std::u16string()> folder_;
  bool isReported_ = false;
  bool askedTooMuch_ = false;
};

}  // namespace hullwright
