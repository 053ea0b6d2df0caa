#include "dxf/OpenPolyline.h"

#include <utility>

#include "dxf/DxfCurves.h"

namespace hullwright {

std::unique_ptr<CShapePolyline> OpenPolyline::End(std::size_t mostVertices, bool& leftOut)
{
  constexpr std::int32_t closed = 1;  // the whole value: 9, a closed line in space, stays open
  std::vector<CFileDxfVertex> vertices = std::move(polylineVertices_);
  polylineVertices_.clear();
  std::unique_ptr<CShapePolyline> shape = std::exchange(pendingPolyline_, nullptr);
  if (shape) {
    if (polylineFlags_ == closed && !vertices.empty()) vertices.emplace_back(vertices.front());
    leftOut = !FlattensWithin(mostVertices, vertices);
    if (leftOut) {
      shape.reset();
    } else {
      AppendFlattened(*shape, vertices, polylineExtrusion_);
    }
  }
  vertices.clear();
  polylineVertices_ = std::move(vertices);  // the storage serves the next one
  return shape;
}

}  // namespace hullwright
