#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/Json.h"
#include "model/Layer.h"
#include "platform/Trace.h"

namespace hullwright {

/// Keeps the records of an import.
class KeptTrace : public ITrace {
public:
  struct Record {
    std::int32_t level;
    std::u16string category;
    std::u16string text;
  };

  void Trace(double elapsedSeconds, std::int32_t level, std::u16string_view category,
             std::u16string_view text) const override;

  mutable std::vector<Record> records;
};

/// Writes what an import gave as one JSON document: the result, the log with `path` replaced by
/// "%ls", the extents and the shapes.
void WriteImportJson(JsonWriter& json, int result, const KeptTrace& log, std::u16string_view path,
                     const CLayer& layer);

}  // namespace hullwright
