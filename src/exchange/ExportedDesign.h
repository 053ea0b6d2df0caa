#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/DesignState.h"

namespace hullwright {

/// A polyline of the design, which keeps it.
struct ExportedPolyline {
  std::string side;    ///< name of its side, as `NameOfSide` has it
  std::size_t number;  ///< among the polylines of its group, from 1
  const CShape* shape;
};

inline constexpr const char* offsetKind = "offset";
inline constexpr const char* anchorKind = "anchor";

/// An offset or an anchor. Both lie on the top side.
struct ExportedPlace {
  const char* kind;  ///< `offsetKind` or `anchorKind`
  std::u16string name;
  std::optional<std::uint32_t> number;  ///< of an anchor
  double x;
  double y;
  std::optional<double> z;  ///< of an offset
};

/// What of a design goes to other programs. All numbers are finite.
struct ExportedDesign {
  UnitCode unit{};
  std::string unitName;  ///< UTF-8
  std::vector<ExportedPolyline> polylines;
  std::vector<ExportedPlace> places;
  std::size_t leftOut = 0;  ///< polylines of fewer than two vertices, which are no line anywhere
};

/// Gathers the groups that answer for a side, and behind the top side the offsets and anchors; for
/// `ViewSide::All` everything, also groups of no side. The design must outlive what is returned.
ExportedDesign GatherExport(const DesignState& design, ViewSide side, std::string unitName);

/// What a side is called in other programs: "top", "all" for a group of every side, and "view-03"
/// for a code of no side. Layers of old drawings have no blanks in their names.
std::string NameOfSide(ViewSide code);

/// Whether a polyline ends where it began, to the sign of each zero, with a corner between.
bool IsClosed(const CShape& polyline);

/// Colour of a polyline as 0x00BBGGRR; black without a style, as it is drawn.
std::uint32_t LineColourOf(const CShape& polyline);

/// Its stroke width in pixels.
double LineWidthOf(const CShape& polyline);

}  // namespace hullwright
