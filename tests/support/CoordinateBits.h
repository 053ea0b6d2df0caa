#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include "model/DesignState.h"

namespace hullwright::test {

/// The coordinates of a design to their last bit: of the shapes of all sides, the three offsets and
/// the anchors.
inline std::vector<std::uint64_t> CoordinateBits(const DesignState& design)
{
  std::vector<std::uint64_t> bits;
  const auto add = [&bits](std::initializer_list<double> numbers) {
    for (const double number : numbers) bits.push_back(std::bit_cast<std::uint64_t>(number));
  };
  std::vector<CShapeVertex*> vertices = {design.offsetGps.get(), design.offsetTransducer.get(),
                                         design.offsetPivot.get()};
  for (const auto& group : design.shapeGroups) {
    for (const auto& shape : group->shapes) shape->GetVertices(vertices);
  }
  for (const CShapeVertex* v : vertices) add({v->x, v->y, v->z});
  for (const auto& anchor : design.anchors->items) {
    add({anchor->attachmentX, anchor->attachmentY});
  }
  return bits;
}

}  // namespace hullwright::test
