#include "base/windows/SharedFile.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cerrno>

namespace hullwright {
namespace {

constexpr int bytesToRead = _O_RDONLY | _O_BINARY | _O_NOINHERIT;
constexpr int bytesToWrite = _O_WRONLY | _O_BINARY | _O_NOINHERIT;

bool IsFolder(const std::filesystem::path& path)
{
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

const Opening toRead{GENERIC_READ, OPEN_EXISTING, bytesToRead};
const Opening toReplace{GENERIC_WRITE, CREATE_ALWAYS, bytesToWrite};
const Opening toWriteInto{GENERIC_WRITE, OPEN_EXISTING, bytesToWrite};
const Opening toMakeOrWriteInto{GENERIC_WRITE, OPEN_ALWAYS, bytesToWrite};
const Opening toMake{GENERIC_WRITE, CREATE_NEW, bytesToWrite};

int LastError()
{
  switch (GetLastError()) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_INVALID_DRIVE: return ENOENT;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS: return EEXIST;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return ENOSPC;
    case ERROR_INVALID_NAME: return EINVAL;
    case ERROR_FILENAME_EXCED_RANGE: return ENAMETOOLONG;
    case ERROR_NOT_ENOUGH_MEMORY: return ENOMEM;
    case ERROR_TOO_MANY_OPEN_FILES: return EMFILE;
    default: return EACCES;
  }
}

int OpenShared(const std::filesystem::path& path, const Opening& opening)
{
  if (IsFolder(path)) {
    errno = EISDIR;
    return -1;
  }
  constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file = CreateFileW(path.c_str(), opening.access, shared, nullptr,
                                  opening.disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    errno = LastError();
    return -1;
  }
  const int number = _open_osfhandle(reinterpret_cast<intptr_t>(file), opening.flags);
  if (number < 0) CloseHandle(file);
  return number;
}

}  // namespace hullwright
