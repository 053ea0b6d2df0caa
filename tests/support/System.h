#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

/// What tests ask of the system that the standard library does not know.
namespace hullwright::test {

/// The number of this process.
int ProcessNumber();

/// Sets an environment variable; null removes it.
void SetVariable(const char* name, const char* value);

/// Makes a pipe that bears a name; false where the system has none in folders.
bool MakePipe(const std::filesystem::path& path);

/// Memory whose place is a multiple of the alignment, a power of two; null without any. It goes
/// back by `FreeAligned` alone.
void* AllocateAligned(std::size_t size, std::size_t alignment);
void FreeAligned(void* place);

/// The bytes that the heap has given for a block, aligned or not; 0 where it does not tell.
std::size_t BytesOf(void* block);

/// Whether this user may read a file.
bool MayRead(const std::filesystem::path& path);

/// The most memory that the process has held so far, in KiB.
long MostMemory();

/// No file can grow past a size while it lives, as on a disk that is full.
class FileSizeLimit {
public:
  explicit FileSizeLimit(std::uint64_t bytes);
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit();

private:
  std::uint64_t before_ = 0;
  void (*handler_)(int) = nullptr;
};

}  // namespace hullwright::test
