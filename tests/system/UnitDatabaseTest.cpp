#include "system/UnitDatabase.h"

#include <gmock/gmock.h>

#include "base/Code.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "support/SqliteConnection.h"
#include "support/TempFolder.h"
#include "system/LibraryVersions.h"
#include "system/SharedLibraries.h"
#include "system/Sqlite.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The system's loader with something missing.
class PoorLibraries : public ILibraryLoader {
public:
  void* Load(const char* name) override { return hasLibrary ? real.Load(name) : nullptr; }
  void* Resolve(void* library, const char* entryPoint) override
  {
    asked.emplace_back(entryPoint);
    return missing == entryPoint ? nullptr : real.Resolve(library, entryPoint);
  }
  void Free(void* library) override
  {
    ++freed;
    real.Free(library);
  }

  SharedLibraries real;
  bool hasLibrary = true;
  std::string missing;
  std::vector<std::string> asked;
  int freed = 0;
};

class Units : public testing::Test {
protected:
  Units()
  {
    std::filesystem::create_directories(folder.Path() / "Sondaris" / "Database");
    database = folder.Path() / "Sondaris" / "Database" / "geo.db";
  }

  void MakeTable(const char* rows)
  {
    const test::SqliteConnection file(database);
    file.Run("CREATE TABLE tblUnits (NUMID, strUnit, strUnitShort, numDimension)");
    if (*rows != '\0') file.Run((std::string("INSERT INTO tblUnits VALUES ") + rows).c_str());
  }

  std::vector<std::string> Read()
  {
    const auto path = GetDatabasePath(WideFromUtf8(folder.Path().string()));
    return Lines(ReadUnits(libraries, messages, path));
  }

  /// Code, name and short name of each unit.
  static std::vector<std::string> Lines(const std::vector<UnitRecord>& units)
  {
    std::vector<std::string> lines;
    for (const UnitRecord& unit : units) {
      lines.push_back(std::to_string(NumberOf(unit.numId)) + " " + Utf8FromWide(unit.strUnit) +
                      " " + Utf8FromWide(unit.strUnitShort));
    }
    return lines;
  }

  test::TempFolder folder;
  std::filesystem::path database;
  KeptMessages messages;
  PoorLibraries libraries;
};

TEST(DatabasePath, JoinsItsComponentsWithoutDoublingSeparators)
{
  EXPECT_EQ(GetDatabasePath(u"/data"), u"/data/Sondaris/Database/geo.db");
  EXPECT_EQ(GetDatabasePath(u"/data/"), u"/data/Sondaris/Database/geo.db");
  EXPECT_EQ(GetDatabasePath(u""), u"Sondaris/Database/geo.db");
}

TEST(SqliteVersion, IsThatOfTheLibraryThatIsFound)
{
  EXPECT_THAT(SqliteVersion(), testing::StartsWith("3."));
}

TEST_F(Units, LengthsAreReadInTheOrderOfTheirCodes)
{
  MakeTable("(9002, 'foot', 'ft', 1), (9101, 'radian', 'rad', 2), (9001, 'm\u00E8tre', 'm', 1)");
  EXPECT_THAT(Read(), ElementsAre("9001 m\u00E8tre m", "9002 foot ft"));
  EXPECT_THAT(messages.shown, IsEmpty());
  EXPECT_EQ(libraries.freed, 1);
}

TEST_F(Units, ADatabaseIsFoundInAFolderOfAnyName)
{
  MakeTable("(9001, 'metre', 'm', 1)");
  for (const char16_t* const name : {u"Ordner \u00E4", u"\u6D4B \U0001F6A2"}) {
    const std::u16string path = folder.File(Utf8FromWide(name));
    std::filesystem::create_directories(PathOf(path));
    std::filesystem::copy(database, PathOf(path + u"/geo.db"));
    const auto units = ReadUnits(libraries, messages, path + u"/geo.db");
    ASSERT_EQ(units.size(), 1U) << Utf8FromWide(name);
    EXPECT_EQ(units.front().strUnit, u"metre");
  }
}

TEST_F(Units, AColumnThatIsNullKeepsTheValueOfTheRowBefore)
{
  MakeTable("(9001, NULL, 'm', 1), (9002, 'foot', 'ft', 1), (9003, NULL, NULL, 1)");
  EXPECT_THAT(Read(), ElementsAre("9001  m", "9002 foot ft", "9003 foot ft"));
}

TEST_F(Units, TextThatIsNotUtf8IsOfTheAnsiCodePage)
{
  MakeTable("(9001, CAST(x'6DE8747265' AS TEXT), 'm', 1)");
  EXPECT_THAT(Read(), ElementsAre("9001 m\u00E8tre m"));
}

TEST_F(Units, AMissingColumnLeavesItsValueEmpty)
{
  test::SqliteConnection(database).Run(
      "CREATE TABLE tblUnits AS SELECT 9001 AS numId, 1 AS numDimension");
  EXPECT_THAT(Read(), ElementsAre("9001  "));
}

TEST_F(Units, WithoutTheLibraryThereAreNoUnitsAndAMessageEachTime)
{
  libraries.hasLibrary = false;
  EXPECT_THAT(Read(), IsEmpty());
  EXPECT_THAT(Read(), IsEmpty());
  EXPECT_THAT(messages.shown,
              ElementsAre(u"Failed to load sqlite3.dll", u"Failed to load sqlite3.dll"));
}

TEST_F(Units, EntryPointsAreResolvedInOrderUpToTheFirstThatIsMissing)
{
  MakeTable("(9001, 'metre', 'm', 1)");
  EXPECT_THAT(Read(), ElementsAre("9001 metre m"));
  EXPECT_THAT(
      libraries.asked,
      ElementsAre("sqlite3_initialize", "sqlite3_shutdown", "sqlite3_open", "sqlite3_close",
                  "sqlite3_prepare_v2", "sqlite3_step", "sqlite3_finalize", "sqlite3_column_count",
                  "sqlite3_column_name", "sqlite3_column_type", "sqlite3_column_text",
                  "sqlite3_column_int", "sqlite3_column_double", "sqlite3_errmsg",
                  "sqlite3_errcode", "sqlite3_exec", "sqlite3_last_insert_rowid",
                  "sqlite3_progress_handler", "sqlite3_limit", "sqlite3_hard_heap_limit64"));
  std::vector<std::string> all = libraries.asked;
  all.resize(all.size() - 3);  // without the others nothing but limits are missing
  for (std::size_t i = 0; i < all.size(); ++i) {
    libraries.asked.clear();
    libraries.missing = all[i];
    EXPECT_THAT(Read(), IsEmpty()) << all[i];
    EXPECT_EQ(libraries.asked.size(), i + 1) << all[i];
  }
  EXPECT_THAT(messages.shown, IsEmpty());
  EXPECT_EQ(libraries.freed, static_cast<int>(all.size()) + 1);
}

TEST_F(Units, AMissingDatabaseGivesNoUnitsAndLeavesAnEmptyFile)
{
  EXPECT_THAT(Read(), IsEmpty());
  EXPECT_EQ(std::filesystem::file_size(database), 0U);
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(Units, AMissingFolderATableWithoutRowsAndWhatIsNoDatabaseGiveNoUnits)
{
  MakeTable("");
  EXPECT_THAT(Read(), IsEmpty());
  folder.Write("Sondaris/Database/geo.db", "this is no database, not even a small one");
  EXPECT_THAT(Read(), IsEmpty());
  std::filesystem::remove_all(folder.Path() / "Sondaris");
  EXPECT_THAT(Read(), IsEmpty());
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(Units, ErrorsOfTheDatabaseAreKeptAsText)
{
  CSQLite sqlite(libraries, messages);
  EXPECT_EQ(sqlite.Open(u"x"), -1);
  ASSERT_EQ(sqlite.Load(), 0);
  EXPECT_EQ(sqlite.Load(), -1);
  EXPECT_EQ(sqlite.SelectUnits(), -1);
  EXPECT_EQ(sqlite.Open(u"/nowhere/at/all/geo.db"), -1);
  EXPECT_EQ(sqlite.lastError, u"SQLite ERROR #14 (unable to open database file)");
  ASSERT_EQ(sqlite.Open(WideFromUtf8(database.string())), 0);
  EXPECT_EQ(sqlite.SelectUnits(), -1);
  EXPECT_EQ(sqlite.lastError, u"SQLite ERROR #1 (no such table: tblUnits)");
  EXPECT_FALSE(sqlite.Next());
}

TEST_F(Units, TheDatabaseOfTheProgramHasTheMetreAndEveryUnitWithAFactor)
{
  EXPECT_THAT(
      Lines(ReadUnits(libraries, messages, WideFromUtf8(HULLWRIGHT_UNIT_DATABASE))),
      ElementsAre("9001 metre m", "9002 foot ft", "9003 US survey foot ftUS",
                  "9005 Clarke's foot ftCla", "9031 German legal metre GLM",
                  "9033 US survey chain chUS", "9034 US survey link lkUS",
                  "9035 US survey mile miUS", "9036 kilometre km", "9037 Clarke's yard ydCla",
                  "9038 Clarke's chain chCla", "9039 Clarke's link lkCla",
                  "9040 British yard (Sears 1922) ydSe", "9041 British foot (Sears 1922) ftSe",
                  "9042 British chain (Sears 1922) chSe", "9043 British link (Sears 1922) lkSe",
                  "9062 British chain (Benoit 1895 B) chBnB", "9080 Indian foot ftInd",
                  "9084 Indian yard ydInd", "9093 Statute mile mi", "9094 Gold Coast foot ftGC",
                  "9095 British foot (1936) ftBr(36)", "9097 chain ch", "9098 link lk"));
}

}  // namespace
}  // namespace hullwright
