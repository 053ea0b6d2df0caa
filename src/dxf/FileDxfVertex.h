#pragma once

#include <cstdint>

#include "dxf/DxfPoint.h"

namespace hullwright {

/// A vertex of a polyline before its bulges are flattened.
struct CFileDxfVertex {
  DxfPoint Point() const { return {x, y, z}; }

  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  /// Tangent of a quarter of the included angle of the arc that leaves this vertex; positive is
  /// counter-clockwise, 0.0 a straight segment.
  double bulge = 0.0;
  std::int32_t flags = 0;
};

}  // namespace hullwright
