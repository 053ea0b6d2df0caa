#include "cli/DrawingInfo.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <iterator>

#include "app/ImportText.h"
#include "base/Code.h"
#include "base/Text.h"
#include "cli/DesignContent.h"
#include "dxf/DxfKeywords.h"
#include "dxf/FileDxf.h"
#include "headless/KeptTrace.h"
#include "headless/SilentWindow.h"

namespace hullwright {
namespace {

/// The counts, with those that are counted together.
std::map<std::string, std::size_t> Named(const KeywordCounts& counts)
{
  std::map<std::string, std::size_t> named(counts.ByKeyword().begin(), counts.ByKeyword().end());
  if (counts.Others() != 0) named["~others"] = counts.Others();
  return named;
}

void WriteCounts(JsonWriter& json, std::string_view key,
                 const std::map<std::string, std::size_t>& counts)
{
  json.Key(key).BeginObject();
  for (const auto& [name, count] : counts) {
    json.WideKey(WideFromAnsi(name)).Integer(static_cast<std::int64_t>(count));
  }
  json.EndObject();
}

void PrintCounts(const char* title, const std::map<std::string, std::size_t>& counts)
{
  std::printf("  %s:", title);
  if (counts.empty()) std::fputs(" none", stdout);
  for (const auto& [name, count] : counts) {
    std::printf(" %s %zu", Utf8FromWide(WideFromAnsi(name)).c_str(), count);
  }
  std::puts("");
}

}  // namespace

std::u16string SummariseDrawing(std::u16string_view path, DrawingSummary& summary)
{
  SilentWindow window;
  const KeptTrace log;
  CLayer layer;
  CFileDxf reader(&window, log);
  if (reader.Import(path, &layer) != 0) return DescribeUnreadable(reader.Tally());
  if (!reader.Tally().IsDrawing()) return DescribeImport(reader.Tally());
  for (const auto& [name, known] : reader.Drawing().layers.All()) {
    summary.layers[name] = {NumberOf(known.colour), known.off, known.frozen};
  }
  for (const auto& [name, block] : reader.Drawing().blocks) {
    summary.blocks[name] = block->ShapesWhenInserted();
  }
  summary.shapes = layer.shapes->shapes.size();
  summary.extents = layer.extents;
  if (reader.Tally().IsIncomplete()) summary.passedOver = DescribePassedOver(reader.Tally());
  summary.entities = Named(reader.Tally().entities);
  std::ranges::copy_if(summary.entities, std::inserter(summary.ignored, summary.ignored.end()),
                       [](const auto& entry) { return !IsImported(entry.first); });
  return {};
}

void PrintDrawing(const DrawingSummary& summary, const std::string& name)
{
  std::printf("%s: drawing\n", name.c_str());
  for (const auto& [layer, state] : summary.layers) {
    std::printf("  layer %s: colour %" PRId32 "%s%s\n", Utf8FromWide(WideFromAnsi(layer)).c_str(),
                state.colour, state.off ? ", off" : "", state.frozen ? ", frozen" : "");
  }
  PrintCounts("blocks and their shapes", summary.blocks);
  PrintCounts("entities", summary.entities);
  PrintCounts("ignored", summary.ignored);
  std::printf("  imported: %zu shapes", summary.shapes);
  if (!summary.extents.IsEmpty()) {
    std::printf(", from %s to %s", PlaceText(summary.extents.minX, summary.extents.minY).c_str(),
                PlaceText(summary.extents.maxX, summary.extents.maxY).c_str());
  }
  std::puts("");
}

void WriteDrawingJson(JsonWriter& json, const DrawingSummary& summary, const std::string& name)
{
  json.BeginObject();
  json.Key("file").Text(WideFromUtf8(name));
  json.Key("kind").Ascii("drawing");
  json.Key("layers").BeginObject();
  for (const auto& [layer, state] : summary.layers) {
    json.WideKey(WideFromAnsi(layer)).BeginObject();
    json.Key("colour").Integer(state.colour);
    json.Key("off").Boolean(state.off);
    json.Key("frozen").Boolean(state.frozen);
    json.EndObject();
  }
  json.EndObject();
  WriteCounts(json, "blocks", summary.blocks);
  WriteCounts(json, "entities", summary.entities);
  WriteCounts(json, "ignored", summary.ignored);
  json.Key("shapes").Integer(static_cast<std::int64_t>(summary.shapes));
  json.Key("extents").Doubles(
      {summary.extents.minX, summary.extents.minY, summary.extents.maxX, summary.extents.maxY});
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
