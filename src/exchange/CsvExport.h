#pragma once

#include <string>

#include "exchange/ExportedDesign.h"

namespace hullwright {

/// A table in UTF-8 as RFC 4180 has it, with a row of names and lines that end with CR LF: one row
/// for each vertex of the polylines, offset and anchor.
std::string MakeCsv(const ExportedDesign& design);

}  // namespace hullwright
