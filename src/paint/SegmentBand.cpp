#include "paint/SegmentBand.h"

namespace hullwright {
namespace {

/// A distance along a segment that no pixel has.
constexpr float endless = 1e9F;

}  // namespace

SegmentBand::SegmentBand(const StrokeSegment& segment, const SegmentWay& way, float full)
    : runs_(segment, way),
      from_(segment.from),
      flatFrom_(segment.flatFrom),
      flatTo_(segment.flatTo),
      none_(0.0F),
      half_(0.5F * full),
      outerLimit_(none_),
      innerLimit_(none_),
      most_(none_),
      length_(none_),
      stepAlong_(Four::Steps()),
      stepAcross_(Four::Steps()),
      nextAlong_(none_),
      nextAcross_(none_)
{
  constexpr float pixels = 4.0F;
  pixel_ = 0.5F * full / way.larger;
  const float edge = segment.radius * pixel_ + 0.25F * full;
  const float apart = 0.25F * way.smaller * pixel_;
  outerLimit_ = Four(edge + apart);
  innerLimit_ = Four(edge - apart);
  most_ = Four(full * way.MostCovered(segment.radius));
  alongX_ = way.x * pixel_;
  alongY_ = way.y * pixel_;
  length_ = Four(way.length * pixel_);
  stepAlong_ = stepAlong_ * Four(alongX_);
  stepAcross_ = stepAcross_ * Four(-alongY_);
  nextAlong_ = Four(pixels * alongX_);
  nextAcross_ = Four(-pixels * alongY_);
}

Four SegmentBand::CoverFlat(const Distances& distances) const
{
  const Four before = none_ - distances.along - Four(flatFrom_ ? endless : 0.0F);
  const Four behind = distances.along - length_ - Four(flatTo_ ? endless : 0.0F);
  const Four cover = CoverWithin(distances.across, before.Max(behind).Max(none_));
  // The part of a pixel's breadth that lies between the flat ends.
  const Four half(0.5F * pixel_);
  const Four end = flatTo_ ? length_ : Four(endless);
  const Four begin(flatFrom_ ? 0.0F : -endless);
  const Four inside = (distances.along + half).Min(end) - (distances.along - half).Max(begin);
  // A shade more, so that rounding takes nothing from a pixel that is inside whole.
  const Four part = inside * Four(1.0001F / pixel_);
  return cover * part.Max(none_).Min(Four(1.0F));
}

}  // namespace hullwright
