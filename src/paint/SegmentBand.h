#pragma once

#include "paint/Fours.h"
#include "paint/SegmentRuns.h"

namespace hullwright {

/// What the stroke of a segment covers of pixels, from 0 to `full`: the square of a pixel slides
/// over its edge. What a slanted square has before the edge grows slowly at its corners, fast
/// between them; the mean of two straight ramps, one a little before the other, is within 2 % of
/// that. Distances are kept in such parts of a pixel that a ramp rises by one for one.
class SegmentBand {
public:
  SegmentBand(const StrokeSegment& segment, const SegmentWay& way, float full);

  /// Which pixels can be covered.
  const SegmentRuns& Runs() const { return runs_; }

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

  /// For any pixels, where both ends are round.
  Four CoverRound(const Distances& distances) const
  {
    const Four beyond = (none_ - distances.along).Max(distances.along - length_).Max(none_);
    return CoverWithin(distances.across, beyond);
  }

  /// For any pixels, where an end is flat.
  Four CoverFlat(const Distances& distances) const;

private:
  Four CoverAt(Four distance) const
  {
    const Four outer = (outerLimit_ - distance).Max(none_).Min(half_);
    const Four inner = (innerLimit_ - distance).Max(none_).Min(half_);
    return (outer + inner).Min(most_);
  }
  Four CoverWithin(Four across, Four beyond) const
  {
    return CoverAt((across * across + beyond * beyond).Sqrt());
  }

  SegmentRuns runs_;
  PixelPosition from_;
  float pixel_;   ///< a pixel as a distance
  float alongX_;  ///< change of the distance along the line from one pixel to the next
  float alongY_;
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
