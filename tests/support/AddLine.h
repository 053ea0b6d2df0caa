#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>

#include "model/DesignState.h"
#include "model/ShapePolyline.h"

namespace hullwright::test {

/// Adds a polyline to the group of a side, which is made if need be.
inline CShapePolyline& AddLine(DesignState& design, ViewSide side,
                               std::initializer_list<CShapeVertex> vertices)
{
  auto line = std::make_unique<CShapePolyline>();
  for (const CShapeVertex& v : vertices) line->AddVertex(v.x, v.y, v.z);
  CShapePolyline& added = *line;
  GetShapes(design.shapeGroups, side)->shapes.push_back(std::move(line));
  return added;
}

/// Adds an anchor behind the others.
inline CAnchor& AddAnchor(DesignState& design, std::uint32_t id, double x, double y,
                          std::u16string name = {})
{
  CAnchor& anchor = *design.anchors->items.emplace_back(std::make_unique<CAnchor>());
  anchor.id = id;
  anchor.name = std::move(name);
  anchor.attachmentX = x;
  anchor.attachmentY = y;
  return anchor;
}

}  // namespace hullwright::test
