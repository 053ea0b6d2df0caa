#include "system/UnitDatabase.h"

#include <gmock/gmock.h>

#include "base/Code.h"
#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "support/TempFolder.h"
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

/// Runs statements on a database file with the system's library.
class Database {
public:
  explicit Database(const std::filesystem::path& path)
  {
    const auto open = Entry<int (*)(const char*, sqlite3**)>("sqlite3_open");
    EXPECT_EQ(open(path.c_str(), &handle_), 0);
  }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database()
  {
    Entry<int (*)(sqlite3*)>("sqlite3_close")(handle_);
    libraries_.Free(library_);
  }
  void Run(const char* statement)
  {
    const auto run = Entry<int (*)(sqlite3*, const char*, void*, void*, void*)>("sqlite3_exec");
    EXPECT_EQ(run(handle_, statement, nullptr, nullptr, nullptr), 0) << statement;
  }

private:
  template <class Function>
  Function Entry(const char* name)
  {
    return reinterpret_cast<Function>(libraries_.Resolve(library_, name));
  }

  SharedLibraries libraries_;
  void* library_ = libraries_.Load("libsqlite3.so.0");
  sqlite3* handle_ = nullptr;
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
    Database file(database);
    file.Run("CREATE TABLE tblUnits (NUMID, strUnit, strUnitShort, numDimension)");
    if (*rows != '\0') file.Run((std::string("INSERT INTO tblUnits VALUES ") + rows).c_str());
  }

  std::vector<std::string> Read()
  {
    std::vector<std::string> lines;
    const auto path = GetDatabasePath(WideFromUtf8(folder.Path().string()));
    for (const UnitRecord& unit : ReadUnits(libraries, messages, path)) {
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

TEST_F(Units, LengthsAreReadInTheOrderOfTheirCodes)
{
  MakeTable("(9002, 'foot', 'ft', 1), (9101, 'radian', 'rad', 2), (9001, 'm\u00E8tre', 'm', 1)");
  EXPECT_THAT(Read(), ElementsAre("9001 m\u00E8tre m", "9002 foot ft"));
  EXPECT_THAT(messages.shown, IsEmpty());
  EXPECT_EQ(libraries.freed, 1);
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
  Database(database).Run("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 1 AS numDimension");
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
  const auto units = ReadUnits(libraries, messages, WideFromUtf8(HULLWRIGHT_UNIT_DATABASE));
  ASSERT_EQ(units.size(), 24U);
  EXPECT_EQ(units.front().numId, UnitCode::Metre);
  EXPECT_EQ(units.front().strUnit, u"metre");
  EXPECT_EQ(units.back().numId, UnitCode{9098});
}

}  // namespace
}  // namespace hullwright
