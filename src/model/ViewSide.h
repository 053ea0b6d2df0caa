#pragma once

#include <array>
#include <cstdint>

/// Codes of the vessel's sides. They are compared by equality, never as a bit mask.
namespace hullwright::ViewSide {

inline constexpr std::int32_t Top = 1;
inline constexpr std::int32_t Bottom = 2;
inline constexpr std::int32_t Right = 4;
inline constexpr std::int32_t Left = 8;
inline constexpr std::int32_t Front = 16;
inline constexpr std::int32_t Rear = 32;
inline constexpr std::int32_t All = 63;  ///< a group that answers for every side

/// The six sides that can be in view, in the order of their codes.
inline constexpr std::array<std::int32_t, 6> each = {Top, Bottom, Right, Left, Front, Rear};

}  // namespace hullwright::ViewSide
