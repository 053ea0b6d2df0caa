#include "paint/ThinBand.h"

namespace hullwright {

ThinBand::ThinBand(const StrokeSegment& segment, const SegmentWay& way, float full)
    : runs_(segment, way),
      from_(segment.from),
      flatFrom_(segment.flatFrom),
      flatTo_(segment.flatTo),
      half_(0),
      outerLimit_(0),
      innerLimit_(0),
      most_(0),
      stepAlong_(0),
      stepAcross_(0)
{
  constexpr float sixteenths = 16.0F;
  constexpr float product = 512.0F;
  const float whole = full * sixteenths;
  const float pixel = 0.5F * whole / way.larger;
  constexpr float half = 0.5F;
  const auto rounded = [](float number) { return static_cast<int>(number + half); };
  pixel_ = static_cast<int>(pixel);
  if (flatFrom_ || flatTo_) {
    perPixel_ =
        static_cast<int>(static_cast<float>(one) * product / static_cast<float>(pixel_)) + 1;
  }
  perPixelX_ = way.x * pixel;
  perPixelY_ = way.y * pixel;
  alongX_ = Fixed(perPixelX_);
  alongY_ = Fixed(perPixelY_);
  slant_ = Fixed(runs_.slant);
  length_ = Fixed(way.length * pixel);
  const float edge = segment.radius * pixel + 0.25F * whole;
  const float apart = 0.25F * way.smaller * pixel;
  half_ = Eight(rounded(0.5F * whole));
  outerLimit_ = Eight(rounded(edge + apart));
  innerLimit_ = Eight(rounded(edge - apart));
  most_ = Eight(rounded(whole * way.MostCovered(segment.radius)));
  stepAlong_ = Eight::Steps(static_cast<int>(perPixelX_));
  stepAcross_ = Eight::Steps(static_cast<int>(-perPixelY_));
}

ThinBand::Row ThinBand::FirstOf(const PixelArea& area) const
{
  const float y = static_cast<float>(area.firstRow) + 0.5F;
  const auto left = static_cast<float>(area.firstX);
  const float dx = left + 0.5F - from_.x;
  const float dy = y - from_.y;
  return {Fixed(runs_.BeginOf(y) - left), Fixed(dx * perPixelX_ + dy * perPixelY_),
          Fixed(dy * perPixelX_ - dx * perPixelY_)};
}

}  // namespace hullwright
