#pragma once

#include <span>
#include <vector>

#include "platform/Drawing.h"
#include "render/ViewPort.h"

namespace hullwright {

/// A rectangle in pixels, edges included.
struct ClipRect {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
};

/// The parts of an open line that lie in the rectangle, one run of points each, in order. Computed
/// in double precision, so that points far outside do no harm; a segment with a point that is not a
/// number, or infinite, is left out.
std::vector<std::vector<ScreenPoint>> ClipPolyline(std::span<const PixelPoint> points,
                                                   const ClipRect& clip);

}  // namespace hullwright
