#include "file/OpenFile.h"

#include <sys/stat.h>

#include "base/Text.h"

namespace hullwright {

FilePointer OpenFile(std::u16string_view path, const char* mode)
{
  FilePointer file(std::fopen(Utf8FromWide(path).c_str(), mode));
  struct stat status{};
  if (file && fstat(fileno(file.get()), &status) == 0 && S_ISDIR(status.st_mode)) file.reset();
  return file;
}

}  // namespace hullwright
