#pragma once

#include "model/ShapeVertex.h"

namespace hullwright {

/// Widens the four bounds by a stretch of the world. A bound that is not a number widens nothing.
inline void WidenExtents(double fromX, double fromY, double toX, double toY, double& minX,
                         double& minY, double& maxX, double& maxY)
{
  if (fromX < minX) minX = fromX;
  if (fromY < minY) minY = fromY;
  if (toX > maxX) maxX = toX;
  if (toY > maxY) maxY = toY;
}

/// Widens the four bounds by a vertex, without a margin: its very bits become the bounds.
inline void WidenExtents(const CShapeVertex& vertex, double& minX, double& minY, double& maxX,
                         double& maxY)
{
  WidenExtents(vertex.x, vertex.y, vertex.x, vertex.y, minX, minY, maxX, maxY);
}

/// Widens the four bounds by a vertex with a margin of one world unit on each side, at any zoom.
inline void WidenExtentsAround(const CShapeVertex& vertex, double& minX, double& minY, double& maxX,
                               double& maxY)
{
  constexpr double margin = 1.0;
  WidenExtents(vertex.x - margin, vertex.y - margin, vertex.x + margin, vertex.y + margin, minX,
               minY, maxX, maxY);
}

}  // namespace hullwright
