#include "system/LibraryVersions.h"

#include "system/SharedLibraries.h"

namespace hullwright {

std::string SqliteVersion()
{
  SharedLibraries loader;
  void* const library = loader.Load(sqliteLibrary);
  if (library == nullptr) return {};
  const auto version =
      reinterpret_cast<const char* (*)()>(loader.Resolve(library, "sqlite3_libversion"));
  std::string text = version == nullptr ? "" : version();
  loader.Free(library);
  return text;
}

}  // namespace hullwright
