#pragma once

#include <QImage>
#include <QPolygonF>
#include <vector>

#include "model/Extents.h"
#include "model/Shapes.h"

namespace hullwright::bench {

/// A frame as a plain Qt program would draw it: each outline, kept as the painter wants it, with
/// `drawPolyline`, antialiased, a cosmetic pen, and the painter's own transformation.
class PainterFrame {
public:
  PainterFrame(const CShapes& group, int width, int height);

  /// Draws the stretch of the world that is in view.
  void Draw(const Extents& view, double penWidth);

  const QImage& Picture() const { return picture_; }

private:
  std::vector<QPolygonF> outlines_;
  QImage picture_;
};

}  // namespace hullwright::bench
