#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/FindOrNull.h"
#include "file/DesignElement.h"

namespace hullwright {

/// Every element of a design file or an anchor list, in the order of a save. Reader, writer and the
/// check of what a save loses go by these rows.
inline constexpr auto designElements = [] {
  using enum ElementKind;
  using enum ElementUse;
  using Format = ValueFormat;
  constexpr OffsetMember gps = {&CFileVessel::gps, &DesignState::offsetGps};
  constexpr OffsetMember txd = {&CFileVessel::txd, &DesignState::offsetTransducer};
  constexpr OffsetMember piv = {&CFileVessel::piv, &DesignState::offsetPivot};
  return std::to_array<DesignElement>({
      {"vessel", "", Root},
      {"units", "vessel", Unit, &CFileVessel::unitCode, Format::Decimal, Saved, "id"},
      {"shapes", "vessel", Group, &CShapes::viewCode, Format::Hexadecimal, Saved, "view"},
      {"polyline", "shapes", Polyline},
      {"vertex", "polyline", Vertex},
      {"gps", "vessel", Offset, gps},
      {"txd", "vessel", Offset, txd},
      {"piv", "vessel", Offset, piv},
      {"anchors", "vessel", AnchorList},
      {"anchor", "anchors", Anchor},
      {"id", "anchor", AnchorField, &CAnchor::id, Format::Unsigned},
      {"name", "anchor", AnchorField, &CAnchor::name, Format::Text},
      {"attachmentX", "anchor", AnchorField, &CAnchor::attachmentX, Format::ThreeDecimals},
      {"attachmentY", "anchor", AnchorField, &CAnchor::attachmentY, Format::ThreeDecimals},
      {"vessel", "anchor", AnchorField, &CAnchor::vessel, Format::Unsigned, OnlyRead},
      {"visible", "anchor", AnchorField, &CAnchor::visible, Format::Flag, OnlyInLists},
      {"state", "anchor", AnchorField, &CAnchor::state, Format::Unsigned, OnlyInLists},
      {"easting", "anchor", AnchorField, &CAnchor::easting, Format::ThreeDecimals, OnlyInLists},
      {"northing", "anchor", AnchorField, &CAnchor::northing, Format::ThreeDecimals, OnlyInLists},
  });
}();

/// The attributes of vertices and offsets, in the order of a save.
inline constexpr std::array<Coordinate, 3> coordinates = {
    {{'x', &CShapeVertex::x}, {'y', &CShapeVertex::y}, {'z', &CShapeVertex::z}}};

/// Whether an element has the attributes of `coordinates`.
constexpr bool HasCoordinates(const DesignElement& element)
{
  return element.kind == ElementKind::Vertex || element.kind == ElementKind::Offset;
}

/// Whether a save writes the element once at most.
constexpr bool IsSingle(const DesignElement& element)
{
  return element.kind == ElementKind::Root || element.kind == ElementKind::Unit ||
         element.kind == ElementKind::Offset;
}

/// The first element of a kind.
constexpr const DesignElement& ElementOf(ElementKind kind)
{
  return *std::ranges::find(designElements, kind, &DesignElement::kind);
}

/// The field that fills a member of an anchor; one that there is.
template <class Value>
constexpr const DesignElement& FieldOf(Value CAnchor::*member)
{
  return *std::ranges::find(designElements, ElementMember(member), &DesignElement::member);
}

/// The element that the reader of designs takes a tag for; null for a name that it passes over.
constexpr const DesignElement* FindElement(std::string_view name)
{
  return FindIfOrNull(designElements, [name](const DesignElement& element) {
    return element.name == name && element.use != ElementUse::OnlyInLists;
  });
}

/// The element of a design that stands in another; null for one that belongs elsewhere.
constexpr const DesignElement* FindElement(std::string_view name, std::string_view parent)
{
  return FindIfOrNull(designElements, [name, parent](const DesignElement& element) {
    return element.name == name && element.parent == parent &&
           element.use != ElementUse::OnlyInLists;
  });
}

/// The field of an anchor that a name stands for, also one that only anchor lists have; null for
/// any other name.
constexpr const DesignElement* FindAnchorField(std::string_view name)
{
  return FindIfOrNull(designElements, [name](const DesignElement& element) {
    return element.name == name && element.kind == ElementKind::AnchorField;
  });
}

}  // namespace hullwright
