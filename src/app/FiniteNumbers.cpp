#include "app/FiniteNumbers.h"

#include <cmath>
#include <initializer_list>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

std::string SideName(std::int32_t viewCode)
{
  if (const ViewSideEntry* const side = FindViewSide(viewCode)) return std::string(side->name);
  return viewCode == ViewSide::All ? "all sides"
                                   : "view " + FormatHex(static_cast<std::uint32_t>(viewCode), 2);
}

/// Gathers what is found; the place is made for the first one alone.
class Finder {
public:
  template <class Place>
  void Look(std::initializer_list<double> numbers, Place place)
  {
    for (const double number : numbers) {
      if (std::isfinite(number)) continue;
      if (found.count++ == 0) found.first = WideFromAscii(place());
    }
  }

  NonFiniteNumbers found;
};

void LookThrough(const CShapes& group, Finder& finder)
{
  std::size_t polyline = 0;
  for (const auto& shape : group.shapes) {
    if (!shape) break;
    if (shape->type != ShapeType::Polyline) continue;
    ++polyline;
    std::size_t point = 0;
    for (const auto& vertex : shape->vertices) {
      if (!vertex) break;
      ++point;
      finder.Look({vertex->x, vertex->y, vertex->z}, [&] {
        return "polyline " + std::to_string(polyline) + " (" + SideName(group.viewCode) +
               "), point " + std::to_string(point);
      });
    }
  }
}

}  // namespace

NonFiniteNumbers FindNonFiniteNumbers(const DesignState& design)
{
  Finder finder;
  for (const auto& group : design.shapeGroups) {
    if (!group) break;
    LookThrough(*group, finder);
  }
  const std::initializer_list<std::pair<const CShapeVertex*, const char*>> offsets = {
      {design.offsetGps.get(), "GNSS antenna offset"},
      {design.offsetTransducer.get(), "transducer offset"},
      {design.offsetPivot.get(), "pivot point offset"}};
  for (const auto& [offset, name] : offsets) {
    if (offset != nullptr) {
      finder.Look({offset->x, offset->y, offset->z}, [name = name] { return std::string(name); });
    }
  }
  ForEachEntry(design.anchors->items, [&](const CAnchor& anchor) {
    finder.Look({anchor.attachmentX, anchor.attachmentY},
                [&] { return "anchor #" + std::to_string(anchor.id); });
  });
  return finder.found;
}

std::u16string Describe(const NonFiniteNumbers& numbers)
{
  if (numbers.count == 0) return {};
  return u"holds numbers that are not finite (" + WideFromAscii(std::to_string(numbers.count)) +
         u"): " + numbers.first;
}

}  // namespace hullwright
