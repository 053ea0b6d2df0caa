#pragma once

#include <filesystem>

namespace hullwright {

/// How a file is opened: what the system is asked for, and what the C library may do with it.
struct Opening {
  unsigned long access;
  unsigned long disposition;
  int flags;
};

extern const Opening toRead;       ///< a file that is there
extern const Opening toReplace;    ///< emptied or made anew
extern const Opening toWriteInto;  ///< a file that is there, from its beginning
extern const Opening toMakeOrWriteInto;
extern const Opening toMake;  ///< a file that is not there yet

/// Opens a file that others may read, replace and remove meanwhile, as other systems have it: its
/// number for the C library; negative with `errno` where that fails, as it does for a folder.
int OpenShared(const std::filesystem::path& path, const Opening& opening);

/// The `errno` that stands for the system's last error.
int LastError();

}  // namespace hullwright
