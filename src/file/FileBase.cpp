#include "file/FileBase.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>

#include "base/OpenFile.h"
#include "base/Pages.h"

namespace hullwright {
namespace {

/// Folds CR LF to LF in place, up to a 0x1A; the new length.
std::size_t FoldToText(char* text, std::size_t length)
{
  constexpr char endOfText = 0x1A;
  if (const void* const end = std::memchr(text, endOfText, length)) {
    length = static_cast<std::size_t>(static_cast<const char*>(end) - text);
  }
  const void* const firstReturn = std::memchr(text, '\r', length);
  if (firstReturn == nullptr) return length;
  // From here on most lines have one, so that a jump past it would be guessed wrong once a line.
  auto kept = static_cast<std::size_t>(static_cast<const char*>(firstReturn) - text);
  for (std::size_t i = kept; i + 1 < length; ++i) {
    const bool folds = text[i] == '\r' && text[i + 1] == '\n';
    text[kept] = text[i];
    kept += folds ? 0 : 1;
  }
  text[kept] = text[length - 1];
  return kept + 1;
}

}  // namespace

int CFileBase::Load(std::u16string_view filePath)
{
  path = filePath;
  loadError_ = 0;
  letGo_ = 0;
  const FilePointer file = OpenToRead(filePath);
  if (!file || std::fseek(file.get(), 0, SEEK_END) != 0) return -1;
  const long length = std::ftell(file.get());
  if (length <= 0 || length > std::numeric_limits<std::int32_t>::max()) return -1;
  if (std::fseek(file.get(), 0, SEEK_SET) != 0) return -1;
  const auto bytes = static_cast<std::size_t>(length);
  buffer.reset(new (std::nothrow) char[bytes + 1]);
  if (!buffer) return -1;
  const std::size_t read = std::fread(buffer.get(), 1, bytes, file.get());
  if (std::ferror(file.get()) != 0) loadError_ = errno;
  const std::size_t kept = FoldToText(buffer.get(), read);
  buffer[kept] = '\0';
  size = static_cast<std::int64_t>(kept);
  position = 0;
  return 0;
}

void CFileBase::LetGoBefore(std::size_t place)
{
  constexpr std::size_t enough = std::size_t{1} << 20U;  // each time costs a call of the system
  if (place < letGo_ + enough) return;
  GiveBackPages({buffer.get() + letGo_, place - letGo_});
  letGo_ = place;
}

}  // namespace hullwright
