#pragma once

#include <gtest/gtest.h>

#include <filesystem>

#include "base/Paths.h"
#include "system/SharedLibraries.h"

namespace hullwright::test {

/// A database file that the system's library holds open, to run statements on.
class SqliteConnection {
public:
  explicit SqliteConnection(const std::filesystem::path& path)
  {
    EXPECT_EQ(Entry<int (*)(const char*, void**)>("sqlite3_open")(TextOf(path).c_str(), &handle_),
              0);
  }
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;
  ~SqliteConnection()
  {
    EXPECT_EQ(Entry<int (*)(void*)>("sqlite3_close")(handle_), 0);
    libraries_.Free(library_);
  }
  void Run(const char* statements) const
  {
    const auto run = Entry<int (*)(void*, const char*, void*, void*, void*)>("sqlite3_exec");
    EXPECT_EQ(run(handle_, statements, nullptr, nullptr, nullptr), 0) << statements;
  }

private:
  template <class Function>
  Function Entry(const char* name) const
  {
    return reinterpret_cast<Function>(libraries_.Resolve(library_, name));
  }

  mutable SharedLibraries libraries_;
  void* library_ = libraries_.Load(sqliteLibrary);
  void* handle_ = nullptr;
};

}  // namespace hullwright::test
