#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "base/Json.h"
#include "model/Extents.h"

namespace hullwright {

/// What a drawing holds, as the import sees it.
struct DrawingSummary {
  struct LayerState {
    std::int32_t colour;
    bool off;
    bool frozen;
  };
  std::map<std::string, LayerState> layers;
  std::map<std::string, std::size_t> blocks;    ///< with the number of their shapes
  std::map<std::string, std::size_t> entities;  ///< keywords of the entities section
  std::map<std::string, std::size_t> ignored;   ///< those of them that nothing is made of
  std::size_t shapes = 0;                       ///< what the import gives
  Extents extents;                              ///< of the shapes
  std::u16string passedOver;  ///< by an import that memory or a limit cut short; else empty
};

/// Reads a drawing. Empty on success, else what is wrong with the file.
std::u16string SummariseDrawing(std::u16string_view path, DrawingSummary& summary);

/// Prints a summary as text for people.
void PrintDrawing(const DrawingSummary& summary, const std::string& name);

/// The same as one JSON document.
void WriteDrawingJson(JsonWriter& json, const DrawingSummary& summary, const std::string& name);

}  // namespace hullwright
