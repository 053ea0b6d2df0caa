#include "dxf/ImportTally.h"

namespace hullwright {

void ImportTally::CountShapes(const CShapes& group)
{
  for (; counted < group.shapes.size(); ++counted) {
    const CShape* const shape = group.shapes[counted].get();
    if (shape == nullptr) continue;
    switch (shape->type) {
      case ShapeType::Polyline: ++polylines; break;
      case ShapeType::Point: ++points; break;
      case ShapeType::Polygon: ++areas; break;
      case ShapeType::Text: ++texts; break;
      default: break;
    }
    shape->GetExtents(extents);
  }
}

}  // namespace hullwright
