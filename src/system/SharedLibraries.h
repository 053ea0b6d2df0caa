#pragma once

#include "platform/LibraryLoader.h"

namespace hullwright {

/// File name of the SQLite library on this system.
extern const char* const sqliteLibrary;

/// The system's own loader.
class SharedLibraries : public ILibraryLoader {
public:
  void* Load(const char* name) override;
  void* Resolve(void* library, const char* entryPoint) override;
  void Free(void* library) override;
};

}  // namespace hullwright
