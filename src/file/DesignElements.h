#pragma once

#include <algorithm>
#include <array>
#include <string_view>

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
      {u"vessel", u"", Root},
      {u"units", u"vessel", Unit, &CFileVessel::unitCode, Format::Decimal, Saved, u"id"},
      {u"shapes", u"vessel", Group, &CShapes::viewCode, Format::Hexadecimal, Saved, u"view"},
      {u"polyline", u"shapes", Polyline},
      {u"vertex", u"polyline", Vertex},
      {u"gps", u"vessel", Offset, gps},
      {u"txd", u"vessel", Offset, txd},
      {u"piv", u"vessel", Offset, piv},
      {u"anchors", u"vessel", AnchorList},
      {u"anchor", u"anchors", Anchor},
      {u"id", u"anchor", AnchorField, &CAnchor::id, Format::Unsigned},
      {u"name", u"anchor", AnchorField, &CAnchor::name, Format::Text},
      {u"attachmentX", u"anchor", AnchorField, &CAnchor::attachmentX, Format::ThreeDecimals},
      {u"attachmentY", u"anchor", AnchorField, &CAnchor::attachmentY, Format::ThreeDecimals},
      {u"vessel", u"anchor", AnchorField, &CAnchor::vessel, Format::Unsigned, OnlyRead},
      {u"visible", u"anchor", AnchorField, &CAnchor::visible, Format::Flag, OnlyInLists},
      {u"state", u"anchor", AnchorField, &CAnchor::state, Format::Unsigned, OnlyInLists},
      {u"easting", u"anchor", AnchorField, &CAnchor::easting, Format::ThreeDecimals, OnlyInLists},
      {u"northing", u"anchor", AnchorField, &CAnchor::northing, Format::ThreeDecimals, OnlyInLists},
  });
}();

/// The attributes of vertices and offsets, in the order of a save.
inline constexpr std::array<Coordinate, 3> coordinates = {
    {{u'x', &CShapeVertex::x}, {u'y', &CShapeVertex::y}, {u'z', &CShapeVertex::z}}};

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
constexpr const DesignElement* FindElement(std::u16string_view name)
{
  const auto* const found =
      std::ranges::find_if(designElements, [name](const DesignElement& element) {
        return element.name == name && element.use != ElementUse::OnlyInLists;
      });
  return found == designElements.end() ? nullptr : found;
}

/// The element of a design that stands in another; null for one that belongs elsewhere.
constexpr const DesignElement* FindElement(std::u16string_view name, std::u16string_view parent)
{
  const auto* const found =
      std::ranges::find_if(designElements, [name, parent](const DesignElement& element) {
        return element.name == name && element.parent == parent &&
               element.use != ElementUse::OnlyInLists;
      });
  return found == designElements.end() ? nullptr : found;
}

/// The field of an anchor that a name stands for, also one that only anchor lists have; null for
/// any other name.
constexpr const DesignElement* FindAnchorField(std::u16string_view name)
{
  const auto* const found =
      std::ranges::find_if(designElements, [name](const DesignElement& element) {
        return element.name == name && element.kind == ElementKind::AnchorField;
      });
  return found == designElements.end() ? nullptr : found;
}

}  // namespace hullwright
