#include "system/UnitDatabase.h"

#include "model/Units.h"
#include "system/CommonDataFolder.h"
#include "system/Sqlite.h"

namespace hullwright {

std::u16string GetDatabasePath(std::u16string_view commonDataFolder)
{
  std::u16string path(commonDataFolder);
  if (!path.empty() && !path.ends_with(u'/')) path += u'/';
  path += unitDatabasePlace;
  return path;
}

std::vector<UnitRecord> ReadUnits(ILibraryLoader& loader, IMessageBoxes& messages,
                                  std::u16string_view databasePath)
{
  std::vector<UnitRecord> units;
  CSQLite database(loader, messages);
  if (database.Load() != 0 || database.Open(databasePath) != 0) return units;
  if (database.SelectUnits() != 1) return units;
  UnitRecord row;
  std::int32_t code = 0;
  do {
    database.GetInt("numId", code);
    row.numId = UnitCode{code};
    database.GetText("strUnit", row.strUnit);
    database.GetText("strUnitShort", row.strUnitShort);
    units.push_back(row);
  } while (database.Next());
  return units;
}

}  // namespace hullwright
