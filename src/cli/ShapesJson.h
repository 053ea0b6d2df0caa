#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/Json.h"
#include "model/Layer.h"
#include "platform/MainWindow.h"
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

/// Stands where an import expects the window that it tells its progress.
class SilentWindow : public IMainWindow {
public:
  bool HasWindow() const override { return true; }
  void Notify(int, std::intptr_t) override {}
  void SetModifiedFlag(bool) override {}
};

/// Writes what an import gave as one JSON document: the result, the log with `path` replaced by
/// "%ls", the extents and the shapes.
void WriteImportJson(JsonWriter& json, int result, const KeptTrace& log, std::u16string_view path,
                     const CLayer& layer);

}  // namespace hullwright
