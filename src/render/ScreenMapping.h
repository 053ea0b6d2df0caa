#pragma once

#include "render/ViewPort.h"

namespace hullwright {

/// The forward mapping of a viewport as it stands, for many points: what all of them share is
/// computed once. A point is turned first, then scaled by a division on each axis; other forms of
/// the same arithmetic end in other last bits.
class ScreenMapping {
public:
  explicit ScreenMapping(const CViewPort& view)
      : centre_{(view.left + view.right) * 0.5, (view.bottom + view.top) * 0.5},
        corner_{view.left, view.bottom},
        cosine_(view.cosRotation),
        sine_(view.sinRotation),
        perPixelX_(view.width / view.screenWidth),
        perPixelY_(view.height / view.screenHeight),
        screenHeight_(view.screenHeight)
  {
  }

  /// The mapping without the turn about the centre of the view.
  ScreenPoint Flat(double wx, double wy) const
  {
    return {(wx - corner_.x) / perPixelX_, screenHeight_ - (wy - corner_.y) / perPixelY_};
  }

  ScreenPoint Map(double wx, double wy) const
  {
    const double dx = wx - centre_.x;
    const double dy = wy - centre_.y;
    return Flat(cosine_ * dx + sine_ * dy + centre_.x, cosine_ * dy - sine_ * dx + centre_.y);
  }

private:
  WorldPoint centre_;
  WorldPoint corner_;
  double cosine_;
  double sine_;
  double perPixelX_;
  double perPixelY_;
  double screenHeight_;
};

}  // namespace hullwright
