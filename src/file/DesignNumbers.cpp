#include "file/DesignNumbers.h"

#include <cmath>
#include <map>

#include "file/DesignElements.h"

namespace hullwright {
namespace {

using Tell = std::function<void(const DesignNumber&)>;

void TellIfNotFinite(const DesignNumber& number, const Tell& tell)
{
  if (!std::isfinite(number.value)) tell(number);
}

/// Reports the coordinates of a vertex; `number` is its place.
void TellCoordinates(const CShapeVertex& vertex, DesignNumber number, const Tell& tell)
{
  for (const Coordinate& coordinate : coordinates) {
    number.name = coordinate.Name();
    number.value = vertex.*coordinate.member;
    TellIfNotFinite(number, tell);
  }
}

void TellVertices(const CShapes& group, std::size_t groupNumber, const Tell& tell)
{
  DesignNumber number = {ElementOf(ElementKind::Vertex), {}, 0.0, &group, groupNumber};
  ForEachUpToNull(group.shapes, [&](const CShape& shape) {
    if (shape.type != ShapeType::Polyline) return;
    ++number.polylineNumber;
    number.vertexNumber = 0;
    ForEachUpToNull(shape.vertices, [&](const CShapeVertex& vertex) {
      ++number.vertexNumber;
      TellCoordinates(vertex, number, tell);
    });
  });
}

}  // namespace

void ForEachNonFiniteNumber(const DesignState& design, const Tell& tell)
{
  std::map<decltype(CShapes::viewCode), std::size_t> groups;
  ForEachUpToNull(design.shapeGroups, [&](const CShapes& group) {
    TellVertices(group, ++groups[group.viewCode], tell);
  });
  for (const DesignElement& element : designElements) {
    const auto* const member = std::get_if<OffsetMember>(&element.member);
    const CShapeVertex* const offset =
        member == nullptr ? nullptr : (design.*member->inDesign).get();
    if (offset != nullptr) TellCoordinates(*offset, {element, {}, 0.0}, tell);
  }
  ForEachUpToNull(design.anchors->items, [&](const CAnchor& anchor) {
    for (const DesignElement& element : designElements) {
      const auto* const member = std::get_if<double CAnchor::*>(&element.member);
      if (member == nullptr || element.use != ElementUse::Saved) continue;
      TellIfNotFinite({element, element.name, anchor.**member, nullptr, 0, 0, 0, &anchor}, tell);
    }
  });
}

}  // namespace hullwright
