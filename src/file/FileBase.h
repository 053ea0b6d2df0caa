#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace hullwright {

/// Base of the text-file readers: a whole file in memory with one read position.
class CFileBase {
public:
  CFileBase() = default;
  CFileBase(const CFileBase&) = delete;
  CFileBase& operator=(const CFileBase&) = delete;
  virtual ~CFileBase() = default;

  /// Reads a file as text: each CR LF becomes one LF, and a byte 0x1A ends the text. 0 on success;
  /// -1 for a file that won't open, has no bytes, is 2 GiB or larger, or does not fit into memory.
  /// What was read before an error of the disk counts as the text; `LoadError` states the error.
  int Load(std::u16string_view filePath);

  /// The `errno` that ended the last `Load` before the end of the file; 0 where the file was read
  /// whole.
  int LoadError() const { return loadError_; }

  std::int64_t size = 0;      ///< bytes of text in the buffer
  std::int64_t position = 0;  ///< where the reader stands
  std::u16string path;
  std::unique_ptr<char[]> buffer;  ///< `size` bytes of text and a NUL

protected:
  /// Gives the memory of the text before a place back to the system, now and then: it may hold
  /// anything from here on.
  void LetGoBefore(std::size_t place);

private:
  int loadError_ = 0;
  std::size_t letGo_ = 0;  ///< bytes at the beginning
};

}  // namespace hullwright
