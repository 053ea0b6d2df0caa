#include "file/DesignNumbers.h"

#include <cmath>
#include <map>

#include "file/DesignElements.h"

namespace hullwright {
namespace {

using Visit = std::function<void(const DesignNumber&)>;

void VisitIfNotFinite(const DesignNumber& number, const Visit& visit)
{
  if (!std::isfinite(number.value)) visit(number);
}

/// Reports the coordinates of a vertex; `number` is its place.
void VisitCoordinates(const CShapeVertex& vertex, DesignNumber number, const Visit& visit)
{
  for (const Coordinate& coordinate : coordinates) {
    number.name = coordinate.Name();
    number.value = vertex.*coordinate.member;
    VisitIfNotFinite(number, visit);
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
    if (offset != nullptr) VisitCoordinates(*offset, {element, {}, 0.0}, visit);
  }
  ForEachUpToNull(design.anchors->items, [&](const CAnchor& anchor) {
    for (const DesignElement& element : designElements) {
      const auto* const member = std::get_if<double CAnchor::*>(&element.member);
      if (member == nullptr || element.use != ElementUse::Saved) continue;
      VisitIfNotFinite({element, element.name, anchor.**member, nullptr, 0, 0, 0, &anchor}, visit);
    }
  });
}

}  // namespace hullwright
