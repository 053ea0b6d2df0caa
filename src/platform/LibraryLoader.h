#pragma once

namespace hullwright {

/// Shared libraries that are bound at run time.
class ILibraryLoader {
public:
  virtual ~ILibraryLoader() = default;

  /// Loads a library by its file name; null when it is not there.
  virtual void* Load(const char* name) = 0;

  /// Address of an entry point; null when it is missing.
  virtual void* Resolve(void* library, const char* entryPoint) = 0;

  virtual void Free(void* library) = 0;
};

}  // namespace hullwright
