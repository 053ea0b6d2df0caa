#pragma once

#include <string>
#include <string_view>

#include "compare/Differences.h"

namespace hullwright {

/// What the text calls things that the differences know by their codes.
struct DifferenceNames {
  FormerAndCurrent<std::string> unit;  ///< the units, each with its code
  std::string (*ofSide)(ViewSide);
};

/// The differences as text for people, a line each, indented by two blanks; of a changed shape the
/// first dozen of its vertices, a line each. Shapes of a side that were all moved by one way share
/// a line. Numbers have three decimals, or as many as the tolerance needs. Empty for no
/// differences.
std::string DescribeDifferences(const Differences& differences, const DifferenceNames& names,
                                double tolerance);

/// A number with three decimals, or as many as the tolerance needs; at 0 the shortest form.
std::string FormatWithin(double value, double tolerance);

/// Name of an offset, as people say it: "GNSS antenna".
std::string_view NameOf(OffsetKind kind);

/// Name of a type of shapes, as people say it: "polyline".
std::string_view NameOf(ShapeType type);

}  // namespace hullwright
