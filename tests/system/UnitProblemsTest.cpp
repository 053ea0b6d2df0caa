#include <gmock/gmock.h>

#include <filesystem>

#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "support/SqliteConnection.h"
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
}

}  // namespace
}  // namespace hullwright
