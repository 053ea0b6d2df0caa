#pragma once

#include <array>
#include <cstdint>

namespace hullwright {

/// A side of the vessel. Files and settings may hold any number here, which is kept; sides are
/// compared by equality, never as a bit mask.
enum class ViewSide : std::int32_t {
  None = 0,  ///< has no group
  Top = 1,
  Bottom = 2,
  Right = 4,
  Left = 8,
  Front = 16,
  Rear = 32,
  All = 63,  ///< of a group that answers for every side
};

/// The six sides that can be in view, in the order of their codes.
inline constexpr std::array<ViewSide, 6> eachViewSide = {ViewSide::Top,   ViewSide::Bottom,
                                                         ViewSide::Right, ViewSide::Left,
                                                         ViewSide::Front, ViewSide::Rear};

}  // namespace hullwright
