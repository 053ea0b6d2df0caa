#pragma once

#include "paint/Lanes.h"
#include "paint/PixelView.h"

namespace hullwright {

/// The stroke of one segment, with half discs around its ends unless an end is flat.
struct StrokeSegment {
  PixelPosition from;
  PixelPosition to;
  float radius = 0.5F;  ///< half the width, at least half a pixel
  bool flatFrom = false;
  bool flatTo = false;
};

/// What the stroke of a segment covers of pixels, from 0 to `full`: the square of a pixel slides
/// over its edge. What a slanted square has before the edge grows slowly at its corners, fast
/// between them; the mean of two straight ramps, one a little before the other, is within 2 % of
/// that. Distances are kept in such parts of a pixel that a ramp rises by one for one.
class SegmentBand {
public:
  SegmentBand(const StrokeSegment& segment, float full);

  /// Where pixels can be covered.
  const PixelArea& Reach() const { return reach_; }

  /// The middle of the band in a row, and half of what it covers of that row.
  float MiddleOf(float y) const { return from_.x + (y - from_.y) * slant_; }
  float HalfRun() const { return halfRun_; }

  /// Distances of four pixels from the start, along the line and across it.
  struct Distances {
    Four along;
    Four across;
  };
  Distances At(float x, float y) const
  {
    const float dx = x - from_.x;
    const float dy = y - from_.y;
    return {Four(dx * alongX_ + dy * alongY_) + stepAlong_,
            Four(dy * alongX_ - dx * alongY_) + stepAcross_};
  }
  void Advance(Distances& distances) const
  {
    distances.along = distances.along + nextAlong_;
    distances.across = distances.across + nextAcross_;
  }

  /// Whether a run of pixels lies beside the segment, not around its ends.
  bool IsBeside(float x, float y, float pixels) const
  {
    const float begin = (x - from_.x) * alongX_ + (y - from_.y) * alongY_;
    const float end = begin + pixels * alongX_;
    return std::min(begin, end) >= besideFrom_ && std::max(begin, end) <= besideTo_;
  }

  /// For pixels beside the segment.
  Four CoverBeside(const Distances& distances) const { return CoverAt(distances.across.Size()); }

  /// For any pixels, where both ends are round.
  Four CoverRound(const Distances& distances) const
  {
    const Four beyond = (none_ - distances.along).Most(distances.along - length_).Most(none_);
    return CoverWithin(distances.across, beyond);
  }

  /// For any pixels, where an end is flat.
  Four CoverFlat(const Distances& distances) const;

private:
  Four CoverAt(Four distance) const
  {
    const Four outer = (outerLimit_ - distance).Most(none_).Least(half_);
    const Four inner = (innerLimit_ - distance).Most(none_).Least(half_);
    return (outer + inner).Least(most_);
  }
  Four CoverWithin(Four across, Four beyond) const
  {
    return CoverAt((across * across + beyond * beyond).Root());
  }
  void SetReach(const StrokeSegment& segment);

  PixelPosition from_;
  float pixel_;   ///< a pixel as a distance
  float alongX_;  ///< change of the distance along the line from one pixel to the next
  float alongY_;
  float slant_;
  float halfRun_;
  float besideFrom_;
  float besideTo_;
  PixelArea reach_;
  bool flatFrom_;
  bool flatTo_;

  Four none_;
  Four half_;        ///< what a ramp gives at most
  Four outerLimit_;  ///< distance from the line at which a ramp begins
  Four innerLimit_;
  Four most_;
  Four length_;
  Four stepAlong_;
  Four stepAcross_;
  Four nextAlong_;
  Four nextAcross_;
};

}  // namespace hullwright
