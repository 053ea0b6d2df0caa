#include "dxf/OpenPolyline.h"

#include <utility>

#include "dxf/DxfCurves.h"

namespace hullwright {

void OpenPolyline::Begin()
{
  pendingPolyline_.reset();
  polylineExtrusion_ = Extrusion();
}

void OpenPolyline::End(CShapes& target)
{
  constexpr std::int32_t closed = 1;  // the whole value: 9, a closed line in space, stays open
  std::vector<CFileDxfVertex> vertices = std::move(polylineVertices_);
  polylineVertices_.clear();
  std::unique_ptr<CShapePolyline> shape = std::exchange(pendingPolyline_, nullptr);
  if (shape) {
    if (polylineFlags_ == closed && !vertices.empty()) vertices.emplace_back(vertices.front());
    AppendFlattened(*shape, vertices, polylineExtrusion_);
    target.shapes.push_back(std::move(shape));
  }
  vertices.clear();
  polylineVertices_ = std::move(vertices);  // the storage serves the next one
}

}  // namespace hullwright
