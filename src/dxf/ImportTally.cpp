#include "dxf/ImportTally.h"

namespace hullwright {

void ImportTally::CountShapes(const CShapes& group)
{
  ForEachEntry(group.shapes, [this](const CShape& shape) {
    switch (shape.type) {
      case ShapeType::Polyline: ++polylines; break;
      case ShapeType::Point: ++points; break;
      case ShapeType::Polygon: ++areas; break;
      case ShapeType::Text: ++texts; break;
      default: break;
    }
    shape.GetExtents(extents);
  });
}

}  // namespace hullwright
