#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "file/FileVessel.h"
#include "model/Anchors.h"
#include "model/DesignState.h"
#include "model/ShapeVertex.h"
#include "model/Shapes.h"

namespace hullwright {

/// What an element stands for.
enum class ElementKind {
  Root,
  Unit,
  Group,
  Polyline,
  Vertex,
  Offset,
  AnchorList,
  Anchor,
  AnchorField,  ///< a text between tags
};

/// Which readers and writers have an element.
enum class ElementUse {
  Saved,        ///< reader and writer of designs
  OnlyRead,     ///< the reader of designs alone
  OnlyInLists,  ///< the reader of anchor lists alone
};

/// How a value is spelled. Reading never fails: what is no number is 0.
enum class ValueFormat {
  None,
  Decimal,      ///< signed, 32 bits
  Unsigned,     ///< 32 bits, cut to the width of the member
  Hexadecimal,  ///< signed, 32 bits; written with at least two digits
  ThreeDecimals,
  Flag,  ///< a number; set unless it is 0
  Text,  ///< as it stands, up to a NUL
};

/// An offset in the file object and in the design.
struct OffsetMember {
  std::unique_ptr<CShapeVertex> CFileVessel::*inFile;
  std::unique_ptr<CShapeVertex> DesignState::*inDesign;
  friend constexpr bool operator==(const OffsetMember&, const OffsetMember&) = default;
};

/// What the value of an element fills.
using ElementMember =
    std::variant<std::monostate, decltype(&CFileVessel::unitCode), decltype(&CShapes::viewCode),
                 OffsetMember, std::uint32_t CAnchor::*, std::uint16_t CAnchor::*,
                 std::int32_t CAnchor::*, bool CAnchor::*, double CAnchor::*,
                 std::u16string CAnchor::*>;

/// An element of the design file.
struct DesignElement {
  std::string_view name;
  std::string_view parent;  ///< where a save puts it; a reader takes it anywhere
  ElementKind kind;
  ElementMember member = {};
  ValueFormat format = ValueFormat::None;
  ElementUse use = ElementUse::Saved;
  std::string_view attribute = {};  ///< holds the value; empty where the text between tags does
};

/// One of the attributes that vertices and offsets have.
struct Coordinate {
  constexpr std::string_view Name() const { return {&axis, 1}; }

  char axis;
  double CShapeVertex::*member;
};

/// Takes a text in UTF-8 into the member of `object` that an element fills. Nothing happens where
/// the member is that of another class.
template <class Object>
void ReadMember(const DesignElement& element, Object& object, std::string_view text);

/// The member of `object` that an element fills as a save spells it; empty where the member is that
/// of another class.
template <class Object>
std::u16string MemberText(const DesignElement& element, const Object& object);

}  // namespace hullwright
