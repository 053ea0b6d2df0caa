#pragma once

#include <string>

namespace hullwright {

/// Makes a document of a design, pages of A4 as a PDF: name, unit, offsets, anchors, and the sides
/// to scale. Both names may be "-". With the environment's SOURCE_DATE_EPOCH the same design gives
/// the same bytes. Empty on success, else what went wrong; the file is written whole or not at all.
std::string WriteReport(const std::string& design, const std::string& output);

}  // namespace hullwright
