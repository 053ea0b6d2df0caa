#include "model/Layer.h"

namespace hullwright {
namespace {

bool IsComputed(const Extents& box)
{
  return box.minX != 0.0 && box.minY != 0.0 && box.maxX != 0.0 && box.maxY != 0.0;
}

}  // namespace

void CLayer::UpdateExtents()
{
  if (!shapes || IsComputed(extents)) return;
  Extents ofShapes;
  shapes->GetExtents(ofShapes);
  UpdateExtents(ofShapes);
}

void CLayer::UpdateExtents(const Extents& ofShapes)
{
  if (IsComputed(extents)) return;
  extents = emptyLayerExtents;
  extents.Widen(ofShapes);
}

}  // namespace hullwright
