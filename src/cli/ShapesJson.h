#pragma once

#include <string_view>

#include "base/Json.h"
#include "headless/KeptTrace.h"
#include "model/Layer.h"

namespace hullwright {

/// Writes what an import gave as one JSON document: the result, the log with `path` replaced by
/// "%ls", the extents and the shapes.
void WriteImportJson(JsonWriter& json, int result, const KeptTrace& log, std::u16string_view path,
                     const CLayer& layer);

}  // namespace hullwright
