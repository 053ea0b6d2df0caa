#pragma once

#include "base/Json.h"
#include "cli/HeadlessEditor.h"

namespace hullwright {

/// Prints what a design holds: unit, offsets, anchors, and what stands on each side. As text for
/// people.
void PrintDesign(HeadlessEditor& editor, const std::string& name);

/// The same as one JSON document.
void WriteDesignJson(JsonWriter& json, HeadlessEditor& editor, const std::string& name);

}  // namespace hullwright
