#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "paint/CoverageMask.h"
#include "paint/PixelView.h"
#include "platform/Drawing.h"
#include "render/ClipPolyline.h"

namespace hullwright {

/// Strokes lines straight into a picture in memory, many times faster than a painter of any shapes
/// can. Each figure is blended once, as far as it covers each pixel: with flat ends and round
/// joins, or closed, with its corners. What is outside the picture is left out early.
class Stroker {
public:
  struct Pen {
    std::uint32_t colour = 0xff000000U;  ///< 0xffRRGGBB
    float alpha = 1.0F;                  ///< from 0, which paints nothing, to 1
    float width = 1.0F;  ///< in client pixels, more than 0; below a pixel the line gets paler
  };

  /// Takes the picture of a frame. `ratio` is pixels of it for one client pixel. A picture that is
  /// narrower than four pixels is not taken.
  void Begin(const PixelView& picture, double ratio);

  /// Lets go of the picture.
  void End() { picture_ = {}; }

  /// Whether there is a picture to stroke into.
  bool IsActive() const { return picture_.pixels != nullptr; }

  /// What a stroke of this width must come near to show in the picture, in client pixels.
  ClipRect ReachOf(float width) const;

  /// Strokes figures in client pixels into the picture, each blended by itself.
  void Draw(const Figures& figures, const Pen& pen);

private:
  void DrawFigure(std::span<const PixelPoint> points, FigureKind kind, const Pen& pen);
  void DrawClipped(std::span<const PixelPoint> points, FigureKind kind, const Pen& pen,
                   const ClipRect& area);

  /// Takes the points that count; one alone stands for a line smaller than a pixel.
  void Gather(std::span<const PixelPoint> points);
  void Close();
  void StrokeGathered(bool closed, const Pen& pen);
  void AddCorners(float radius);
  void AddCorner(PixelPosition before, PixelPosition at, PixelPosition after, float radius);
  PixelArea AreaOf(float radius) const;

  PixelView picture_;
  float ratio_ = 1.0F;
  CoverageMask mask_;
  std::vector<PixelPosition> line_;  ///< the points of one figure that count
};

}  // namespace hullwright
