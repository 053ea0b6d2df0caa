#pragma once

#include "render/ClipPolyline.h"
#include "render/ViewPort.h"

namespace hullwright {

/// The stretch of the world that an unturned view shows in a rectangle of the screen, and a pixel
/// around it, far more than the mapping loses by rounding. So what lies beyond an edge here is
/// mapped beyond that edge there, and many places are told to be elsewhere without being mapped.
struct SeenStretch {
  SeenStretch(const ClipRect& pixels, const CViewPort& view)
  {
    const double perPixelX = view.width / view.screenWidth;
    const double perPixelY = view.height / view.screenHeight;
    west = view.left + (pixels.left - 1.0) * perPixelX;
    east = view.left + (pixels.right + 1.0) * perPixelX;
    south = view.bottom + (view.screenHeight - pixels.bottom - 1.0) * perPixelY;
    north = view.bottom + (view.screenHeight - pixels.top + 1.0) * perPixelY;
  }

  /// Whether a place lies outside. One that is no number doesn't.
  bool Misses(double x, double y) const { return x < west || x > east || y < south || y > north; }

  double west;
  double east;
  double south;
  double north;
};

}  // namespace hullwright
