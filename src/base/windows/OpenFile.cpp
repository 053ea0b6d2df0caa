#include "base/OpenFile.h"

#include <io.h>
#include <windows.h>

#include <cerrno>
#include <string_view>

#include "base/Paths.h"
#include "base/windows/SharedFile.h"

namespace hullwright {
namespace {

/// A stream over a file of the C library's, which it takes over; null where there is none.
FilePointer StreamOf(int file, const char* mode)
{
  if (file < 0) return nullptr;
  FilePointer stream(_fdopen(file, mode));
  if (!stream) _close(file);
  return stream;
}

bool IsOnDisk(int file)
{
  return GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file))) == FILE_TYPE_DISK;
}

}  // namespace

FilePointer OpenToRead(std::u16string_view path)
{
  const int file = OpenShared(PathOf(path), toRead);
  const bool isFolder = file < 0 && errno == EISDIR;
  const bool isDevice = file >= 0 && !IsOnDisk(file);
  if (!isFolder && !isDevice) return StreamOf(file, "rb");
  if (isDevice) _close(file);
  errno = 0;
  return nullptr;
}

FilePointer OpenToWrite(std::u16string_view path)
{
  return StreamOf(OpenShared(PathOf(path), toReplace), "wb");
}

}  // namespace hullwright
