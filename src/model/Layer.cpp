#include "model/Layer.h"

namespace hullwright {

void CLayer::UpdateExtents()
{
  if (!shapes) return;
  const bool computed =
      extents.minX != 0.0 && extents.minY != 0.0 && extents.maxX != 0.0 && extents.maxY != 0.0;
  if (computed) return;
  extents = emptyLayerExtents;
  shapes->GetExtents(extents);
}

}  // namespace hullwright
