#include "exchange/SideLayers.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "exchange/ExportedDesign.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

/// A name in small letters; empty for one that is not ASCII.
std::string SmallLetters(std::u16string_view name)
{
  std::string small;
  for (const char16_t unit : name) {
    if (unit > 0x7F) return {};
    const bool isCapital = unit >= u'A' && unit <= u'Z';
    small.push_back(static_cast<char>(isCapital ? unit - u'A' + u'a' : unit));
  }
  return small;
}

std::optional<ViewSide> SideOfLayer(const CShape& shape)
{
  if (!shape.attributes) return std::nullopt;
  const auto& items = shape.attributes->items;
  const auto layer =
      std::ranges::find_if(items, [](const auto& pair) { return pair->name == u"LAYER"; });
  return layer == items.end() ? std::nullopt : SideOfName((*layer)->value);
}

}  // namespace

std::optional<ViewSide> SideOfName(std::u16string_view name)
{
  const std::string small = SmallLetters(name);
  if (const ViewSideEntry* const side = FindViewSideByName(small)) return side->code;
  if (small == NameOfSide(ViewSide::All)) return ViewSide::All;
  constexpr std::string_view beginning = "view-";
  if (!small.starts_with(beginning)) return std::nullopt;
  const std::string_view digits = std::string_view(small).substr(beginning.size());
  std::uint32_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number, 16);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return ViewSide{static_cast<std::int32_t>(number)};
}

bool HasSideLayers(const OwnedArray<CShapes>& groups)
{
  bool hasPolylines = false;
  bool areNamed = true;
  ForEachEntry(groups, [&](const CShapes& group) {
    ForEachEntry(group.shapes, [&](const CShape& shape) {
      if (shape.type != ShapeType::Polyline) return;
      hasPolylines = true;
      areNamed = areNamed && SideOfLayer(shape).has_value();
    });
  });
  return hasPolylines && areNamed;
}

void PartBySideLayers(OwnedArray<CShapes>& groups)
{
  std::map<ViewSide, std::unique_ptr<CShapes>> parted;
  for (const auto& group : groups) {
    for (auto& shape : group->shapes) {
      const ViewSide side = SideOfLayer(*shape).value_or(ViewSide::Top);
      std::unique_ptr<CShapes>& target = parted[side];
      if (!target) target = std::make_unique<CShapes>(side);
      target->shapes.push_back(std::move(shape));
    }
  }
  groups.clear();
  for (auto& [side, group] : parted) groups.push_back(std::move(group));
}

}  // namespace hullwright
