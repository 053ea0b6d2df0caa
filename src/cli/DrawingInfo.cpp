#include "cli/DrawingInfo.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>

#include "app/ImportText.h"
#include "base/Text.h"
#include "headless/KeptTrace.h"
#include "headless/SilentWindow.h"

namespace hullwright {
namespace {

/// Counts the keywords of the entities section, pair by pair as the format has it: the import's own
/// walk sees lines and would count values.
void CountEntities(CFileDxf& reader, std::map<std::string, std::size_t>& counts)
{
  reader.position = 0;
  DxfLine code;
  DxfLine value;
  std::string section;
  bool named = false;  // the name of a section comes next
  while (reader.GetLine(code, DxfLine::capacity) && reader.GetLine(value, DxfLine::capacity)) {
    const std::int32_t group = ParseInt32(code.Text(), 10);
    if (named && group == 2) section = value.Text();
    named = group == 0 && value.Text() == "SECTION";
    if (group == 0 && value.Text() == "ENDSEC") section.clear();
    if (group == 0 && section == "ENTITIES" && !named) ++counts[std::string(value.Text())];
  }
}

void WriteCounts(JsonWriter& json, std::string_view key,
                 const std::map<std::string, std::size_t>& counts)
{
  json.Key(key);
  json.BeginObject();
  for (const auto& [name, count] : counts) {
    json.WideKey(WideFromAnsi(name));
    json.Integer(static_cast<std::int64_t>(count));
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
  if (reader.Import(path, &layer) != 0) return std::u16string(unreadableDrawing);
  if (!reader.tally.IsDrawing()) return DescribeImport(reader.tally);
  for (const auto& [name, known] : reader.layers) {
    summary.layers[name] = {known->colour, known->off, known->frozen};
  }
  for (const auto& [name, block] : reader.blocks) summary.blocks[name] = block->shapes.size();
  summary.shapes = layer.shapes->shapes.size();
  summary.minX = layer.minX;
  summary.minY = layer.minY;
  summary.maxX = layer.maxX;
  summary.maxY = layer.maxY;
  CountEntities(reader, summary.entities);
  std::ranges::copy_if(summary.entities, std::inserter(summary.ignored, summary.ignored.end()),
                       [](const auto& entry) { return !CFileDxf::IsImported(entry.first); });
  return {};
}

void PrintDrawing(const DrawingSummary& summary, const std::string& name)
{
  std::printf("%s: drawing\n", name.c_str());
  for (const auto& [layer, look] : summary.layers) {
    std::printf("  layer %s: colour %" PRId32 "%s%s\n", Utf8FromWide(WideFromAnsi(layer)).c_str(),
                look.colour, look.off ? ", off" : "", look.frozen ? ", frozen" : "");
  }
  PrintCounts("blocks and their shapes", summary.blocks);
  PrintCounts("entities", summary.entities);
  PrintCounts("ignored", summary.ignored);
  std::printf("  imported: %zu shapes", summary.shapes);
  if (summary.minX <= summary.maxX && summary.shapes != 0) {
    std::printf(", from %s, %s to %s, %s", FormatFixed(summary.minX, 3).c_str(),
                FormatFixed(summary.minY, 3).c_str(), FormatFixed(summary.maxX, 3).c_str(),
                FormatFixed(summary.maxY, 3).c_str());
  }
  std::puts("");
}

void WriteDrawingJson(JsonWriter& json, const DrawingSummary& summary, const std::string& name)
{
  json.BeginObject();
  json.Key("file");
  json.Text(WideFromUtf8(name));
  json.Key("kind");
  json.Ascii("drawing");
  json.Key("layers");
  json.BeginObject();
  for (const auto& [layer, look] : summary.layers) {
    json.WideKey(WideFromAnsi(layer));
    json.BeginObject();
    json.Key("colour");
    json.Integer(look.colour);
    json.Key("off");
    json.Boolean(look.off);
    json.Key("frozen");
    json.Boolean(look.frozen);
    json.EndObject();
  }
  json.EndObject();
  WriteCounts(json, "blocks", summary.blocks);
  WriteCounts(json, "entities", summary.entities);
  WriteCounts(json, "ignored", summary.ignored);
  json.Key("shapes");
  json.Integer(static_cast<std::int64_t>(summary.shapes));
  json.Key("extents");
  json.Doubles({summary.minX, summary.minY, summary.maxX, summary.maxY});
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
