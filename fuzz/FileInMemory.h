#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "base/Text.h"

namespace hullwright {

/// A file without a disk, for what reads and writes files by their paths.
class FileInMemory {
public:
  FileInMemory() : file_(memfd_create("fuzz", MFD_CLOEXEC)) {}
  FileInMemory(const FileInMemory&) = delete;
  FileInMemory& operator=(const FileInMemory&) = delete;
  ~FileInMemory() { close(file_); }

  /// Wide path of the file.
  std::u16string Path() const { return WideFromAscii("/proc/self/fd/" + std::to_string(file_)); }

  void Fill(const std::uint8_t* data, std::size_t size) const
  {
    const auto length = static_cast<ssize_t>(size);
    if (ftruncate(file_, 0) != 0 || pwrite(file_, data, size, 0) != length) __builtin_trap();
  }

  std::string Content() const
  {
    const off_t length = lseek(file_, 0, SEEK_END);
    std::string bytes(static_cast<std::size_t>(length), '\0');
    if (pread(file_, bytes.data(), bytes.size(), 0) != length) __builtin_trap();
    return bytes;
  }

private:
  int file_;
};

}  // namespace hullwright
