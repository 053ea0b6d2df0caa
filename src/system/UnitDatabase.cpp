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

namespace {

std::vector<UnitRecord> ReadWith(CSQLite& database, std::u16string_view databasePath)
{
  std::vector<UnitRecord> units;
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
  if (database.AskedTooMuch()) units.clear();
  return units;
}

}  // namespace

std::vector<UnitRecord> ReadUnits(ILibraryLoader& loader, IMessageBoxes& messages,
                                  std::u16string_view databasePath)
{
  CSQLite database(loader, messages);
  return ReadWith(database, databasePath);
}

std::vector<UnitRecord> UnitDatabase::ReadUnits()
{
  if (askedTooMuch_) return {};
  const std::u16string path = GetDatabasePath(folder_());
  CSQLite database(loader_, messages_);
  std::vector<UnitRecord> units = ReadWith(database, path);
  askedTooMuch_ = database.AskedTooMuch();
  Report(path, database.Problem());
  return units;
}

void UnitDatabase::Report(std::u16string_view path, std::u16string_view problem)
{
  if (problem.empty() || isReported_ || !onProblem) return;
  isReported_ = true;
  onProblem(u"The units of length can't be read from \"" + std::u16string(path) + u"\": " +
            std::u16string(problem));
}

}  // namespace hullwright
