#pragma once

#include "model/ShapeVertex.h"

namespace hullwright {

/// Widens the four bounds by a vertex with `margin` world units on each side. A NaN coordinate
/// widens nothing.
inline void WidenExtents(const CShapeVertex& vertex, double margin, double& minX, double& minY,
                         double& maxX, double& maxY)
{
  if (vertex.x - margin < minX) minX = vertex.x - margin;
  if (vertex.y - margin < minY) minY = vertex.y - margin;
  if (vertex.x + margin > maxX) maxX = vertex.x + margin;
  if (vertex.y + margin > maxY) maxY = vertex.y + margin;
}

}  // namespace hullwright
