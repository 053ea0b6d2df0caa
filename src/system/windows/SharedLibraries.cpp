#include "system/SharedLibraries.h"

#include <windows.h>

#include "base/Paths.h"

namespace hullwright {

const char* const sqliteLibrary = "sqlite3.dll";

void* SharedLibraries::Load(const char* name) { return LoadLibraryW(PathOf(name).c_str()); }

void* SharedLibraries::Resolve(void* library, const char* entryPoint)
{
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), entryPoint));
}

void SharedLibraries::Free(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

}  // namespace hullwright
