#include "system/Descriptors.h"

#include <array>

namespace hullwright {

bool WriteAll(int file, std::string_view bytes)
{
  while (!bytes.empty()) {
    const std::ptrdiff_t written = WriteSome(file, bytes.data(), bytes.size());
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool Copy(int from, int to)
{
  std::array<char, 1U << 16U> block{};
  for (;;) {
    const std::ptrdiff_t length = ReadSome(from, block.data(), block.size());
    if (length <= 0) return length == 0;
    if (!WriteAll(to, {block.data(), static_cast<std::size_t>(length)})) return false;
  }
}

}  // namespace hullwright
