#include "base/Paths.h"

#include "base/Text.h"

namespace hullwright {

std::filesystem::path PathOf(std::string_view text)
{
  // As `char` the library takes it for text of the locale.
  const std::u8string bytes(text.begin(), text.end());
  return {bytes};
}

std::filesystem::path PathOf(std::u16string_view text) { return PathOf(Utf8FromWide(text)); }

std::string TextOf(const std::filesystem::path& path)
{
  const std::u8string bytes = path.generic_u8string();
  return {bytes.begin(), bytes.end()};
}

std::u16string AbsolutePath(const std::u16string& path)
{
  namespace fs = std::filesystem;
  std::error_code failed;
  const fs::path whole = fs::absolute(PathOf(path), failed);
  if (failed) return path;
  const fs::path folder = fs::weakly_canonical(whole.parent_path(), failed);
  return failed ? path : WideFromUtf8(TextOf(folder / whole.filename()));
}

}  // namespace hullwright
