#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "compare/Place.h"
#include "model/Extents.h"
#include "model/Shape.h"
#include "model/ViewSide.h"

namespace hullwright {

/// The former and the current one of something.
template <class T>
struct FormerAndCurrent {
  T former;
  T current;

  bool operator==(const FormerAndCurrent&) const = default;
};

/// The unit of the design is another one. All numbers of the former design are then given as
/// converted to the current one's unit, unless they are compared as they stand.
struct UnitDifference {
  FormerAndCurrent<UnitCode> unit;  ///< 0 for one that no design has
  bool sameNumbers = false;         ///< without the conversion there is no other difference
  bool converted = true;
};

/// An offset point, in the order of `offsetPoints`.
enum class OffsetKind { Antenna, EchoSounder, Pivot };

/// An offset stands somewhere else.
struct OffsetDifference {
  OffsetKind kind = OffsetKind::Antenna;
  FormerAndCurrent<Place> place;
};

/// An anchor as it is compared; it has no z.
struct AnchorRecord {
  std::uint32_t id = 0;
  std::u16string name;
  Place place;
};

/// An anchor was added (no former one), removed (no current one), moved, renumbered or renamed.
struct AnchorDifference {
  FormerAndCurrent<std::optional<AnchorRecord>> anchor;
  bool moved = false;  ///< only for one that is in both
};

/// How a shape is stroked.
struct LineStyle {
  std::uint32_t colour = 0;  ///< 0x00BBGGRR, red in the low byte
  float width = 1.0F;        ///< in pixels

  bool operator==(const LineStyle&) const = default;
};

/// A vertex was added (the former number is 0), removed (the current number is 0) or moved.
/// Vertices are counted from 1.
struct VertexDifference {
  FormerAndCurrent<std::size_t> number;
  FormerAndCurrent<Place> place;
};

enum class ShapeChange { Added, Removed, Moved, Changed };

/// A shape that stands in one design only, or not the same in both. Shapes are counted from 1 among
/// those of their type on their side.
struct ShapeDifference {
  ViewSide side = ViewSide::None;
  ShapeType type = ShapeType::Polyline;
  ShapeChange change = ShapeChange::Changed;
  FormerAndCurrent<std::size_t> number{0, 0};  ///< 0 in the design that lacks it
  FormerAndCurrent<std::size_t> vertexCount{0, 0};
  Place by;                                ///< the way of all vertices of one that was moved
  bool reversed = false;                   ///< the same vertices from the last to the first
  std::vector<VertexDifference> vertices;  ///< of one that was changed
  std::optional<FormerAndCurrent<LineStyle>> style;  ///< where it is another
  bool otherForm =
      false;  ///< wording, angle or height of a text, or how an area is parted in rings
  FormerAndCurrent<std::u16string> text;  ///< of a text
  Extents box;  ///< of the current shape, or of the former one that was removed
};

/// What differs between two designs, all in the current one's unit.
struct Differences {
  std::optional<UnitDifference> unit;
  std::vector<OffsetDifference> offsets;
  std::vector<AnchorDifference> anchors;
  std::vector<ShapeDifference> shapes;  ///< by side, type and number

  bool None() const { return !unit && offsets.empty() && anchors.empty() && shapes.empty(); }
};

}  // namespace hullwright
