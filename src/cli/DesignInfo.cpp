#include "cli/DesignInfo.h"

#include <cinttypes>
#include <cstdio>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "cli/DesignContent.h"
#include "model/OffsetPoints.h"

namespace hullwright {
namespace {

void WriteAnchor(JsonWriter& json, const CAnchor& anchor)
{
  json.BeginObject();
  json.Key("id").Integer(anchor.id);
  json.Key("name").Text(anchor.name);
  json.Key("attachment").Doubles({anchor.attachmentX, anchor.attachmentY});
  json.EndObject();
}

void WriteGroup(JsonWriter& json, const CShapes& group)
{
  const GroupContent content = ContentOf(group);
  json.BeginObject();
  json.Key("view").Integer(NumberOf(group.viewCode));
  json.Key("side").Ascii(GroupName(group.viewCode));
  json.Key("polylines").Integer(static_cast<std::int64_t>(content.polylines));
  json.Key("vertices").Integer(static_cast<std::int64_t>(content.vertices));
  json.Key("extents");
  if (!content.box.IsEmpty()) {
    json.Doubles({content.box.minX, content.box.minY, content.box.maxX, content.box.maxY});
  } else {
    json.Null();
  }
  json.EndObject();
}

}  // namespace

void PrintDesign(HeadlessEditor& editor, const std::string& name)
{
  CHullwrightApp& app = editor.App();
  std::printf("%s: design\n  unit          %s (EPSG %" PRId32 ")\n", name.c_str(),
              UnitNameOf(app).c_str(), NumberOf(app.unitCode));
  for (const OffsetPoint& offset : offsetPoints) {
    const CShapeVertex& place = *(app.*offset.place);
    std::printf("  %-12s  %s, %s\n", std::string(offset.name).c_str(),
                PlaceText(place.x, place.y).c_str(), FormatFixed(place.z, 3).c_str());
  }
  ForEachEntry(app.anchors->items, [](const CAnchor& anchor) {
    std::printf("  anchor %-6" PRIu32 " %s  %s\n", anchor.id,
                PlaceText(anchor.attachmentX, anchor.attachmentY).c_str(),
                Utf8FromWide(anchor.name).c_str());
  });
  ForEachEntry(app.shapeGroups, [](const CShapes& group) {
    const GroupContent content = ContentOf(group);
    std::printf("  %-12s  %zu polylines, %zu vertices", GroupName(group.viewCode).c_str(),
                content.polylines, content.vertices);
    if (!content.box.IsEmpty()) {
      std::printf(", from %s to %s", PlaceText(content.box.minX, content.box.minY).c_str(),
                  PlaceText(content.box.maxX, content.box.maxY).c_str());
    }
    std::puts("");
  });
}

void WriteDesignJson(JsonWriter& json, HeadlessEditor& editor, const std::string& name)
{
  CHullwrightApp& app = editor.App();
  json.BeginObject();
  json.Key("file").Text(WideFromUtf8(name));
  json.Key("kind").Ascii("design");
  json.Key("unit").BeginObject();
  json.Key("code").Integer(NumberOf(app.unitCode));
  json.Key("name").Text(WideFromUtf8(UnitNameOf(app)));
  json.EndObject();
  json.Key("offsets").BeginObject();
  for (const OffsetPoint& offset : offsetPoints) {
    const CShapeVertex& place = *(app.*offset.place);
    json.Key(offset.element).Doubles({place.x, place.y, place.z});
  }
  json.EndObject();
  json.Key("anchors").BeginArray();
  ForEachEntry(app.anchors->items, [&](const CAnchor& anchor) { WriteAnchor(json, anchor); });
  json.EndArray();
  json.Key("groups").BeginArray();
  ForEachEntry(app.shapeGroups, [&](const CShapes& group) { WriteGroup(json, group); });
  json.EndArray();
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
