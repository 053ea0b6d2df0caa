#pragma once

#include <cstdio>
#include <memory>
#include <string_view>

namespace hullwright {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePointer = std::unique_ptr<std::FILE, CloseFile>;

/// Opens a file by its wide path. A folder counts as a file that can't be opened: null.
FilePointer OpenFile(std::u16string_view path, const char* mode);

}  // namespace hullwright
