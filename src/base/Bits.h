#pragma once

#include <bit>
#include <cstdint>

namespace hullwright {

/// The bits of a double, which tell the two zeros apart and know one NaN from another.
constexpr std::uint64_t BitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

constexpr bool SameBits(double a, double b) { return BitsOf(a) == BitsOf(b); }

}  // namespace hullwright
