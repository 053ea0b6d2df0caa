#pragma once

#include "dxf/DxfContext.h"
#include "dxf/DxfLines.h"

/// Readers of what the entities look up. Entered behind the line that starts the record.
namespace hullwright {

/// Reads one record of the table of layers.
void ProcessLayer(DxfLines& lines, DxfContext& context);

/// Reads one block with its entities. The first of a name stays; one of the paper space is nothing.
void ProcessBlock(DxfLines& lines, DxfContext& context);

}  // namespace hullwright
