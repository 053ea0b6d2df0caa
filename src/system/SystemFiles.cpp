#include "system/SystemFiles.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace hullwright {
namespace {

int FlagsOf(Access access)
{
  switch (access) {
    case Access::Read: return O_RDONLY;
    case Access::Write: return O_WRONLY;
    case Access::MakeOrWrite: return O_WRONLY | O_CREAT | O_NONBLOCK;
  }
  return O_RDONLY;
}

}  // namespace

int OpenDescriptor(const std::string& path, Access access)
{
  constexpr mode_t anybody = 0666;
  return open(path.c_str(), FlagsOf(access) | O_CLOEXEC, anybody);
}

void CloseDescriptor(int file) { close(file); }

std::ptrdiff_t ReadSome(int file, char* bytes, std::size_t size)
{
  for (;;) {
    const ssize_t length = read(file, bytes, size);
    if (length >= 0 || errno != EINTR) return length;
  }
}

std::ptrdiff_t WriteSome(int file, const char* bytes, std::size_t size)
{
  for (;;) {
    const ssize_t length = write(file, bytes, size);
    if (length >= 0 || errno != EINTR) return length;
  }
}

bool IsLockedElsewhere(int file)
{
  return flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

bool EmptyFile(int file) { return ftruncate(file, 0) == 0 || errno == EINVAL; }

int WritingProblem(const std::string& path) { return access(path.c_str(), W_OK) == 0 ? 0 : errno; }

}  // namespace hullwright
