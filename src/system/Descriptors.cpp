#include "system/Descriptors.h"

#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace hullwright {

std::string MakeTemporary(const std::filesystem::path& folder)
{
  std::string path = (folder / ".hullwright-XXXXXX").string();
  const Descriptor file(mkstemp(path.data()));
  if (file.Number() < 0) return {};
  // As a file made in the usual way would be, not for its owner alone.
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(file.Number(), 0666 & ~mask);
  return path;
}

bool WriteAll(int file, std::string_view bytes)
{
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool Copy(int from, int to)
{
  std::array<char, 1U << 16U> block{};
  for (;;) {
    const ssize_t length = read(from, block.data(), block.size());
    if (length < 0 && errno == EINTR) continue;
    if (length <= 0) return length == 0;
    if (!WriteAll(to, {block.data(), static_cast<std::size_t>(length)})) return false;
  }
}

std::filesystem::path TemporaryFolder()
{
  std::error_code failed;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(failed);
  return failed ? std::filesystem::path("/tmp") : folder;
}

}  // namespace hullwright
