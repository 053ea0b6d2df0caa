#include "file/DesignNumbers.h"

#include <cmath>
#include <map>

#include "file/DesignElements.h"

namespace hullwright {
namespace {

using Visit = std::function<void(const DesignNumber&)>;

/// Reports the coordinates of a vertex; `number` is its place.
void VisitCoordinates(const CShapeVertex& vertex, DesignNumber& number, const Visit& visit)
{
  for (const Coordinate& coordinate : coordinates) {
    if (std::isfinite(vertex.*coordinate.member)) continue;
    number.name = coordinate.Name();
    number.value = vertex.*coordinate.member;
    visit(number);
  }
}

void VisitVertices(const CShapes& group, std::size_t groupNumber, const Visit& visit)
{
  DesignNumber number = {ElementOf(ElementKind::Vertex), {}, 0.0, &group, groupNumber};
  ForEachUpToNull(group.shapes, [&](const CShape& shape) {
    if (shape.type != ShapeType::Polyline) return;
    ++number.polylineNumber;
    number.vertexNumber = 0;
    ForEachUpToNull(shape.vertices, [&](const CShapeVertex& vertex) {
      ++number.vertexNumber;
      VisitCoordinates(vertex, number, visit);
    });
  });
}

}  // namespace

void ForEachNonFiniteNumber(const DesignState& design, const Visit& visit)
{
  std::map<decltype(CShapes::viewCode), std::size_t> groups;
  ForEachUpToNull(design.shapeGroups, [&](const CShapes& group) {
    VisitVertices(group, ++groups[group.viewCode], visit);
  });
  for (const DesignElement& element : designElements) {
    const auto* const member = std::get_if<OffsetMember>(&element.member);
    const CShapeVertex* const offset =
        member == nullptr ? nullptr : (design.*member->inDesign).get();
    DesignNumber number = {element, {}, 0.0};
    if (offset != nullptr) VisitCoordinates(*offset, number, visit);
  }
  ForEachUpToNull(design.anchors->items, [&](const CAnchor& anchor) {
    for (const DesignElement& element : designElements) {
      const auto* const member = std::get_if<double CAnchor::*>(&element.member);
      if (member == nullptr || element.use != ElementUse::Saved) continue;
      const double value = anchor.**member;
      if (!std::isfinite(value)) visit({element, element.name, value, nullptr, 0, 0, 0, &anchor});
    }
  });
}

}  // namespace hullwright
