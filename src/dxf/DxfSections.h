#pragma once

#include "dxf/DxfContext.h"
#include "dxf/DxfLines.h"
#include "model/Shapes.h"
#include "platform/MainWindowPort.h"

namespace hullwright {

/// Walks the sections of a drawing; the entities outside blocks become shapes of `target`. Progress
/// goes to the main window. Without memory for an entity or for the copy of one, that one is left
/// out; without memory for anything else the walk ends there, as at the end of the text.
void ProcessSections(DxfLines& lines, DxfContext& context, CShapes& target, IMainWindow& frame);

}  // namespace hullwright
