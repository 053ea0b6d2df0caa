#pragma once

#include <cstddef>
#include <string>

#include "exchange/ExportedDesign.h"

namespace hullwright {

enum class DxfVersion { R12, R2000 };

/// What the layers of polylines stand for.
enum class DxfLayering {
  Side,  ///< one for each side, with its name
  Kind,  ///< one for all, "polylines"
};

/// What a drawing is made as.
struct DxfForm {
  DxfVersion version = DxfVersion::R2000;
  DxfLayering layering = DxfLayering::Side;
};

/// A drawing in its ASCII form.
struct DxfDrawing {
  std::string bytes;
  std::size_t shortenedNames = 0;  ///< of anchors, which were longer than a text can be
};

/// Makes a drawing of polylines, and of points with texts for offsets and anchors. The reader of
/// drawings gives the same polylines: coordinates to the last digit, colours that its table has.
DxfDrawing MakeDxf(const ExportedDesign& design, const DxfForm& form = {});

}  // namespace hullwright
