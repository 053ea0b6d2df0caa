#include "base/OpenFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>

#include "base/Text.h"

namespace hullwright {
namespace {

/// A stream over a descriptor, which it takes over; null where there is none.
FilePointer StreamOf(int descriptor, const char* mode)
{
  if (descriptor < 0) return nullptr;
  FilePointer stream(fdopen(descriptor, mode));
  if (!stream) close(descriptor);
  return stream;
}

bool IsRegular(int descriptor)
{
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

FilePointer OpenToRead(std::u16string_view path)
{
  // Without blocking: a pipe that nobody writes to must not hold the program up.
  const int descriptor = open(Utf8FromWide(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (descriptor >= 0 && !IsRegular(descriptor)) {
    close(descriptor);
    errno = 0;
    return nullptr;
  }
  return StreamOf(descriptor, "rb");
}

FilePointer OpenToWrite(std::u16string_view path)
{
  constexpr mode_t anybody = 0666;
  const int descriptor = open(Utf8FromWide(path).c_str(),
                              O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_CLOEXEC, anybody);
  return StreamOf(descriptor, "wb");
}

}  // namespace hullwright
