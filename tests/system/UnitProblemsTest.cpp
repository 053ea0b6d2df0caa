#include <gmock/gmock.h>

#include <filesystem>

#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "support/SqliteConnection.h"
#include "support/System.h"
#include "support/TempFolder.h"
#include "system/SharedLibraries.h"
#include "system/UnitDatabase.h"

// What the user learns of a unit database that can't be read.
namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class UnitProblems : public testing::Test {
protected:
  UnitProblems()
  {
    std::filesystem::create_directories(folder.Path() / "Sondaris" / "Database");
    units.onProblem = [this](std::u16string_view reason) {
      reported.push_back(Utf8FromWide(reason));
    };
  }

  std::filesystem::path Path() const { return folder.Path() / "Sondaris" / "Database" / "geo.db"; }

  /// Makes the database by statements of its language.
  void Make(const char* statements) const { test::SqliteConnection(Path()).Run(statements); }

  test::TempFolder folder;
  KeptMessages messages;
  SharedLibraries loader;
  UnitDatabase units{loader, messages, [this] { return WideFromUtf8(folder.Path().string()); }};
  std::vector<std::string> reported;
};

TEST_F(UnitProblems, AreReportedOnceWithTheirReasonAndThePlace)
{
  folder.Write("Sondaris/Database/geo.db", "this is no database, not even a small one");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  ASSERT_THAT(reported, SizeIs(1));
  EXPECT_EQ(reported[0], "The units of length can't be read from \"" + folder.Path().string() +
                             "/Sondaris/Database/geo.db\": SQLite ERROR #26 (file is not a "
                             "database)");
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(UnitProblems, ADatabaseOfAnotherSchemaIsOneAndReportedOnce)
{
  Make("CREATE TABLE lengths AS SELECT 9001 AS code, 'metre' AS name");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(HasSubstr("no such table: tblUnits")));
}

TEST_F(UnitProblems, OfADatabaseWithUnitsThereAreNone)
{
  Make("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 'metre' AS strUnit, 1 AS numDimension");
  EXPECT_THAT(units.ReadUnits(), SizeIs(1));
  EXPECT_THAT(reported, IsEmpty());
}

TEST_F(UnitProblems, ATableWithoutLengthsIsOne)
{
  Make("CREATE TABLE tblUnits (numId, strUnit, strUnitShort, numDimension)");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(HasSubstr(": it holds no unit of length")));
}

TEST_F(UnitProblems, AnotherProgramThatHasLockedTheDatabaseIsOne)
{
  Make("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 1 AS numDimension");
  const test::SqliteConnection other(Path());
  other.Run("BEGIN EXCLUSIVE");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(EndsWith(": SQLite ERROR #5 (database is locked)")));
}

TEST_F(UnitProblems, ADamagedDatabaseIsOne)
{
  Make("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 'metre' AS strUnit, 1 AS numDimension");
  std::string bytes = folder.Read("Sondaris/Database/geo.db");
  constexpr std::size_t page = 4096;  // the first one has the tables, the second one the units
  ASSERT_EQ(bytes.size(), 2 * page);
  bytes.replace(page, page, page, '\xFF');
  folder.Write("Sondaris/Database/geo.db", bytes);
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(EndsWith(": it is damaged")));
}

TEST_F(UnitProblems, ADatabaseThatGoesOnForEverIsLeftAndNotAskedAgain)
{
  Make(
      "CREATE VIEW tblUnits AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
      "SELECT i AS numId, 'metre' AS strUnit, 1 AS numDimension FROM n");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(HasSubstr(": it gives no end of rows")));
  std::filesystem::remove_all(folder.Path() / "Sondaris");
  std::filesystem::create_directories(folder.Path() / "Sondaris" / "Database");
  Make("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 1 AS numDimension");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, SizeIs(1));
  // Whoever has not asked the one before gets the units of this one.
  EXPECT_THAT(ReadUnits(loader, messages, GetDatabasePath(WideFromUtf8(folder.Path().string()))),
              SizeIs(1));
}

TEST_F(UnitProblems, ValuesThatGrowAreCutOffByTheirLength)
{
  for (const char* const value :
       {"hex(randomblob(900000000))", "zeroblob(900000000)",
        "replace(hex(zeroblob(4000)), '0', 'metre')",
        "(WITH RECURSIVE g(t) AS (SELECT 'metre' UNION ALL SELECT t || t FROM g) "
        "SELECT count(*) FROM g)"}) {
    const std::string view = std::string("CREATE VIEW tblUnits AS SELECT 9001 AS numId, ") + value +
                             " AS strUnit, 1 AS numDimension";
    reported.clear();
    UnitDatabase fresh(loader, messages, [this] { return WideFromUtf8(folder.Path().string()); });
    fresh.onProblem = units.onProblem;
    Make(view.c_str());
    EXPECT_THAT(fresh.ReadUnits(), IsEmpty());
    EXPECT_THAT(reported, ElementsAre(HasSubstr(": it holds a value that is too long"))) << value;
    std::filesystem::remove(folder.Path() / "Sondaris" / "Database" / "geo.db");
  }
}

/// What the program may take more than before, the library's bound and a good deal besides.
#ifdef HULLWRIGHT_SANITIZE
constexpr long mostKilobytes = 600 << 10;  // the sanitizers keep what was given back
#else
constexpr long mostKilobytes = 200 << 10;
#endif

TEST_F(UnitProblems, RowsThatFillTheMemoryEndAtItsBound)
{
  Make(
      "CREATE VIEW tblUnits AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
      "SELECT i AS numId, hex(randomblob(4900)) AS strUnit, 1 AS numDimension FROM n");
  const long before = test::MostMemory();
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(HasSubstr(": it gives no end of rows")));
  EXPECT_LT(test::MostMemory() - before, mostKilobytes);
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, SizeIs(1));
}

TEST_F(UnitProblems, ViewsThatMultiplyEndAtTheBoundOfTheMemory)
{
  std::string views = "CREATE VIEW v0 AS SELECT 9001 AS numId;";
  for (int level = 1; level <= 40; ++level) {
    const std::string below = "(SELECT max(numId) FROM v" + std::to_string(level - 1) + ")";
    views += "CREATE VIEW v" + std::to_string(level) + " AS SELECT " + below + " + " + below +
             " AS numId;";
  }
  views += "CREATE VIEW tblUnits AS SELECT numId, 'metre' AS strUnit, 1 AS numDimension FROM v40;";
  Make(views.c_str());
  const long before = test::MostMemory();
  EXPECT_THAT(units.ReadUnits(), IsEmpty());
  EXPECT_THAT(reported, ElementsAre(HasSubstr(": SQLite ERROR #7 (out of memory)")));
  EXPECT_LT(test::MostMemory() - before, mostKilobytes);
  std::filesystem::remove(Path());
  Make("CREATE TABLE tblUnits AS SELECT 9001 AS numId, 1 AS numDimension");
  EXPECT_THAT(units.ReadUnits(), IsEmpty());  // the database is not asked again
}

}  // namespace
}  // namespace hullwright
