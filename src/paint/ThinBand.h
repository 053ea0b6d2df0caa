#pragma once

#include "paint/EdgeRamp.h"
#include "paint/RowPair.h"
#include "paint/SegmentRuns.h"

namespace hullwright {

/// What a thin stroke covers of pixels, as `SegmentBand` has it, in quarters and in whole numbers:
/// two rows at a time.
class ThinBand {
public:
  /// Whether a stroke is thin enough, and not so pale that whole numbers would show.
  static bool Serves(float radius, float full)
  {
    constexpr float widest = 1.25F;
    constexpr float palest = 80.0F;
    return radius <= widest && full >= palest;
  }

  /// Pixels across or down that a segment reaches at most: all distances fit the 16 bits of a lane.
  static constexpr float longest = 26.0F;

  ThinBand(const StrokeSegment& segment, const SegmentWay& way, float full);

  /// The first two rows of an area.
  RowPair FirstOf(const PixelArea& area, const SegmentRuns& runs) const;

  /// Distances of four pixels in each of two rows from the start, along the line and across it.
  struct Distances {
    Eight along;
    Eight across;
  };

  /// Where the pixels of two rows begin, up to `lastX` from the left edge of the area.
  PairStart<Eight> StartOf(const RowPair& rows, int lastX) const
  {
    PairStart<Eight> start = rows.Start(lastX, alongX_, -alongY_);
    start.along = start.along + stepAlong_;
    start.across = start.across + stepAcross_;
    return start;
  }

  /// The next four pixels.
  void Advance(Distances& distances) const
  {
    distances.along = distances.along + nextAlong_;
    distances.across = distances.across + nextAcross_;
  }

  /// Coverage in quarters; `isFlat` where an end is flat.
  template <bool isFlat>
  Eight Cover(const Distances& distances) const
  {
    const Eight none(0);
    const Eight across = distances.across.Max(none - distances.across);
    const Eight before = none - distances.along;
    const Eight behind = distances.along - length_;
    if constexpr (!isFlat) return edge_.CoverAt(across, before.Max(behind).Max(none));
    const Eight far(-32767);
    const Eight outside = (flatFrom_ ? far : before).Max(flatTo_ ? far : behind).Max(none);
    const Eight cover = edge_.CoverAt(across, outside);
    return CutOff(cover, flatFrom_ ? before : far, flatTo_ ? behind : far);
  }

private:
  static int Fixed(float number, int bits)
  {
    return static_cast<int>(number * static_cast<float>(1 << bits));
  }

  /// The nearest whole distance.
  static int Rounded(int fixed)
  {
    constexpr int half = 1 << (BandRow::distanceBits - 1);
    return (fixed + half) >> BandRow::distanceBits;
  }

  /// Takes away what of a pixel's breadth lies beyond flat ends.
  Eight CutOff(Eight cover, Eight before, Eight behind) const
  {
    const Eight breadth(pixel_);
    const Eight halfBreadth(pixel_ / 2);
    const Eight afterStart = (halfBreadth - before).Min(breadth);
    const Eight tillEnd = (halfBreadth - behind).Min(breadth);
    const Eight inside = (afterStart + tillEnd - breadth).Max(Eight(0));
    return cover.Product(inside).Part(perPixel_).Min(cover);
  }

  PixelPosition from_;
  int pixel_;  ///< a pixel as a distance
  /// Where an end is flat 65536 * 32 / `pixel_`, rounded up: `Part` of it behind `Product`, which
  /// divide by 65536 and 32, divides by `pixel_`.
  int perPixel_ = 0;
  float perPixelX_;  ///< change of the distance along the line from one pixel to the next
  float perPixelY_;
  int alongX_;  ///< the same in small parts
  int alongY_;
  bool flatFrom_;
  bool flatTo_;

  EdgeRamp edge_;
  Eight length_;
  Eight stepAlong_;
  Eight stepAcross_;
  Eight nextAlong_;
  Eight nextAcross_;
};

inline ThinBand::ThinBand(const StrokeSegment& segment, const SegmentWay& way, float full)
    : from_(segment.from),
      flatFrom_(segment.flatFrom),
      flatTo_(segment.flatTo),
      edge_(way, segment.radius, full)
{
  constexpr int pixels = 4;
  constexpr float half = 0.5F;
  const float unit = way.UnitOf(EdgeRamp::quarters * full);
  const float pixel = way.length * unit;
  pixel_ = static_cast<int>(pixel);
  if (flatFrom_ || flatTo_) {
    constexpr float product = 65536.0F * 32.0F;
    perPixel_ = static_cast<int>(product / static_cast<float>(pixel_)) + 1;
  }
  perPixelX_ = way.dx * unit;
  perPixelY_ = way.dy * unit;
  alongX_ = Fixed(perPixelX_, BandRow::distanceBits);
  alongY_ = Fixed(perPixelY_, BandRow::distanceBits);
  length_ = Eight(static_cast<int>(way.length * pixel + half));
  stepAlong_ = Eight::Steps(Rounded(alongX_));
  stepAcross_ = Eight::Steps(Rounded(-alongY_));
  nextAlong_ = Eight(Rounded(pixels * alongX_));
  nextAcross_ = Eight(Rounded(-pixels * alongY_));
}

inline RowPair ThinBand::FirstOf(const PixelArea& area, const SegmentRuns& runs) const
{
  const float y = static_cast<float>(area.firstRow) + 0.5F;
  const auto left = static_cast<float>(area.firstX);
  const float dx = left + 0.5F - from_.x;
  const float dy = y - from_.y;
  const BandRow first = {Fixed(runs.BeginOf(y) - left, BandRow::pixelBits),
                         Fixed(dx * perPixelX_ + dy * perPixelY_, BandRow::distanceBits),
                         Fixed(dy * perPixelX_ - dx * perPixelY_, BandRow::distanceBits)};
  return {first, {Fixed(runs.slant, BandRow::pixelBits), alongY_, alongX_}};
}

}  // namespace hullwright
