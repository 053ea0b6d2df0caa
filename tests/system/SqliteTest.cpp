#include "system/Sqlite.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "headless/KeptMessages.h"
#include "system/UnitDatabase.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A row of the units; the library gives a missing cell as null.
struct Row {
  std::optional<int> code;
  const char* name = nullptr;
  const char* shortName = nullptr;
  const char* otherName = nullptr;  ///< in a second column of the same name
};

/// A library that answers as it is set to and writes down what it is asked. Its entry points are
/// plain functions, so there is one at a time.
class FakeLibrary : public ILibraryLoader {
public:
  FakeLibrary() { one_ = this; }

  void* Load(const char*) override
  {
    calls.emplace_back("load");
    return this;
  }
  void* Resolve(void*, const char* entryPoint) override
  {
    if (missing == entryPoint) return nullptr;
    const auto found = Functions().find(entryPoint);
    return found == Functions().end() ? reinterpret_cast<void*>(&Unused) : found->second;
  }
  void Free(void*) override { calls.emplace_back("free"); }

  std::string missing;
  int initializeResult = 0;
  int openResult = 0;
  bool opensAHandle = true;
  bool givesAStatement = true;
  bool worksForEver = false;  ///< in its first step, unless it is told to stop
  int piecesOfWork = 0;       ///< in that step
  int stepResult = 101;       ///< behind the rows
  std::vector<Row> rows;
  std::vector<std::string> calls;
  std::vector<std::int64_t> heapLimits;
  std::string query;  ///< the last one, as long as it was stated to be

private:
  static int Said(const char* call, int result)
  {
    one_->calls.emplace_back(call);
    return result;
  }
  static void Unused() { ADD_FAILURE() << "this entry point is never called"; }
  static int Initialize() { return Said("initialize", one_->initializeResult); }
  static int Shutdown() { return Said("shutdown", 0); }
  static int Open(const char*, sqlite3** handle)
  {
    *handle = one_->opensAHandle ? reinterpret_cast<sqlite3*>(one_) : nullptr;
    return Said("open", one_->openResult);
  }
  static int Close(sqlite3*) { return Said("close", 0); }
  static int Prepare(sqlite3*, const char* query, int length, sqlite3_stmt** statement,
                     const char**)
  {
    one_->query.assign(query, static_cast<std::size_t>(length));
    *statement = one_->givesAStatement ? reinterpret_cast<sqlite3_stmt*>(one_) : nullptr;
    one_->next_ = 0;
    return Said("prepare", 0);
  }
  static int Step(sqlite3_stmt*)
  {
    constexpr int interrupted = 9;
    if (one_->worksForEver) {
      while (!one_->isToldToStop_()) ++one_->piecesOfWork;
      return Said("step", interrupted);
    }
    return Said("step", one_->next_++ < one_->rows.size() ? 100 : one_->stepResult);
  }
  static int Finalize(sqlite3_stmt*) { return Said("finalize", 0); }
  static const Row& Current() { return one_->rows.at(one_->next_ - 1); }
  static int ColumnCount(sqlite3_stmt*) { return 4; }
  static const char* ColumnName(sqlite3_stmt*, int column)
  {
    constexpr std::array names = {"numId", "strUnit", "strUnitShort", "STRUNIT"};
    return names.at(static_cast<std::size_t>(column));
  }
  static int ColumnType(sqlite3_stmt* statement, int column)
  {
    if (column == 0) return Current().code ? 1 : 5;
    return ColumnText(statement, column) != nullptr ? 3 : 5;
  }
  static const unsigned char* ColumnText(sqlite3_stmt*, int column)
  {
    const Row& row = Current();
    const std::array texts = {row.name, row.shortName, row.otherName};
    return reinterpret_cast<const unsigned char*>(texts.at(static_cast<std::size_t>(column) - 1));
  }
  static int ColumnInt(sqlite3_stmt*, int) { return Current().code.value_or(0); }
  static void LimitWork(sqlite3*, int, int (*isTooMuch)(void*), void* program)
  {
    one_->isToldToStop_ = [=] { return isTooMuch(program) != 0; };
  }
  static int Limit(sqlite3*, int, int former) { return former; }
  static std::int64_t LimitHeap(std::int64_t bytes)
  {
    one_->heapLimits.push_back(bytes);
    constexpr std::int64_t former = 5000;
    return former;
  }
  static int Execute(sqlite3*, const char*, int (*)(void*, int, char**, char**), void*, char**)
  {
    return 0;
  }
  static const char* ErrorMessage(sqlite3*) { return "it failed"; }
  static int ErrorCode(sqlite3*) { return 14; }

  template <class Function>
  static void* Address(Function* function)
  {
    return reinterpret_cast<void*>(function);
  }
  static const std::map<std::string, void*>& Functions()
  {
    static const std::map<std::string, void*> functions = {
        {"sqlite3_initialize", Address(Initialize)},
        {"sqlite3_shutdown", Address(Shutdown)},
        {"sqlite3_open", Address(Open)},
        {"sqlite3_close", Address(Close)},
        {"sqlite3_prepare_v2", Address(Prepare)},
        {"sqlite3_step", Address(Step)},
        {"sqlite3_finalize", Address(Finalize)},
        {"sqlite3_column_count", Address(ColumnCount)},
        {"sqlite3_column_name", Address(ColumnName)},
        {"sqlite3_column_type", Address(ColumnType)},
        {"sqlite3_column_text", Address(ColumnText)},
        {"sqlite3_column_int", Address(ColumnInt)},
        {"sqlite3_errmsg", Address(ErrorMessage)},
        {"sqlite3_errcode", Address(ErrorCode)},
        {"sqlite3_progress_handler", Address(LimitWork)},
        {"sqlite3_limit", Address(Limit)},
        {"sqlite3_hard_heap_limit64", Address(LimitHeap)},
        {"sqlite3_exec", Address(Execute)},
    };
    return functions;
  }

  static inline FakeLibrary* one_ = nullptr;
  std::function<bool()> isToldToStop_;
  std::size_t next_ = 0;
};

class SqliteBinding : public testing::Test {
protected:
  FakeLibrary library;
  KeptMessages messages;
};

TEST_F(SqliteBinding, ALibraryThatFailsToInitialiseGivesNoUnits)
{
  library.initializeResult = 7;
  library.rows = {{9001, "metre", "m"}};
  EXPECT_THAT(ReadUnits(library, messages, u"geo.db"), IsEmpty());
  EXPECT_THAT(library.calls, ElementsAre("load", "initialize", "shutdown", "free"));
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(SqliteBinding, UnloadingShutsTheLibraryDownOnceAndFreesIt)
{
  {
    CSQLite sqlite(library, messages);
    ASSERT_EQ(sqlite.Load(), 0);
    sqlite.Unload();
    EXPECT_EQ(sqlite.Open(u"geo.db"), -1);
    EXPECT_THAT(library.calls, ElementsAre("load", "initialize", "shutdown", "free"));
  }
  EXPECT_THAT(library.calls, ElementsAre("load", "initialize", "shutdown", "free"));
}

TEST_F(SqliteBinding, TheMemoryOfTheLibraryIsBoundedWhileADatabaseIsOpen)
{
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  EXPECT_THAT(library.heapLimits, ElementsAre(64 << 20));
  sqlite.Close();
  EXPECT_THAT(library.heapLimits, ElementsAre(64 << 20, 5000));
  sqlite.Unload();
  EXPECT_THAT(library.heapLimits, ElementsAre(64 << 20, 5000));
}

TEST_F(SqliteBinding, ALibraryThatWorksWithoutAnEndIsToldToStop)
{
  library.worksForEver = true;
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  EXPECT_EQ(sqlite.SelectUnits(), -1);
  EXPECT_EQ(library.piecesOfWork, 20'000);
  EXPECT_EQ(sqlite.Problem(), u"it gives no end of rows");
}

TEST_F(SqliteBinding, ALibraryWithoutBoundsGivesItsUnits)
{
  for (const char* const missing :
       {"sqlite3_limit", "sqlite3_hard_heap_limit64", "sqlite3_progress_handler"}) {
    library.missing = missing;
    library.rows = {{9001, "metre", "m"}};
    EXPECT_THAT(ReadUnits(library, messages, u"geo.db"), testing::SizeIs(1)) << missing;
  }
}

TEST_F(SqliteBinding, AFailedOpenClosesTheHandleAndForgetsIt)
{
  library.openResult = 14;
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  library.calls.clear();
  EXPECT_EQ(sqlite.Open(u"geo.db"), -1);
  EXPECT_EQ(sqlite.lastError, u"SQLite ERROR #14 (it failed)");
  EXPECT_THAT(library.calls, ElementsAre("open", "close"));
  EXPECT_EQ(sqlite.SelectUnits(), -1);
  sqlite.Close();
  EXPECT_THAT(library.calls, ElementsAre("open", "close"));
}

TEST_F(SqliteBinding, AnOpenWithoutAHandleFailsWithoutAText)
{
  library.opensAHandle = false;
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  library.calls.clear();
  for (const int result : {0, 7}) {
    library.openResult = result;
    EXPECT_EQ(sqlite.Open(u"geo.db"), -1);
  }
  EXPECT_EQ(sqlite.lastError, u"");
  EXPECT_THAT(library.calls, ElementsAre("open", "open"));
}

TEST_F(SqliteBinding, AQueryWithoutAStatementFailsWithTheTextOfTheLibrary)
{
  library.givesAStatement = false;
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  library.calls.clear();
  EXPECT_EQ(sqlite.SelectUnits(), -1);
  EXPECT_EQ(sqlite.lastError, u"SQLite ERROR #14 (it failed)");
  EXPECT_THAT(library.calls, ElementsAre("prepare"));
}

TEST_F(SqliteBinding, OfTwoColumnsOfOneNameTheFirstCountsAlsoWhereItIsNull)
{
  library.rows = {{9001, "metre", "m", "other"}, {9002, nullptr, "ft", "other"}};
  const auto units = ReadUnits(library, messages, u"geo.db");
  ASSERT_EQ(units.size(), 2U);
  EXPECT_EQ(units[0].strUnit, u"metre");
  EXPECT_EQ(units[1].strUnit, u"metre");  // what the row before has left
  EXPECT_EQ(units[1].strUnitShort, u"ft");
}

TEST_F(SqliteBinding, AReadFinalisesItsQueryAtTheEndThenClosesAndUnloads)
{
  library.rows = {{9001, "metre", "m"}, {9002, "foot", "ft"}};
  EXPECT_EQ(ReadUnits(library, messages, u"geo.db").size(), 2U);
  EXPECT_THAT(library.calls, ElementsAre("load", "initialize", "open", "prepare", "step", "step",
                                         "step", "finalize", "close", "shutdown", "free"));
}

TEST_F(SqliteBinding, BehindTheLastRowTheLibraryIsNotAskedAgain)
{
  library.rows = {{9001, "metre", "m"}};
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  ASSERT_EQ(sqlite.SelectUnits(), 1);
  library.calls.clear();
  EXPECT_FALSE(sqlite.Next());
  EXPECT_THAT(library.calls, ElementsAre("step", "finalize"));
  EXPECT_FALSE(sqlite.Next());
  EXPECT_EQ(library.calls.size(), 2U);
}

TEST_F(SqliteBinding, AQueryThatIsStillOpenIsFinalisedBeforeItsDatabaseCloses)
{
  library.rows = {{9001, "metre", "m"}, {9002, "foot", "ft"}};
  {
    CSQLite sqlite(library, messages);
    ASSERT_EQ(sqlite.Load(), 0);
    ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
    ASSERT_EQ(sqlite.SelectUnits(), 1);
    library.calls.clear();
  }
  EXPECT_THAT(library.calls, ElementsAre("finalize", "close", "shutdown", "free"));
}

TEST_F(SqliteBinding, TheQueryIsPassedWithItsLength)
{
  ReadUnits(library, messages, u"geo.db");
  EXPECT_EQ(library.query, "SELECT * FROM tblUnits WHERE numDimension = 1 ORDER BY numId");
}

TEST_F(SqliteBinding, ACodeThatIsNullKeepsThatOfTheRowBefore)
{
  // The library puts rows without a code first, where 0 is what there was; only one that sorts in
  // another way has them behind a code.
  library.rows = {{std::nullopt, "nameless", "?"}, {9002, "foot", "ft"}, {std::nullopt, "x", "y"}};
  const auto units = ReadUnits(library, messages, u"geo.db");
  ASSERT_EQ(units.size(), 3U);
  EXPECT_EQ(units[0].numId, UnitCode{0});
  EXPECT_EQ(units[1].numId, UnitCode{9002});
  EXPECT_EQ(units[2].numId, UnitCode{9002});
  EXPECT_EQ(units[2].strUnit, u"x");
}

TEST_F(SqliteBinding, AStepWithoutARowEndsTheQueryAndLeavesTheLastError)
{
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  for (const int result : {101, 1, 0}) {
    library.stepResult = result;
    library.calls.clear();
    sqlite.lastError = u"before";
    EXPECT_EQ(sqlite.SelectUnits(), -1);
    EXPECT_EQ(sqlite.lastError, u"before");
    EXPECT_THAT(library.calls, ElementsAre("prepare", "step", "finalize"));
    EXPECT_FALSE(sqlite.Next());
  }
}

TEST_F(SqliteBinding, AStepWithoutARowSaysWhyInWords)
{
  const std::map<int, std::u16string> problems = {{101, u"it holds no unit of length"},
                                                  {5, u"another program has locked it"},
                                                  {11, u"it is damaged"},
                                                  {10, u"SQLite ERROR #10"}};
  for (const auto& [result, problem] : problems) {
    library.stepResult = result;
    CSQLite database(library, messages);
    ASSERT_EQ(database.Load(), 0);
    ASSERT_EQ(database.Open(u"geo.db"), 0);
    EXPECT_EQ(database.SelectUnits(), -1);
    EXPECT_EQ(database.Problem(), problem) << result;
  }
}

TEST_F(SqliteBinding, AMissingEntryPointKeepsTheLibraryUntilTheEnd)
{
  library.missing = "sqlite3_column_type";
  {
    CSQLite sqlite(library, messages);
    EXPECT_EQ(sqlite.Load(), -1);
    EXPECT_EQ(sqlite.Load(), -1);
    EXPECT_EQ(sqlite.Open(u"geo.db"), -1);
    EXPECT_THAT(library.calls, ElementsAre("load"));
  }
  EXPECT_THAT(library.calls, ElementsAre("load", "shutdown", "free"));
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(SqliteBinding, WithoutItsShutdownALibraryIsFreedAllTheSame)
{
  library.missing = "sqlite3_shutdown";
  EXPECT_THAT(ReadUnits(library, messages, u"geo.db"), IsEmpty());
  EXPECT_THAT(library.calls, ElementsAre("load", "free"));
}

TEST_F(SqliteBinding, ASecondLoadFailsAndDoesNothing)
{
  library.rows = {{9001, "metre", "m"}};
  CSQLite sqlite(library, messages);
  ASSERT_EQ(sqlite.Load(), 0);
  ASSERT_EQ(sqlite.Open(u"geo.db"), 0);
  library.calls.clear();
  EXPECT_EQ(sqlite.Load(), -1);
  EXPECT_THAT(library.calls, IsEmpty());
  EXPECT_EQ(sqlite.SelectUnits(), 1);
}

}  // namespace
}  // namespace hullwright
