#pragma once

#include <cstdint>

#include "paint/Eights.h"
#include "paint/SegmentRuns.h"

namespace hullwright {

/// What a thin stroke covers of pixels, as `SegmentBand` has it, in sixteenths and in whole
/// numbers: two rows at a time. In place of half discs the ends have halves of a polygon of sixteen
/// corners, from which thin strokes can't be told.
class ThinBand {
public:
  /// Whether a stroke is thin enough, and not so pale that whole numbers would show.
  static bool Serves(float radius, float full)
  {
    constexpr float widest = 1.25F;
    constexpr float palest = 80.0F;
    return radius <= widest && full >= palest;
  }

  ThinBand(const StrokeSegment& segment, float full) : ThinBand(segment, SegmentWay(segment), full)
  {
  }

  /// Which pixels can be covered.
  const SegmentRuns& Runs() const { return runs_; }

  /// Places of a row, in parts of a pixel or of a distance too small to add up to anything.
  struct Row {
    std::int64_t begin;   ///< of its first pixel, from the left edge of the area
    std::int64_t along;   ///< distance from the start of the segment, at that edge
    std::int64_t across;  ///< distance from the line, there
  };

  /// The first row of an area.
  Row FirstOf(const PixelArea& area) const;

  Row After(const Row& row) const
  {
    return {row.begin + slant_, row.along + alongY_, row.across + alongX_};
  }

  /// Coverage of four pixels in each of two rows, so many pixels from the left edge of the area.
  template <bool isFlat>
  Eight Cover(const Row& upper, int upperX, const Row& lower, int lowerX) const
  {
    const std::int64_t upperAlong = upper.along + upperX * alongX_;
    const std::int64_t lowerAlong = lower.along + lowerX * alongX_;
    const Eight across =
        Eight(Whole(upper.across - upperX * alongY_), Whole(lower.across - lowerX * alongY_)) +
        stepAcross_;
    const Eight along = Eight(Whole(upperAlong), Whole(lowerAlong)) + stepAlong_;
    const Eight left = Eight(Whole(length_ - upperAlong), Whole(length_ - lowerAlong)) - stepAlong_;
    const Eight none(0);
    Eight inside = along.Min(left);
    if constexpr (isFlat) {
      inside = (flatFrom_ ? far_ : along).Min(flatTo_ ? far_ : left);
    }
    const Eight cover = CoverAt(Hypotenuse(across.Max(none - across), (none - inside).Max(none)));
    if constexpr (!isFlat) return cover;
    return CutOff(cover, flatFrom_ ? along : far_, flatTo_ ? left : far_);
  }

private:
  ThinBand(const StrokeSegment& segment, const SegmentWay& way, float full);

  static constexpr unsigned fractionBits = 16;
  static constexpr int one = 1 << fractionBits;

  static std::int64_t Fixed(float number)
  {
    return static_cast<std::int64_t>(number * static_cast<float>(one));
  }

  /// Fits up to a distance of 700,000 pixels, many times that of any end of a segment.
  static int Whole(std::int64_t fixed) { return static_cast<int>(fixed >> fractionBits); }

  /// Length of the longest side of a triangle, up to 2 % less: the largest of three planes.
  static Eight Hypotenuse(Eight a, Eight b)
  {
    constexpr int cosine = 60547;  // of an eighth of half a turn, in parts of `one`
    constexpr int sine = 25080;
    constexpr int diagonal = 46341;
    const Eight longer = a.Max(b);
    const Eight shorter = a.Min(b);
    const Eight between = longer.Part(cosine) + shorter.Part(sine);
    return longer.Max(between).Max(longer.Part(diagonal) + shorter.Part(diagonal));
  }

  Eight CoverAt(Eight distance) const
  {
    const Eight none(0);
    const Eight outer = (outerLimit_ - distance).Max(none).Min(half_);
    const Eight inner = (innerLimit_ - distance).Max(none).Min(half_);
    return (outer + inner).Min(most_);
  }

  /// Takes away what of a pixel's breadth lies beyond flat ends.
  Eight CutOff(Eight cover, Eight along, Eight left) const
  {
    const Eight breadth(pixel_);
    const Eight halfBreadth(pixel_ / 2);
    const Eight before = (along + halfBreadth).Min(breadth);
    const Eight behind = (left + halfBreadth).Min(breadth);
    const Eight inside = (before + behind - breadth).Max(Eight(0));
    return cover.Product(inside).Part(perPixel_).Min(cover);
  }

  SegmentRuns runs_;
  PixelPosition from_;
  int pixel_;         ///< a pixel as a distance
  int perPixel_ = 0;  ///< a pixel's distance is the whole, in parts of `one` of 512 times it
  float perPixelX_;   ///< change of the distance along the line from one pixel to the next
  float perPixelY_;
  std::int64_t alongX_;  ///< the same in small parts
  std::int64_t alongY_;
  std::int64_t slant_;
  std::int64_t length_;
  bool flatFrom_;
  bool flatTo_;

  Eight far_{32767};
  Eight half_;        ///< what a ramp gives at most
  Eight outerLimit_;  ///< distance from the line at which a ramp begins
  Eight innerLimit_;
  Eight most_;
  Eight stepAlong_;
  Eight stepAcross_;
};

}  // namespace hullwright
