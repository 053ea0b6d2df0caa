#pragma once

#include "paint/Eights.h"
#include "paint/SegmentRuns.h"

namespace hullwright {

/// How a thin stroke fades at its edge, in quarters and in whole numbers, as `SegmentBand` has it.
/// In place of half discs the ends have halves of a polygon of sixteen corners, from which thin
/// strokes can't be told.
class EdgeRamp {
public:
  static constexpr float quarters = 4.0F;

  /// For a coverage of `full` where a pixel is covered whole.
  EdgeRamp(const SegmentWay& way, float radius, float full)
  {
    const auto rounded = [](float number) {
      constexpr float half = 0.5F;
      return Eight(static_cast<int>(number + half));
    };
    const float whole = full * quarters;
    const float unit = way.UnitOf(whole);
    const float edge = radius * way.length * unit + 0.25F * whole;
    const float apart = 0.25F * way.smaller * unit;
    half_ = rounded(0.5F * whole);
    outerLimit_ = rounded(edge + apart);
    innerLimit_ = rounded(edge - apart);
    most_ = rounded(whole * way.MostCovered(radius));
  }

  /// Coverage at a distance across the line and one beyond its ends, neither below zero.
  Eight CoverAt(Eight across, Eight beyond) const
  {
    const Eight none(0);
    const Eight distance = Hypotenuse(across, beyond);
    const Eight outer = (outerLimit_ - distance).Max(none).Min(half_);
    const Eight inner = (innerLimit_ - distance).Max(none).Min(half_);
    return (outer + inner).Min(most_);
  }

private:
  /// Length of the longest side of a triangle, up to 2 % less: the largest of three planes.
  static Eight Hypotenuse(Eight a, Eight b)
  {
    constexpr int cosine = 60547;  // of an eighth of half a turn, in parts of 65536
    constexpr int sine = 25080;
    constexpr int diagonal = 46341;
    const Eight longer = a.Max(b);
    const Eight shorter = a.Min(b);
    const Eight between = longer.Part(cosine) + shorter.Part(sine);
    return longer.Max(between).Max(longer.Part(diagonal) + shorter.Part(diagonal));
  }

  Eight half_;        ///< what a ramp gives at most
  Eight outerLimit_;  ///< distance from the line at which a ramp begins
  Eight innerLimit_;
  Eight most_;
};

}  // namespace hullwright
