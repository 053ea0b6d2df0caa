#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "platform/LibraryLoader.h"
#include "platform/MessageBoxes.h"

// The library's own handles; only their addresses are passed on.
struct sqlite3;
struct sqlite3_stmt;

namespace hullwright {

/// Read-only way to the unit database. Binds to the SQLite library at run time: load, open, select,
/// then read columns of the current row until `Next` is false; close, unload. Whatever is left open
/// is closed with the object. Results are 0 for success and -1 for failure.
class CSQLite {
public:
  CSQLite(ILibraryLoader& loader, IMessageBoxes& messages) : loader_(loader), messages_(messages) {}
  CSQLite(const CSQLite&) = delete;
  CSQLite& operator=(const CSQLite&) = delete;
  virtual ~CSQLite();

  /// Loads the library and binds all entry points. A library that is not there is reported in a
  /// message; a missing entry point is not. -1 as well when a library is loaded already.
  int Load();

  /// Opens the database; the path goes to the library as UTF-8.
  int Open(std::u16string_view path);

  /// Runs the one query of the program. 1 with the first row current; -1 also when there is no row.
  int SelectUnits();

  /// A column of the current row, by its name in either case. Text that is not UTF-8 is taken for
  /// the ANSI code page. A column that is missing or null leaves `value` as it is.
  void GetInt(std::string_view column, std::int32_t& value) const;
  void GetText(std::string_view column, std::u16string& value) const;

  /// Steps to the next row; at the end the query is finished and the result is false.
  bool Next();

  void Close();
  void Unload();

  /// Why the last reading ended before the last row, or without one; empty where it did not.
  const std::u16string& Problem() const { return problem_; }

  /// Whether it ended because the database asked for too much, as a view can: work without an end,
  /// or more memory than any units take.
  bool AskedTooMuch() const { return askedTooMuch_; }

  std::u16string lastError;  ///< text of the last failed call

private:
  struct EntryPoints {
    int (*initialize)();
    int (*shutdown)();
    int (*open)(const char*, sqlite3**);
    int (*close)(sqlite3*);
    int (*prepare)(sqlite3*, const char*, int, sqlite3_stmt**, const char**);
    int (*step)(sqlite3_stmt*);
    int (*finalize)(sqlite3_stmt*);
    int (*columnCount)(sqlite3_stmt*);
    const char* (*columnName)(sqlite3_stmt*, int);
    int (*columnType)(sqlite3_stmt*, int);
    const unsigned char* (*columnText)(sqlite3_stmt*, int);
    int (*columnInt)(sqlite3_stmt*, int);
    const char* (*errorMessage)(sqlite3*);
    int (*errorCode)(sqlite3*);
    int (*execute)(sqlite3*, const char*, int (*)(void*, int, char**, char**), void*, char**);

    // What limits a query; a library may be without.
    void (*progressHandler)(sqlite3*, int, int (*)(void*), void*);
    int (*limit)(sqlite3*, int, int);
    std::int64_t (*hardHeapLimit)(std::int64_t);
  };

  /// Lets the library ask now and then whether to go on; one that can't is never interrupted.
  void LimitWork();
  static int IsTooMuchWork(void* self);

  // Bounds for the memory of a query, as far as the library has them.
  void BindLimits();
  void LimitMemory();
  void LimitValues();
  void EndMemoryLimit();
  void NoteExcess(int result);

  bool Bind();

  /// Goes on to the next row. False without one: the query is finished, and the reason is the
  /// problem, which at the end of the rows is `atEnd`.
  bool StepToRow(std::u16string_view atEnd);
  void KeepError();
  void FinishQuery();
  std::optional<int> FindColumn(std::string_view column) const;

  ILibraryLoader& loader_;
  IMessageBoxes& messages_;
  void* library_ = nullptr;
  sqlite3* database_ = nullptr;
  sqlite3_stmt* statement_ = nullptr;
  EntryPoints call_{};
  bool bound_ = false;                           ///< all entry points are there
  int pieces_ = 0;                               ///< of work since the database was opened
  std::clock_t begin_ = 0;                       ///< processor time when it was opened
  std::optional<std::int64_t> formerHeapLimit_;  ///< while the library has ours
  bool askedTooMuch_ = false;
  std::u16string problem_;
};

}  // namespace hullwright
