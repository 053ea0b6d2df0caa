#include "app/NonFiniteNumbers.h"

#include <algorithm>
#include <variant>

#include "base/Text.h"
#include "file/DesignNumbers.h"
#include "model/OffsetPoints.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

/// What the offset of an element is called.
std::string OffsetName(const DesignElement& element)
{
  const auto place = std::get<OffsetMember>(element.member).inDesign;
  const auto* const point = std::ranges::find(offsetPoints, place, &OffsetPoint::place);
  return std::string(point->name) + " offset";
}

std::string Place(const DesignNumber& number)
{
  if (number.anchor != nullptr) return "anchor #" + std::to_string(number.anchor->id);
  if (number.group == nullptr) return OffsetName(number.element);
  return "polyline " + std::to_string(number.polylineNumber) + " (" +
         SideName(number.group->viewCode, "all sides", "view ") + "), point " +
         std::to_string(number.vertexNumber);
}

}  // namespace

NonFiniteNumbers FindNonFiniteNumbers(const DesignState& design)
{
  NonFiniteNumbers found;
  ForEachNonFiniteNumber(design, [&found](const DesignNumber& number) {
    if (found.count++ == 0) found.first = WideFromAscii(Place(number));
  });
  return found;
}

std::u16string Describe(const NonFiniteNumbers& numbers)
{
  if (numbers.count == 0) return {};
  return u"holds numbers that are not finite (" + WideFromAscii(std::to_string(numbers.count)) +
         u"): " + numbers.first;
}

}  // namespace hullwright
