#pragma once

#include "dxf/DxfPoint.h"

namespace hullwright {

/// The arbitrary axis algorithm of the DXF reference: takes a point from the object coordinate
/// system (OCS) of an extrusion direction to world coordinates (WCS). The direction is taken as it
/// is given, not normalised, and the matrix is rounded to single precision.
class Extrusion {
public:
  /// Leaves every point where it is, as the direction straight up does.
  Extrusion() = default;
  explicit Extrusion(const DxfPoint& normal);

  DxfPoint operator()(const DxfPoint& point) const
  {
    if (identity_) return point;
    return {ax_.x * point.x + ay_.x * point.y + n_.x * point.z,
            ax_.y * point.x + ay_.y * point.y + n_.y * point.z,
            ax_.z * point.x + ay_.z * point.y + n_.z * point.z};
  }

private:
  bool identity_ = true;
  DxfPoint ax_;
  DxfPoint ay_;
  DxfPoint n_;
};

}  // namespace hullwright
