#include "paint/SegmentBand.h"

namespace hullwright {
namespace {

/// A distance along a segment that no pixel has.
constexpr float endless = 1e9F;

/// How far the corners of a pixel are from its centre.
constexpr float corner = 0.70711F;

/// The first and the last pixel whose centre lies on one side of a place.
int FirstFrom(float place) { return static_cast<int>(std::ceil(place - 0.5F)); }
int LastUpTo(float place) { return static_cast<int>(std::floor(place - 0.5F)); }

/// What a stroke covers of a pixel whose centre it runs through: not all of it where it is thin and
/// slants, for the corners of the pixel reach out.
float MostCovered(float radius, float slantX, float slantY)
{
  constexpr float sliver = 0.001F;
  const float outside = (slantX + slantY) * 0.5F - radius;
  return outside < sliver ? 1.0F : 1.0F - outside * outside / (slantX * slantY);
}

struct Direction {
  float x = 1.0F;
  float y = 0.0F;
  float length = 0.0F;
};

Direction DirectionOf(const StrokeSegment& segment)
{
  const float dx = segment.to.x - segment.from.x;
  const float dy = segment.to.y - segment.from.y;
  const float length = std::sqrt(dx * dx + dy * dy);
  return length > 0.0F ? Direction{dx / length, dy / length, length} : Direction{};
}

/// Breadth of the square of a pixel along the larger and the smaller part of a direction.
struct Slope {
  explicit Slope(const Direction& d)
      : larger(std::max(std::abs(d.x), std::abs(d.y))),
        smaller(std::min(std::abs(d.x), std::abs(d.y)))
  {
  }

  float larger;
  float smaller;
};

}  // namespace

SegmentBand::SegmentBand(const StrokeSegment& segment, float full)
    : from_(segment.from),
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
  const Direction direction = DirectionOf(segment);
  const Slope slope(direction);
  pixel_ = 0.5F * full / slope.larger;
  const float edge = segment.radius * pixel_ + 0.25F * full;
  const float apart = 0.25F * slope.smaller * pixel_;
  outerLimit_ = Four(edge + apart);
  innerLimit_ = Four(edge - apart);
  most_ = Four(full * MostCovered(segment.radius, slope.larger, slope.smaller));
  alongX_ = direction.x * pixel_;
  alongY_ = direction.y * pixel_;
  length_ = Four(direction.length * pixel_);
  stepAlong_ = stepAlong_ * Four(alongX_);
  stepAcross_ = stepAcross_ * Four(-alongY_);
  nextAlong_ = Four(pixels * alongX_);
  nextAcross_ = Four(-pixels * alongY_);
  besideFrom_ = flatFrom_ ? corner * pixel_ : 0.0F;
  besideTo_ = (flatTo_ ? direction.length - corner : direction.length) * pixel_;
  // A line that is nearly level meets each of its rows on its whole length.
  constexpr float level = 0.01F;
  const bool isLevel = std::abs(direction.y) < level;
  slant_ = isLevel ? 0.0F : direction.x / direction.y;
  halfRun_ = isLevel ? endless : (segment.radius + corner) / std::abs(direction.y);
  SetReach(segment);
}

void SegmentBand::SetReach(const StrokeSegment& segment)
{
  const float margin = segment.radius + corner;
  reach_ = {FirstFrom(std::min(segment.from.y, segment.to.y) - margin),
            LastUpTo(std::max(segment.from.y, segment.to.y) + margin),
            FirstFrom(std::min(segment.from.x, segment.to.x) - margin),
            LastUpTo(std::max(segment.from.x, segment.to.x) + margin)};
}

Four SegmentBand::CoverFlat(const Distances& distances) const
{
  const Four before = none_ - distances.along - Four(flatFrom_ ? endless : 0.0F);
  const Four behind = distances.along - length_ - Four(flatTo_ ? endless : 0.0F);
  const Four cover = CoverWithin(distances.across, before.Most(behind).Most(none_));
  // The part of a pixel's breadth that lies between the flat ends.
  const Four half(0.5F * pixel_);
  const Four end = flatTo_ ? length_ : Four(endless);
  const Four begin(flatFrom_ ? 0.0F : -endless);
  const Four inside = (distances.along + half).Least(end) - (distances.along - half).Most(begin);
  return cover * inside.Most(none_).Least(Four(pixel_)) * Four(1.0F / pixel_);
}

}  // namespace hullwright
