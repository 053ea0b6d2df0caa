#pragma once

#include <limits>

#include "model/ShapeVertex.h"

namespace hullwright {

/// An upright box of the world. One that nothing has widened yet has its bounds the wrong way
/// round.
struct Extents {
  double minX = std::numeric_limits<double>::max();
  double minY = std::numeric_limits<double>::max();
  double maxX = -std::numeric_limits<double>::max();
  double maxY = -std::numeric_limits<double>::max();

  /// Whether there is no box: a lower bound lies above its upper one, or is not a number.
  constexpr bool IsEmpty() const { return !(minX <= maxX && minY <= maxY); }

  /// Widens the box by a place; its very bits become the bounds. A coordinate that is not a number
  /// widens nothing.
  constexpr void Widen(double x, double y) { WidenBy(x, y, x, y); }

  /// Widens the box by a vertex.
  void Widen(const CShapeVertex& vertex) { Widen(vertex.x, vertex.y); }

  /// Widens the box by another one; an empty one widens nothing.
  constexpr void Widen(const Extents& box) { WidenBy(box.minX, box.minY, box.maxX, box.maxY); }

  /// Widens the box by a vertex with a margin of one world unit on each side, at any zoom.
  void WidenAround(const CShapeVertex& vertex)
  {
    constexpr double margin = 1.0;
    WidenBy(vertex.x - margin, vertex.y - margin, vertex.x + margin, vertex.y + margin);
  }

private:
  constexpr void WidenBy(double fromX, double fromY, double toX, double toY)
  {
    if (fromX < minX) minX = fromX;
    if (fromY < minY) minY = fromY;
    if (toX > maxX) maxX = toX;
    if (toY > maxY) maxY = toY;
  }
};

/// An empty box whose bounds begin at a reach from the origin. A lower bound above the reach, or an
/// upper one below its negative, is never taken over.
constexpr Extents EmptyWithin(double reach) { return {reach, reach, -reach, -reach}; }

/// What the box of a drawing's layer begins with; it is reported as it is where the layer has no
/// shapes.
inline constexpr Extents emptyLayerExtents = EmptyWithin(1e24);

/// What the box begins with that a single shape is shown in.
inline constexpr Extents emptyZoomExtents = EmptyWithin(1e10);

}  // namespace hullwright
