#include "system/Sqlite.h"

#include "base/Text.h"
#include "system/SharedLibraries.h"

namespace hullwright {
namespace {

constexpr std::string_view query = "SELECT * FROM tblUnits WHERE numDimension = 1 ORDER BY numId";

// Codes of the library's interface.
constexpr int resultOk = 0;
constexpr int resultNoMemory = 7;
constexpr int resultTooLong = 18;
constexpr int resultRow = 100;
constexpr int resultDone = 101;
constexpr int typeNull = 5;

// A query of the units takes some ten steps of the library's machine a row. This many take it about
// a second, or longer where functions work on long values.
constexpr int stepsOfAPiece = 1'000;
constexpr int mostPieces = 20'000;
constexpr std::clock_t longestWork = std::clock_t{2} * CLOCKS_PER_SEC;

// What a query may take of memory: all of it, one value, and the program that it becomes.
constexpr std::int64_t largestHeap = std::int64_t{64} << 20;
constexpr int longestValue = 10'000;
constexpr int longestProgram = 100'000;

// Whichever bound is met first.
constexpr const char16_t* noEnd = u"it gives no end of rows";

/// Why a step gave no row before the end of the rows.
std::u16string StepProblem(int result)
{
  constexpr int resultBusy = 5;
  constexpr int resultCorrupt = 11;
  switch (result) {
    case resultBusy: return u"another program has locked it";
    case resultCorrupt: return u"it is damaged";
    case resultNoMemory: return noEnd;
    case resultTooLong: return u"it holds a value that is too long";
    default: return u"SQLite ERROR #" + WideFromAscii(std::to_string(result));
  }
}

}  // namespace

CSQLite::~CSQLite()
{
  Close();
  Unload();
}

int CSQLite::Load()
{
  if (library_ != nullptr) return -1;
  library_ = loader_.Load(sqliteLibrary);
  if (library_ == nullptr) {
    messages_.ShowMessage(u"Failed to load sqlite3.dll");
    return -1;
  }
  bound_ = Bind();
  if (!bound_) return -1;
  BindLimits();
  return call_.initialize() == resultOk ? 0 : -1;
}

bool CSQLite::Bind()
{
  const auto bind = [this](auto& entryPoint, const char* name) {
    entryPoint = reinterpret_cast<std::remove_reference_t<decltype(entryPoint)>>(
        loader_.Resolve(library_, name));
    return entryPoint != nullptr;
  };
  // Bound with the others and never called: a library without them is not the one that is meant.
  void (*unused)() = nullptr;
  return bind(call_.initialize, "sqlite3_initialize") && bind(call_.shutdown, "sqlite3_shutdown") &&
         bind(call_.open, "sqlite3_open") && bind(call_.close, "sqlite3_close") &&
         bind(call_.prepare, "sqlite3_prepare_v2") && bind(call_.step, "sqlite3_step") &&
         bind(call_.finalize, "sqlite3_finalize") &&
         bind(call_.columnCount, "sqlite3_column_count") &&
         bind(call_.columnName, "sqlite3_column_name") &&
         bind(call_.columnType, "sqlite3_column_type") &&
         bind(call_.columnText, "sqlite3_column_text") &&
         bind(call_.columnInt, "sqlite3_column_int") && bind(unused, "sqlite3_column_double") &&
         bind(call_.errorMessage, "sqlite3_errmsg") && bind(call_.errorCode, "sqlite3_errcode") &&
         bind(call_.execute, "sqlite3_exec") && bind(unused, "sqlite3_last_insert_rowid");
}

void CSQLite::BindLimits()
{
  const auto bind = [this](auto& entryPoint, const char* name) {
    entryPoint = reinterpret_cast<std::remove_reference_t<decltype(entryPoint)>>(
        loader_.Resolve(library_, name));
  };
  bind(call_.progressHandler, "sqlite3_progress_handler");
  bind(call_.limit, "sqlite3_limit");
  bind(call_.hardHeapLimit, "sqlite3_hard_heap_limit64");
}

int CSQLite::Open(std::u16string_view path)
{
  Close();
  if (!bound_) return -1;
  if (call_.open(Utf8FromWide(path).c_str(), &database_) == resultOk && database_ != nullptr) {
    LimitWork();
    LimitMemory();
    return 0;
  }
  if (database_ != nullptr) KeepError();
  Close();
  return -1;
}

void CSQLite::LimitWork()
{
  pieces_ = 0;
  begin_ = std::clock();
  askedTooMuch_ = false;
  if (call_.progressHandler != nullptr) {
    call_.progressHandler(database_, stepsOfAPiece, IsTooMuchWork, this);
  }
}

void CSQLite::LimitMemory()
{
  constexpr int limitOfProgram = 5;
  // What is sorted stays within the bounds of the memory, instead of filling the disk.
  call_.execute(database_, "PRAGMA temp_store = MEMORY", nullptr, nullptr, nullptr);
  if (call_.limit != nullptr) call_.limit(database_, limitOfProgram, longestProgram);
  if (call_.hardHeapLimit != nullptr) formerHeapLimit_ = call_.hardHeapLimit(largestHeap);
}

void CSQLite::LimitValues()
{
  constexpr int limitOfLength = 0;
  if (call_.limit != nullptr) call_.limit(database_, limitOfLength, longestValue);
}

void CSQLite::EndMemoryLimit()
{
  // Others of the process may use the library.
  if (formerHeapLimit_) call_.hardHeapLimit(*formerHeapLimit_);
  formerHeapLimit_.reset();
}

void CSQLite::NoteExcess(int result)
{
  if (result == resultNoMemory || result == resultTooLong) askedTooMuch_ = true;
}

int CSQLite::IsTooMuchWork(void* self)
{
  auto& sqlite = *static_cast<CSQLite*>(self);
  sqlite.askedTooMuch_ =
      ++sqlite.pieces_ > mostPieces || std::clock() - sqlite.begin_ > longestWork;
  return sqlite.askedTooMuch_ ? 1 : 0;
}

int CSQLite::SelectUnits()
{
  if (database_ == nullptr) return -1;
  FinishQuery();
  problem_.clear();
  const int prepared =
      call_.prepare(database_, query.data(), static_cast<int>(query.size()), &statement_, nullptr);
  if (prepared != resultOk || statement_ == nullptr) {
    KeepError();
    NoteExcess(prepared);
    return -1;
  }
  LimitValues();  // the text of a table or view may be longer
  return StepToRow(u"it holds no unit of length") ? 1 : -1;
}

bool CSQLite::StepToRow(std::u16string_view atEnd)
{
  const int result = call_.step(statement_);
  if (result == resultRow) return true;
  if (askedTooMuch_) {
    problem_ = noEnd;
  } else {
    problem_ = result == resultDone ? std::u16string(atEnd) : StepProblem(result);
  }
  NoteExcess(result);
  FinishQuery();
  return false;
}

void CSQLite::KeepError()
{
  lastError = u"SQLite ERROR #" + WideFromAscii(std::to_string(call_.errorCode(database_))) +
              u" (" + WideFromUtf8(call_.errorMessage(database_)) + u")";
  problem_ = lastError;
}

std::optional<int> CSQLite::FindColumn(std::string_view column) const
{
  if (statement_ == nullptr) return std::nullopt;
  const int count = call_.columnCount(statement_);
  for (int i = 0; i < count; ++i) {
    const char* const name = call_.columnName(statement_, i);
    if (name == nullptr || !EqualButForCase(name, column)) continue;
    return call_.columnType(statement_, i) == typeNull ? std::nullopt : std::optional(i);
  }
  return std::nullopt;
}

void CSQLite::GetInt(std::string_view column, std::int32_t& value) const
{
  if (const auto index = FindColumn(column)) value = call_.columnInt(statement_, *index);
}

void CSQLite::GetText(std::string_view column, std::u16string& value) const
{
  const auto index = FindColumn(column);
  if (!index) return;
  const auto* const text = reinterpret_cast<const char*>(call_.columnText(statement_, *index));
  if (text != nullptr) value = IsUtf8(text) ? WideFromUtf8(text) : WideFromAnsi(text);
}

bool CSQLite::Next()
{
  // The end of the rows behind one of them is no problem.
  return statement_ != nullptr && StepToRow({});
}

void CSQLite::FinishQuery()
{
  if (statement_ != nullptr) call_.finalize(statement_);
  statement_ = nullptr;
}

void CSQLite::Close()
{
  FinishQuery();
  if (database_ != nullptr) call_.close(database_);
  database_ = nullptr;
  EndMemoryLimit();
}

void CSQLite::Unload()
{
  if (library_ == nullptr) return;
  if (call_.shutdown != nullptr) call_.shutdown();
  loader_.Free(library_);
  library_ = nullptr;
  call_ = {};
  bound_ = false;
}

}  // namespace hullwright
