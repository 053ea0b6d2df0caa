#pragma once

namespace hullwright {

inline constexpr double degreesPerRadian = 57.29577951308232;
inline constexpr double radiansPerDegree = 0.017453292519943295;

}  // namespace hullwright
