
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"
#include "replay/driver/FrameValue.h"
#include "replay/driver/ReplayEditor.h"
#include "resources/CommandIds.h"

// What the editor holds, as a script's reader sees it.
namespace hullwright::replay {

Value Of(const CShapeVertex& v)
{
  if (v.flag == 0 && v.tagA == 0 && v.tagB == 0) return Row(v.x, v.y, v.z);
  return Row(v.x, v.y, v.z, static_cast<int>(v.flag), v.tagA, v.tagB);
}

namespace {

Value Of(const OwnedArray<CShapeVertex>& vertices)
{
  Value::List list;
  for (const auto& vertex : vertices) list.push_back(vertex ? replay::Of(*vertex) : Value());
  return list;
}

Value Of(ClientPoint point) { return Row(point.x, point.y); }

Value Of(const ShapeStyle& style)
{
  return Row(style.lineColour, style.fillColour, static_cast<int>(style.styleCode), style.lineWidth,
             static_cast<int>(style.styleFlagA), static_cast<int>(style.styleFlagB));
}

Value Of(const CShapeAttributes& attributes)
{
  Value::List list;
  for (const auto& pair : attributes.items) list.push_back(Row(pair->name, pair->value));
  return list;
}

void AddLabel(Value::Object& object, const CShapeText& label)
{
  object["text"] = label.text;
  object["angle"] = label.angle;
  object["height"] = label.height;
  Value::List box;
  for (const auto& corner : label.screenBox) box.push_back(Row(corner.x, corner.y));
  object["screenBox"] = std::move(box);
}

Value Of(const OwnedArray<CShapes>& groups)
{
  Value::List list;
  for (const auto& group : groups) {
    Value::List shapes;
    for (const auto& shape : group->shapes) shapes.push_back(replay::Of(*shape));
    list.push_back(Value::Object{{"view", group->viewCode}, {"shapes", std::move(shapes)}});
  }
  return list;
}

Value DesignOf(const ReplayEditor& editor)
{
  const DesignState& design = editor.app;
  Value::List anchors;
  for (const auto& anchor : design.anchors->items) anchors.push_back(replay::Of(*anchor));
  return Value::Object{
      {"groups", Of(design.shapeGroups)},       {"anchors", std::move(anchors)},
      {"gps", replay::Of(*design.offsetGps)},   {"txd", replay::Of(*design.offsetTransducer)},
      {"piv", replay::Of(*design.offsetPivot)}, {"unitCode", design.unitCode},
      {"activeView", design.activeView},        {"modified", editor.document.IsModified()}};
}

/// A picked item by its place in the design.
Value PlaceOf(const DesignState& design, const PickedItem& item)
{
  if (item.index() == 0) return {};
  if (!IsInDesign(design, item)) return "gone";
  if (const auto* const anchor = std::get_if<CAnchor*>(&item)) {
    const auto& all = design.anchors->items;
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (all[i].get() == *anchor) return "anchor:" + std::to_string(i);
    }
    return "gone";
  }
  const CShapeVertex* const vertex = std::get<CShapeVertex*>(item);
  if (vertex == design.offsetGps.get()) return "gps";
  if (vertex == design.offsetTransducer.get()) return "txd";
  if (vertex == design.offsetPivot.get()) return "piv";
  for (std::size_t g = 0; g < design.shapeGroups.size(); ++g) {
    const auto& shapes = design.shapeGroups[g]->shapes;
    for (std::size_t s = 0; s < shapes.size(); ++s) {
      std::vector<CShapeVertex*> vertices;
      shapes[s]->GetVertices(vertices);
      for (std::size_t v = 0; v < vertices.size(); ++v) {
        if (vertices[v] != vertex) continue;
        return "vertex:" + std::to_string(g) + "/" + std::to_string(s) + "/" + std::to_string(v);
      }
    }
  }
  return "gone";
}

Value ViewPortOf(const CViewPort& v)
{
  return Value::Object{{"left", v.left},
                       {"bottom", v.bottom},
                       {"right", v.right},
                       {"top", v.top},
                       {"width", v.width},
                       {"height", v.height},
                       {"screenWidth", v.screenWidth},
                       {"screenHeight", v.screenHeight},
                       {"rotation", v.rotation}};
}

Value ViewOf(ReplayEditor& editor)
{
  CHullwrightView& view = editor.view;
  const auto& cursors = editor.pointer.shapes;
  return Value::Object{
      {"viewPort", ViewPortOf(*view.viewPort)},
      {"cursorTool", editor.app.cursorTool},
      {"dragVertex", PlaceOf(editor.app, view.dragVertex)},
      {"hitVertex", PlaceOf(editor.app, view.hitVertex)},
      {"dragging", view.dragging},
      {"drawing", view.drawing},
      {"hitKind", view.hitKind},
      {"cursorPoint", Of(view.cursorPoint)},
      {"lastPoint", Of(view.lastPoint)},
      {"menuPoint", Of(view.menuPoint)},
      {"newShape", view.newShape ? Of(view.newShape->vertices) : Value()},
      {"statusText", view.statusText},
      {"unitsPane", view.UnitsPaneText()},
      {"cursor",
       cursors.empty() ? Value() : Value(cursors.back() == CursorShape::Hand ? "hand" : "cross")}};
}

Value ShellOf(const ReplayEditor& editor)
{
  Value::Object settings;
  for (const auto& [setting, value] : editor.settings.values) {
    settings[setting.substr(setting.find('/') + 1)] = value;
  }
  Value::Object checks;
  for (const CommandId id :
       {CommandId::ToggleGrid, CommandId::ToggleSnap, CommandId::CursorZoomIn,
        CommandId::CursorZoomOut, CommandId::CursorMove, CommandId::DrawPolyline}) {
    checks[std::to_string(NumberOf(id))] = editor.frame.QueryCommand(id).checked;
  }
  return Value::Object{{"settings", std::move(settings)},
                       {"grid", replay::Of(editor.app.LoadGridSettings())},
                       {"look", editor.app.applicationLook},
                       {"viewButton", editor.frame.viewButtonImage},
                       {"checks", std::move(checks)}};
}

}  // namespace

Value Of(const CShape& shape)
{
  Value::Object object = {
      {"type", static_cast<int>(shape.type)},
      {"editing", shape.editing},
      {"vertices", Of(shape.vertices)},
  };
  if (const auto* const point = dynamic_cast<const CShapePoint*>(&shape)) {
    object["position"] = Of(point->position);
  }
  if (const auto* const polygon = dynamic_cast<const CShapePolygon*>(&shape)) {
    Value::List rings;
    for (const auto& ring : polygon->rings) rings.push_back(Of(ring->vertices));
    object["rings"] = std::move(rings);
  }
  if (const auto* const label = dynamic_cast<const CShapeText*>(&shape)) AddLabel(object, *label);
  if (shape.style) object["style"] = Of(*shape.style);
  if (shape.attributes) object["attributes"] = Of(*shape.attributes);
  if (shape.selected) object["selected"] = true;
  if (shape.tag != 0) object["tag"] = shape.tag;
  return object;
}

Value Of(const CAnchor& anchor)
{
  return Value::Object{{"id", anchor.id},
                       {"name", anchor.name},
                       {"visible", anchor.visible},
                       {"marked", anchor.marked},
                       {"vessel", static_cast<int>(anchor.vessel)},
                       {"attachmentX", anchor.attachmentX},
                       {"attachmentY", anchor.attachmentY},
                       {"easting", anchor.easting},
                       {"northing", anchor.northing},
                       {"state", anchor.state}};
}

Value Of(const GridSettings& grid)
{
  return Value::Object{{"show", grid.show},
                       {"snap", grid.snap},
                       {"spacingShowX", grid.spacingShowX},
                       {"spacingShowY", grid.spacingShowY},
                       {"spacingSnapX", grid.spacingSnapX},
                       {"spacingSnapY", grid.spacingSnapY}};
}

Value ReplayEditor::State()
{
  return Value::Object{{"design", DesignOf(*this)},
                       {"view", ViewOf(*this)},
                       {"shell", ShellOf(*this)},
                       {"tree", tree.Report()},
                       {"frame", FrameValue(recorder.calls)}};
}

}  // namespace hullwright::replay
