#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "paint/PixelView.h"
#include "paint/SegmentBand.h"
#include "paint/ThinBand.h"

namespace hullwright {

/// How much of each pixel the strokes of a line cover. What several of them cover counts once, so
/// that no join shows, be the colour ever so transparent.
class CoverageMask {
public:
  /// Begins a line that is painted into an area of a picture. The area lies in the picture, which
  /// is at least four pixels wide; the line is painted as transparent as `alpha` (0 to 1) has it.
  /// How many segments it will have makes no difference but to speed. A line that was begun and
  /// never painted, because memory ended in it, is forgotten.
  void Begin(const PixelView& picture, const PixelArea& area, float alpha, std::size_t segments);

  /// Adds the segments of a line, in pixels of the picture: closed (its last point is its first
  /// one), or with flat ends.
  void AddLine(std::span<const PixelPosition> line, float radius, bool isClosed);

  /// Adds a segment, whose ends lie within some ten thousand pixels of the area.
  void Add(const StrokeSegment& segment);

  /// Paints the line in a colour, 0xffRRGGBB, and is empty again.
  void Paint(std::uint32_t colour);

private:
  /// Four pixels of a row that may be covered.
  struct Block {
    std::uint32_t bytes;   ///< where in the mask
    std::uint32_t pixels;  ///< where in the picture
  };

  /// Makes room for the blocks of an area.
  void Reserve(const PixelArea& area);
  void NameBlocksOnce();
  void Forget();

  /// The same as `Add`, inlined into the loop over a line.
  inline void AddSegment(const StrokeSegment& segment);
  /// Adds one whose stroke fits a square of four by four pixels of the area; false for any other.
  inline bool AddDab(const StrokeSegment& segment, const SegmentWay& way);
  template <class Cover>
  inline void AddSquare(const SegmentBand& band, int x, int row, Cover cover);
  /// Adds a segment of any length whose stroke is thin.
  void AddThin(const StrokeSegment& segment, const SegmentWay& way);
  /// Adds a short one, unless it meets one row only, or its blocks would reach out of
  /// the picture.
  bool AddShort(const StrokeSegment& segment, const SegmentWay& way);
  /// Adds a segment of any kind.
  void AddAny(const StrokeSegment& segment, const SegmentWay& way);
  template <bool isFlat>
  inline void AddPairs(ThinBand band, RowPair rows, const PixelArea& area, int blocks);
  template <class Cover>
  void AddRows(const SegmentBand& band, SegmentRuns runs, const PixelArea& area, Cover cover);

  PixelView picture_;
  PixelArea area_;
  float full_ = 255.0F;              ///< coverage of what is covered whole
  int stride_ = 0;                   ///< bytes from one row to the next
  std::vector<std::uint8_t> bytes_;  ///< coverages of the area, zero outside a line
  std::vector<Block> blocks_;        ///< room for more than there are
  std::size_t count_ = 0;            ///< blocks that there are
  bool isOpen_ = false;              ///< a line was begun
  bool isDense_ = false;             ///< blocks are looked for when all is added
};

}  // namespace hullwright
