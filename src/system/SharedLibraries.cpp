#include "system/SharedLibraries.h"

#include <dlfcn.h>

namespace hullwright {

const char* const sqliteLibrary = "libsqlite3.so.0";

void* SharedLibraries::Load(const char* name) { return dlopen(name, RTLD_NOW | RTLD_LOCAL); }

void* SharedLibraries::Resolve(void* library, const char* entryPoint)
{
  return dlsym(library, entryPoint);
}

void SharedLibraries::Free(void* library) { dlclose(library); }

}  // namespace hullwright
