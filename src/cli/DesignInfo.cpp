#include "cli/DesignInfo.h"

#include <cinttypes>
#include <cstdio>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/DesignFindings.h"
#include "model/OffsetPoints.h"

namespace hullwright {
namespace {

/// What stands in one group.
struct GroupSummary {
  std::string side;
  std::size_t polylines = 0;
  std::size_t vertices = 0;
  Extents box;
};

GroupSummary Summarise(const CShapes& group)
{
  GroupSummary summary;
  summary.side = GroupName(group.viewCode);
  ForEachEntry(group.shapes, [&](const CShape& shape) {
    ++summary.polylines;
    summary.vertices += shape.vertices.size();
    shape.GetExtents(summary.box);
  });
  return summary;
}

bool HasBox(const GroupSummary& summary) { return summary.box.minX <= summary.box.maxX; }

std::string Place(double x, double y) { return FormatFixed(x, 3) + ", " + FormatFixed(y, 3); }

void WriteAnchor(JsonWriter& json, const CAnchor& anchor)
{
  json.BeginObject();
  json.Key("id");
  json.Integer(anchor.id);
  json.Key("name");
  json.Text(anchor.name);
  json.Key("attachment");
  json.Doubles({anchor.attachmentX, anchor.attachmentY});
  json.EndObject();
}

void WriteGroup(JsonWriter& json, const CShapes& group)
{
  const GroupSummary summary = Summarise(group);
  json.BeginObject();
  json.Key("view");
  json.Integer(NumberOf(group.viewCode));
  json.Key("side");
  json.Ascii(summary.side);
  json.Key("polylines");
  json.Integer(static_cast<std::int64_t>(summary.polylines));
  json.Key("vertices");
  json.Integer(static_cast<std::int64_t>(summary.vertices));
  json.Key("extents");
  if (HasBox(summary)) {
    json.Doubles({summary.box.minX, summary.box.minY, summary.box.maxX, summary.box.maxY});
  } else {
    json.Null();
  }
  json.EndObject();
}

}  // namespace

std::string UnitOf(HeadlessEditor& editor)
{
  const std::u16string name = editor.App().GetUnitName();
  return name.empty() ? "unknown" : Utf8FromWide(name);
}

void PrintDesign(HeadlessEditor& editor, const std::string& name)
{
  const CHullwrightApp& app = editor.App();
  std::printf("%s: design\n  unit          %s (EPSG %" PRId32 ")\n", name.c_str(),
              UnitOf(editor).c_str(), NumberOf(app.unitCode));
  for (const OffsetPoint& offset : offsetPoints) {
    const CShapeVertex& place = *(app.*offset.place);
    std::printf("  %-12s  %s, %s\n", std::string(offset.name).c_str(),
                Place(place.x, place.y).c_str(), FormatFixed(place.z, 3).c_str());
  }
  ForEachEntry(app.anchors->items, [](const CAnchor& anchor) {
    std::printf("  anchor %-6" PRIu32 " %s  %s\n", anchor.id,
                Place(anchor.attachmentX, anchor.attachmentY).c_str(),
                Utf8FromWide(anchor.name).c_str());
  });
  ForEachEntry(app.shapeGroups, [](const CShapes& group) {
    const GroupSummary summary = Summarise(group);
    std::printf("  %-12s  %zu polylines, %zu vertices", summary.side.c_str(), summary.polylines,
                summary.vertices);
    if (HasBox(summary)) {
      std::printf(", from %s to %s", Place(summary.box.minX, summary.box.minY).c_str(),
                  Place(summary.box.maxX, summary.box.maxY).c_str());
    }
    std::puts("");
  });
}

void WriteDesignJson(JsonWriter& json, HeadlessEditor& editor, const std::string& name)
{
  const CHullwrightApp& app = editor.App();
  json.BeginObject();
  json.Key("file");
  json.Text(WideFromUtf8(name));
  json.Key("kind");
  json.Ascii("design");
  json.Key("unit");
  json.BeginObject();
  json.Key("code");
  json.Integer(NumberOf(app.unitCode));
  json.Key("name");
  json.Text(WideFromUtf8(UnitOf(editor)));
  json.EndObject();
  json.Key("offsets");
  json.BeginObject();
  for (const OffsetPoint& offset : offsetPoints) {
    const CShapeVertex& place = *(app.*offset.place);
    json.Key(offset.element);
    json.Doubles({place.x, place.y, place.z});
  }
  json.EndObject();
  json.Key("anchors");
  json.BeginArray();
  ForEachEntry(app.anchors->items, [&](const CAnchor& anchor) { WriteAnchor(json, anchor); });
  json.EndArray();
  json.Key("groups");
  json.BeginArray();
  ForEachEntry(app.shapeGroups, [&](const CShapes& group) { WriteGroup(json, group); });
  json.EndArray();
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
