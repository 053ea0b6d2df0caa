#pragma once

namespace hullwright {

/// A position or direction of a drawing.
struct DxfPoint {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

}  // namespace hullwright
