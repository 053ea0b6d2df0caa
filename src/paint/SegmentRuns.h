#pragma once

#include <algorithm>
#include <cmath>

#include "paint/PixelView.h"

namespace hullwright {

/// The stroke of one segment, with half discs around its ends unless an end is flat.
struct StrokeSegment {
  PixelPosition from;
  PixelPosition to;
  float radius = 0.5F;  ///< half the width, at least half a pixel
  bool flatFrom = false;
  bool flatTo = false;

  bool HasFlatEnd() const { return flatFrom || flatTo; }

  /// The rows and columns of the pixels whose centres come nearer to the line than a limit.
  PixelArea ReachOf(float limit) const
  {
    // Truncated, so that one more may count; of those left of the picture, only that they are.
    const float margin = limit - 0.5F;
    return {static_cast<int>(std::min(from.y, to.y) - margin),
            static_cast<int>(std::max(from.y, to.y) + margin),
            static_cast<int>(std::min(from.x, to.x) - margin),
            static_cast<int>(std::max(from.x, to.x) + margin)};
  }
};

/// The way from the start of a segment to its end. One without length leads to the right.
struct SegmentWay {
  explicit SegmentWay(const StrokeSegment& segment)
      : dx(segment.to.x - segment.from.x),
        dy(segment.to.y - segment.from.y),
        length(std::sqrt(dx * dx + dy * dy))
  {
    constexpr float shortest = 1e-6F;
    if (length < shortest) {
      dx = shortest;
      dy = 0.0F;
      length = shortest;
    }
    larger = std::max(std::abs(dx), std::abs(dy));
    smaller = std::min(std::abs(dx), std::abs(dy));
  }

  /// How far from the line the coverage of a stroke ends, in pixels.
  float LimitOf(float radius) const { return radius + (0.5F * larger + 0.25F * smaller) / length; }

  /// The same for a way of any direction, or a little more.
  static float MostLimitOf(float radius)
  {
    constexpr float most = 0.56F;  // the root of 0.5 * 0.5 + 0.25 * 0.25, rounded up
    return radius + most;
  }

  /// Distances are scaled so that the ramp at an edge, which is `larger / length` pixels wide and
  /// rises to half of `whole`, rises by one for one: a pixel is then `length` times this. Times dx
  /// or dy it is what a step of one pixel along x or y adds to the distance along the line.
  float UnitOf(float whole) const { return 0.5F * whole / larger; }

  /// What a stroke covers of a pixel whose centre it runs through: not all of it where it is thin
  /// and slants, for the corners of the pixel reach out.
  float MostCovered(float radius) const
  {
    constexpr float sliver = 0.001F;
    const float outside = (larger + smaller) * 0.5F - radius * length;
    return outside < sliver * length ? 1.0F : 1.0F - outside * outside / (larger * smaller);
  }

  /// The way of one of so many equal parts.
  SegmentWay PartOf(int count) const
  {
    SegmentWay part = *this;
    const float share = 1.0F / static_cast<float>(count);
    part.dx *= share;
    part.dy *= share;
    part.length *= share;
    part.larger *= share;
    part.smaller *= share;
    return part;
  }

  float dx;
  float dy;
  float length;
  float larger;   ///< of the sizes of dx and dy
  float smaller;  ///< the other one
};

/// The pixels that a stroke may cover: in each row as many, from a place that moves evenly.
struct SegmentRuns {
  SegmentRuns(const StrokeSegment& segment, const SegmentWay& way)
  {
    constexpr int worthwhile = 5;
    constexpr float level = 0.001F;
    const float limit = way.LimitOf(segment.radius);
    reach = segment.ReachOf(limit);
    fromY = segment.from.y;
    // A short line, or one that is nearly level, meets each of its rows on its whole length.
    if (reach.Width() >= worthwhile && std::abs(way.dy) > level * way.length)
      Narrow(segment, way, limit);
  }

  /// Where in a row the first pixel begins, or up to one further left.
  float BeginOf(float y) const { return begin + (y - fromY) * slant; }

  /// Blocks of four pixels in each row of an area.
  int BlocksIn(const PixelArea& area) const
  {
    constexpr unsigned block = 4;
    const auto most = static_cast<unsigned>(std::min(run, area.Width()));
    return static_cast<int>((most + block - 1) / block);
  }

  PixelArea reach;
  float begin = -1.0F;  ///< in the row of the start
  float fromY = 0.0F;
  float slant = 0.0F;  ///< change from one row to the next
  int run = 1 << 30;   ///< pixels of a row at most

private:
  void Narrow(const StrokeSegment& segment, const SegmentWay& way, float limit)
  {
    const float perRow = 1.0F / way.dy;
    const float half = limit * way.length * std::abs(perRow);
    run = static_cast<int>(2.0F * half) + 1;
    slant = way.dx * perRow;
    begin = segment.from.x - half + 0.5F;
  }
};

}  // namespace hullwright
