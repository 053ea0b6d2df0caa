#include "compare/CompareDesigns.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/Code.h"
#include "compare/AnchorChanges.h"
#include "compare/ShapeMatching.h"
#include "compare/VertexChanges.h"
#include "model/OffsetPoints.h"

namespace hullwright {
namespace {

std::vector<OffsetDifference> CompareOffsets(const DesignState& former, UnitCode formerUnit,
                                             const DesignState& current, const Tolerance& tolerance)
{
  std::vector<OffsetDifference> differences;
  int kind = -1;
  for (const OffsetPoint& point : offsetPoints) {
    ++kind;
    const CShapeVertex* const formerPoint = (former.*point.place).get();
    const CShapeVertex* const currentPoint = (current.*point.place).get();
    if (formerPoint == nullptr || currentPoint == nullptr) continue;
    const Place formerPlace = PlaceOf(*formerPoint, formerUnit, current.unitCode);
    const Place currentPlace = PlaceOf(*currentPoint, current.unitCode, current.unitCode);
    if (!tolerance.Same(formerPlace, currentPlace)) {
      differences.push_back({OffsetKind{kind}, {formerPlace, currentPlace}});
    }
  }
  return differences;
}

/// A difference without what differs.
ShapeDifference DifferenceOf(ShapeChange change, const ShapeRecord* former,
                             const ShapeRecord* current)
{
  const ShapeRecord& shown = current == nullptr ? *former : *current;
  ShapeDifference difference;
  difference.side = shown.side;
  difference.type = shown.type;
  difference.change = change;
  if (former != nullptr) {
    difference.number.former = former->number;
    difference.vertexCount.former = former->vertices.size();
    difference.text.former = former->form.text;
  }
  if (current != nullptr) {
    difference.number.current = current->number;
    difference.vertexCount.current = current->vertices.size();
    difference.text.current = current->form.text;
  }
  for (const Place& vertex : shown.vertices) difference.box.Widen(vertex.x, vertex.y);
  return difference;
}

/// What differs between two shapes that are one and the same; nothing where they are equal.
std::optional<ShapeDifference> CompareShapes(const ShapeRecord& former, const ShapeRecord& current,
                                             MatchRule rule, const Tolerance& tolerance)
{
  ShapeDifference difference = DifferenceOf(ShapeChange::Changed, &former, &current);
  if (former.style != current.style) difference.style = {{former.style, current.style}};
  difference.otherForm = former.form != current.form;
  if (rule == MatchRule::Moved) {
    difference.change = ShapeChange::Moved;
    difference.by = Way(former.vertices[0], current.vertices[0]);
    return difference;
  }
  if (rule == MatchRule::Changed) {
    difference.vertices = CompareVertices(former.vertices, current.vertices, tolerance);
    difference.reversed =
        !difference.vertices.empty() && IsReversed(former.vertices, current.vertices, tolerance);
    if (difference.reversed) difference.vertices.clear();
  }
  const bool differs = difference.style || difference.otherForm || difference.reversed ||
                       !difference.vertices.empty();
  return differs ? std::optional(std::move(difference)) : std::nullopt;
}

/// By side and type, in the order of the current design; removed shapes come last.
bool IsReportedBefore(const ShapeDifference& a, const ShapeDifference& b)
{
  const auto rank = [](const ShapeDifference& d) {
    return std::tuple(NumberOf(d.side), NumberOf(d.type), d.number.current == 0, d.number.current,
                      d.number.former);
  };
  return rank(a) < rank(b);
}

std::vector<ShapeDifference> CompareAllShapes(const std::vector<ShapeRecord>& former,
                                              const std::vector<ShapeRecord>& current,
                                              const Tolerance& tolerance)
{
  std::vector<ShapeDifference> differences;
  std::vector<bool> formerMatched(former.size());
  std::vector<bool> currentMatched(current.size());
  for (const ShapeMatch& match : MatchShapes(former, current, tolerance)) {
    formerMatched[match.former] = true;
    currentMatched[match.current] = true;
    auto difference =
        CompareShapes(former[match.former], current[match.current], match.rule, tolerance);
    if (difference) differences.push_back(std::move(*difference));
  }
  for (std::size_t i = 0; i < former.size(); ++i) {
    if (formerMatched[i]) continue;
    differences.push_back(DifferenceOf(ShapeChange::Removed, &former[i], nullptr));
  }
  for (std::size_t i = 0; i < current.size(); ++i) {
    if (currentMatched[i]) continue;
    differences.push_back(DifferenceOf(ShapeChange::Added, nullptr, &current[i]));
  }
  std::ranges::sort(differences, IsReportedBefore);
  return differences;
}

/// The differences where the numbers of the former design are those of a unit.
Differences CompareIn(UnitCode formerUnit, const DesignState& former, const DesignState& current,
                      const CompareOptions& options)
{
  const Tolerance tolerance(options.tolerance);
  Differences differences;
  if (options.symbols) {
    differences.offsets = CompareOffsets(former, formerUnit, current, tolerance);
    differences.anchors =
        CompareAnchors(*former.anchors, formerUnit, *current.anchors, current.unitCode, tolerance);
  }
  const DesignRecords formerRecords(former, formerUnit, current.unitCode, options.shapes);
  const DesignRecords currentRecords(current, current.unitCode, current.unitCode, options.shapes);
  differences.shapes = CompareAllShapes(formerRecords.Shapes(), currentRecords.Shapes(), tolerance);
  return differences;
}

}  // namespace

Differences CompareDesigns(const DesignState& former, const DesignState& current,
                           const CompareOptions& options)
{
  Differences differences = CompareIn(former.unitCode, former, current, options);
  if (former.unitCode != current.unitCode) {
    const bool sameNumbers = CompareIn(current.unitCode, former, current, options).None();
    differences.unit = {{former.unitCode, current.unitCode}, sameNumbers};
  }
  return differences;
}

}  // namespace hullwright
