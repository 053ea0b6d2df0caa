#pragma once

#include <string_view>

#include "dxf/DxfContext.h"
#include "dxf/DxfLines.h"
#include "model/Shapes.h"

namespace hullwright {

/// Where entities stand. Some are known in sections only.
enum class DxfPlace { Section, Block };

/// Reads the next line of a walk over entities; one with a keyword starts its reader. False at the
/// line that ends the section or the block, and at one that is cut short.
bool ReadNextEntity(DxfLines& lines, DxfContext& context, DxfPlace place, CShapes& target);

/// Whether an entity of a section becomes a shape, or belongs to one.
bool IsImported(std::string_view keyword);

}  // namespace hullwright
