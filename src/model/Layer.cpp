#include "model/Layer.h"

namespace hullwright {

void CLayer::UpdateExtents()
{
  constexpr double unreached = 1e24;
  if (!shapes) return;
  if (minX != 0.0 && minY != 0.0 && maxX != 0.0 && maxY != 0.0) return;
  minX = minY = unreached;
  maxX = maxY = -unreached;
  Walk(shapes->cursor, shapes->shapes,
       [this](const CShape& shape) { shape.GetExtents(minX, minY, maxX, maxY); });
}

}  // namespace hullwright
