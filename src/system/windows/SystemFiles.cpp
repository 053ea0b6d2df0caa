#include "system/SystemFiles.h"

#include <io.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>

#include "base/Paths.h"
#include "base/windows/SharedFile.h"

namespace hullwright {
namespace {

const Opening& OpeningOf(Access access)
{
  switch (access) {
    case Access::Read: return toRead;
    case Access::Write: return toWriteInto;
    case Access::MakeOrWrite: return toMakeOrWriteInto;
  }
  return toRead;
}

HANDLE HandleOf(int file) { return reinterpret_cast<HANDLE>(_get_osfhandle(file)); }

/// As many bytes as one call takes.
unsigned OneCall(std::size_t size)
{
  constexpr std::size_t most = 1U << 30U;
  return static_cast<unsigned>(std::min(size, most));
}

}  // namespace

int OpenDescriptor(const std::string& path, Access access)
{
  return OpenShared(PathOf(path), OpeningOf(access));
}

void CloseDescriptor(int file) { _close(file); }

std::ptrdiff_t ReadSome(int file, char* bytes, std::size_t size)
{
  return _read(file, bytes, OneCall(size));
}

std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size)
{
  return _write(file, bytes, OneCall(size));
}

bool IsLockedElsewhere(int file)
{
  // A byte behind all that a file holds: what is locked here can't be read through another handle.
  OVERLAPPED place{};
  place.OffsetHigh = 0x7FFFFFFF;
  constexpr DWORD atOnce = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
  return LockFileEx(HandleOf(file), atOnce, 0, 1, 0, &place) == 0 &&
         GetLastError() == ERROR_LOCK_VIOLATION;
}

bool EmptyFile(int file)
{
  return GetFileType(HandleOf(file)) != FILE_TYPE_DISK || _chsize(file, 0) == 0;
}

int WritingProblem(const std::string& path)
{
  constexpr int toWrite = 2;
  return _waccess(PathOf(path).c_str(), toWrite) == 0 ? 0 : errno;
}

}  // namespace hullwright
