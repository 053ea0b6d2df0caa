#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace hullwright {

/// The first line end from `at` on, or `end`. Lines of drawings are a few bytes long, so that a
/// call of the library would cost more than the search.
inline const char* FindLineEnd(const char* at, const char* end)
{
  // Eight bytes at a time. A byte of `other` is 0 at a line end, and the first such byte is the
  // lowest one that borrows its top bit when 1 is taken off every byte.
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t tops = 0x80 * ones;
  constexpr int bitsOfByte = 8;
  std::uint64_t bytes = 0;
  if constexpr (std::endian::native == std::endian::little) {
    for (; end - at >= static_cast<std::ptrdiff_t>(sizeof(bytes)); at += sizeof(bytes)) {
      std::memcpy(&bytes, at, sizeof(bytes));
      const std::uint64_t other = bytes ^ ('\n' * ones);
      const std::uint64_t found = (other - ones) & ~other & tops;
      if (found != 0) return at + std::countr_zero(found) / bitsOfByte;
    }
  }
  while (at != end && *at != '\n') ++at;
  return at;
}

}  // namespace hullwright
