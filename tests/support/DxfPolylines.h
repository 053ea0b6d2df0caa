#pragma once

#include <string>

#include "base/Numbers.h"
#include "support/DxfFixture.h"

/// The records of polylines.
namespace hullwright::test {

/// The header of a polyline with more groups.
inline std::string Header(const std::string& more = {}) { return Lines({{0, "POLYLINE"}}) + more; }

/// One vertex. Its layer is frozen in some drawings, which plays no part.
inline std::string Vertex(double x, double y, const std::string& more = {})
{
  return Lines({{0, "VERTEX"}, {8, "frozen"}, {10, FormatFixed(x, 6)}, {20, FormatFixed(y, 6)}}) +
         more;
}

inline const std::string seqEnd = Lines({{0, "SEQEND"}, {8, "0"}});
inline const std::string triangle = Vertex(0, 0) + Vertex(4, 0) + Vertex(4, 3);

}  // namespace hullwright::test
