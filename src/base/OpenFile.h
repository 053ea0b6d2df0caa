#pragma once

#include <cstdio>
#include <memory>
#include <string_view>

namespace hullwright {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file by its wide path; null with `errno` where that fails. Folders, pipes and devices
/// are no files to read: null with an `errno` of 0.
FilePointer OpenToRead(std::u16string_view path);

/// Opens a file by its wide path, emptied or made anew; null with `errno` where that fails.
FilePointer OpenToWrite(std::u16string_view path);

}  // namespace hullwright
