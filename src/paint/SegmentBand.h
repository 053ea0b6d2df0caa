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
  SegmentBand(const StrokeSegment& segment, const SegmentWay& way, float full)
      : middle_{segment.from.x + 0.5F * way.dx, segment.from.y + 0.5F * way.dy},
        pixel_(way.length * way.UnitOf(full)),
        alongX_(way.dx * way.UnitOf(full)),
        alongY_(way.dy * way.UnitOf(full)),
        flatFrom_(segment.flatFrom),
        flatTo_(segment.flatTo),
        half_(0.5F * full),
        edge_(segment.radius * pixel_ + 0.25F * full),
        apart_(0.25F * way.smaller * way.UnitOf(full)),
        most_(full * way.MostCovered(segment.radius)),
        halfLength_(0.5F * way.length * pixel_),
        stepAlong_(Four::Steps() * Four(alongX_)),
        stepAcross_(Four::Steps() * Four(-alongY_)),
        nextAlong_(4.0F * alongX_),
        nextAcross_(-4.0F * alongY_)
  {
  }

  /// Distances of four pixels from the middle, along the line and across it.
  struct Distances {
    Four along;
    Four across;
  };
  Distances At(float x, float y) const
  {
    const float dx = x - middle_.x;
    const float dy = y - middle_.y;
    return {Four(dx * alongX_ + dy * alongY_) + stepAlong_,
            Four(dy * alongX_ - dx * alongY_) + stepAcross_};
  }

  /// The next four pixels of the row.
  void Advance(Distances& distances) const
  {
    distances.along = distances.along + nextAlong_;
    distances.across = distances.across + nextAcross_;
  }

  /// Those of the next row.
  void MoveDown(Distances& distances) const
  {
    distances.along = distances.along + Four(alongY_);
    distances.across = distances.across + Four(alongX_);
  }

  /// For any pixels, where both ends are round.
  Four CoverRound(const Distances& distances) const
  {
    return CoverWithin(distances.across, (distances.along.Abs() - halfLength_).Max(none_));
  }

  /// For any pixels, where an end is flat.
  Four CoverFlat(const Distances& distances) const
  {
    constexpr float endless = 1e9F;  // a distance that no pixel has
    const Four along = distances.along;
    const Four before = none_ - along - (flatFrom_ ? Four(endless) : halfLength_);
    const Four behind = along - (flatTo_ ? Four(endless) : halfLength_);
    const Four cover = CoverWithin(distances.across, before.Max(behind).Max(none_));
    // The part of a pixel's breadth that lies between the flat ends.
    const Four half(0.5F * pixel_);
    const Four end = flatTo_ ? halfLength_ : Four(endless);
    const Four begin = flatFrom_ ? none_ - halfLength_ : Four(-endless);
    const Four inside = (along + half).Min(end) - (along - half).Max(begin);
    // A shade more, so that rounding takes nothing from a pixel that is inside whole.
    const Four part = inside * Four(1.0001F / pixel_);
    return cover * part.Max(none_).Min(Four(1.0F));
  }

private:
  Four CoverAt(Four distance) const
  {
    const Four outer = (edge_ + apart_ - distance).Max(none_).Min(half_);
    const Four inner = (edge_ - apart_ - distance).Max(none_).Min(half_);
    return (outer + inner).Min(most_);
  }
  Four CoverWithin(Four across, Four beyond) const
  {
    return CoverAt((across * across + beyond * beyond).Sqrt());
  }

  PixelPosition middle_;
  float pixel_;   ///< a pixel as a distance
  float alongX_;  ///< change of the distance along the line from one pixel to the next
  float alongY_;
  bool flatFrom_;
  bool flatTo_;

  Four none_ = Four(0.0F);
  Four half_;   ///< what a ramp gives at most
  Four edge_;   ///< distance from the line between those at which the ramps begin
  Four apart_;  ///< that of a ramp from there
  Four most_;
  Four halfLength_;
  Four stepAlong_;
  Four stepAcross_;
  Four nextAlong_;
  Four nextAcross_;
};

}  // namespace hullwright
