#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "compare/Differences.h"
#include "model/DesignState.h"

namespace hullwright {

/// What a shape is beside its vertices and its style.
struct ShapeForm {
  std::u16string text;  ///< of a text
  double angle = 0.0;   ///< of a text
  double height = 0.0;  ///< of a text
  std::vector<std::size_t>
      ringEnds;  ///< of an area: the number of vertices up to the end of each ring

  bool operator==(const ShapeForm&) const = default;
};

/// A shape as it is compared.
struct ShapeRecord {
  ViewSide side = ViewSide::None;
  ShapeType type = ShapeType::Polyline;
  std::size_t number = 0;  ///< from 1, among those of its type on its side
  std::span<const Place> vertices;
  LineStyle style;
  ShapeForm form;
};

/// Which shapes are compared.
struct ShapeChoice {
  std::optional<ViewSide> side;  ///< only those of groups that answer for this side, as its own
  /// Only what both a design file and a drawing keep: polylines of two vertices or more, without a
  /// style.
  bool onlyLines = false;
};

/// The shapes of a design with their vertices in one list: zeros without a sign, and anything that
/// is no number as one and the same.
class DesignRecords {
public:
  /// Takes the coordinates from one unit to another.
  DesignRecords(const DesignState& design, UnitCode from, UnitCode to, const ShapeChoice& choice);
  DesignRecords(const DesignRecords&) = delete;
  DesignRecords& operator=(const DesignRecords&) = delete;

  const std::vector<ShapeRecord>& Shapes() const { return shapes_; }

private:
  std::vector<Place> places_;
  std::vector<ShapeRecord> shapes_;
};

/// The place of a vertex, taken from one unit to another.
Place PlaceOf(const CShapeVertex& vertex, UnitCode from, UnitCode to);

}  // namespace hullwright
