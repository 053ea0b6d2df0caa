#include <algorithm>
#include <array>

#include "base/Text.h"
#include "file/FileSax.h"
#include "model/Layer.h"
#include "model/ShapePolygon.h"
#include "model/Units.h"
#include "replay/driver/Player.h"
#include "replay/driver/Script.h"
#include "view/SnapToGrid.h"

// Single operations that a script calls by their names.
namespace hullwright::replay {
namespace {

/// The arguments of a call.
class Args {
public:
  explicit Args(const Json& list) : list_(list) {}
  const Json& At(std::size_t index) const { return Item(list_, index); }
  double Number(std::size_t index) const { return NumberOf(Item(list_, index)); }
  int Integer(std::size_t index) const { return static_cast<int>(IntegerOf(Item(list_, index))); }
  std::string Name(std::size_t index) const { return TextOf(Item(list_, index)); }
  std::size_t Count() const { return list_.size(); }

private:
  Json list_;
};

CShapes& GroupOf(ReplayEditor& editor, int index)
{
  return *editor.app.shapeGroups.at(static_cast<std::size_t>(index));
}

CShape& ShapeOf(ReplayEditor& editor, const Args& args)
{
  return *GroupOf(editor, args.Integer(0)).shapes.at(static_cast<std::size_t>(args.Integer(1)));
}

Value SixFields(const CShapeVertex& v)
{
  return Row(v.x, v.y, v.z, static_cast<int>(v.flag), v.tagA, v.tagB);
}

Value VertexOp(ReplayEditor&, const Args& args)
{
  const std::string op = args.Name(0);
  CShapeVertex a = VertexOf(args.At(1));
  if (op == "muld") return SixFields(a * args.Number(2));
  if (op == "divd") return SixFields(a / args.Number(2));
  const CShapeVertex b = VertexOf(args.At(2));
  if (op == "less") return a < b;
  if (op == "equal") return a == b;
  if (op == "add") return SixFields(a + b);
  if (op == "sub") return SixFields(a - b);
  if (op == "divv") return SixFields(a / b);
  if (op == "assign") return SixFields(a = b);
  if (op == "iadd") return SixFields(a += b);
  if (op == "isub") return SixFields(a -= b);
  return "skip";
}

Value ConvertUnits(ReplayEditor&, const Args& args)
{
  CShapeVertex vertex(args.Number(2), args.Number(3), args.Number(4));
  const bool converted = vertex.ConvertUnits(UnitCode{args.Integer(0)}, UnitCode{args.Integer(1)});
  return Row(converted, vertex.x, vertex.y, vertex.z);
}

Value Snap(ReplayEditor& editor, const Args& args)
{
  double x = args.Number(0);
  double y = args.Number(1);
  SnapToGrid(editor.app.LoadGridSettings(), x, y);
  return Row(x, y);
}

Value SegmentDistance(ReplayEditor&, const Args& args)
{
  double distance = 0.0;
  const CShapeVertex a(args.Number(0), args.Number(1), 0.0);
  const CShapeVertex b(args.Number(2), args.Number(3), 0.0);
  const CShapeVertex p(args.Number(4), args.Number(5), 0.0);
  const bool has = DistanceToSegment(a, b, p, distance);
  return Row(has, has ? Value(distance) : Value());
}

/// Four numbers from one place on.
Extents ExtentsOf(const Args& args, std::size_t first)
{
  return {args.Number(first), args.Number(first + 1), args.Number(first + 2),
          args.Number(first + 3)};
}

Value BoundsOf(const Extents& box) { return Row(box.minX, box.minY, box.maxX, box.maxY); }

Value GetExtents(ReplayEditor& editor, const Args& args)
{
  Extents box;
  std::size_t next = 2;
  for (double* const bound : {&box.minX, &box.minY, &box.maxX, &box.maxY}) {
    if (next < args.Count()) *bound = args.Number(next++);
  }
  ShapeOf(editor, args).GetExtents(box);
  return BoundsOf(box);
}

Value Transform(ReplayEditor& editor, const Args& args)
{
  CShape& shape = ShapeOf(editor, args);
  const std::string kind = args.Name(2);
  if (kind == "Rotate") shape.Rotate(args.Number(3));
  if (kind == "Scale") shape.Scale(args.Number(3), args.Number(4), args.Number(5));
  if (kind == "Translate") shape.Translate(args.Number(3), args.Number(4), args.Number(5));
  return {};
}

Value AddArc(ReplayEditor&, const Args& args)
{
  CShapePolyline line;
  line.AddArc(args.Number(0), args.Number(1), args.Number(2), args.Number(3), args.Number(4));
  Value::List list;
  for (const auto& vertex : line.vertices) list.push_back(Of(*vertex));
  return list;
}

Value FindGroup(ReplayEditor& editor, const Args& args)
{
  auto& groups = editor.app.shapeGroups;
  const CShapes* const group = GetShapes(groups, ViewSide{args.Integer(0)});
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (group != nullptr && groups[i].get() == group) return i;
  }
  return {};
}

Value UpdateExtents(ReplayEditor& editor, const Args& args)
{
  CLayer layer;
  CShapes& group = GroupOf(editor, args.Integer(0));
  layer.shapes->TakeShapes(group);
  layer.extents = ExtentsOf(args, 1);
  const std::array<double, 4> before = {layer.extents.minX, layer.extents.minY, layer.extents.maxX,
                                        layer.extents.maxY};
  const bool again = std::ranges::any_of(before, [](double bound) { return bound == 0.0; });
  layer.UpdateExtents();
  group.TakeShapes(*layer.shapes);
  return Row(again, layer.extents.minX, layer.extents.minY, layer.extents.maxX, layer.extents.maxY);
}

Value RemoveForeign(ReplayEditor& editor, const Args& args)
{
  CShape& shape = ShapeOf(editor, args);
  auto foreign = std::make_unique<CShapeVertex>();
  // Rings take over what they are asked to remove; all others leave it to its owner. A polygon that
  // was reset still has its rings, but no longer its type.
  const auto* const polygon = dynamic_cast<const CShapePolygon*>(&shape);
  const bool takesOver = polygon != nullptr && !polygon->rings.empty();
  shape.RemoveVertex(takesOver ? foreign.release() : foreign.get());
  return {};
}

AttributeMap AttributesOf(const Json& value)
{
  AttributeMap attributes;
  for (const auto& [name, member] : MembersOf(value).items()) {
    attributes[WideFromUtf8(name)] = WideOf(member);
  }
  return attributes;
}

Value WriteXml(ReplayEditor& editor, const Args& args)
{
  CFileSax file(editor.messages);
  file.ResetOutput();
  for (const Json& call : ListOf(args.At(0))) {
    const Json& parts = ListOf(call);
    const std::string name = TextOf(Item(parts, 0));
    const std::string element = Utf8FromWide(WideOf(Item(parts, 1)));
    if (name == "WriteDeclaration") file.WriteDeclaration();
    if (name == "OpenElement" && parts.size() < 3) file.OpenElement(element);
    if (name == "OpenElement" && parts.size() >= 3) {
      file.OpenElement(element, AttributesOf(Item(parts, 2)));
    }
    if (name == "CloseElement") file.CloseElement(element);
    if (name == "WriteTextElement") file.WriteTextElement(element, WideOf(Item(parts, 2)));
    if (name == "WriteEmptyElement") {
      file.WriteEmptyElement(element, AttributesOf(Item(parts, 2)), WideOf(Item(parts, 3)));
    }
  }
  return Row(file.Output(), file.indent, file.outLength, file.outCapacity);
}

Value SaveGrid(ReplayEditor& editor, const Args& args)
{
  GridSettings grid = editor.app.LoadGridSettings();
  const Json& changes = args.At(0);
  grid.show = IntOf(Member(changes, "show"), grid.show);
  grid.snap = IntOf(Member(changes, "snap"), grid.snap);
  const auto spacing = [&](const char* name, double& field) {
    if (changes.contains(name)) field = NumberOf(changes[name]);
  };
  spacing("spacingShowX", grid.spacingShowX);
  spacing("spacingShowY", grid.spacingShowY);
  spacing("spacingSnapX", grid.spacingSnapX);
  spacing("spacingSnapY", grid.spacingSnapY);
  editor.app.SaveGridSettings(grid);
  return {};
}

Value InitialiseCanvas(ReplayEditor&, const Args& args)
{
  constexpr auto steps = std::to_array<std::pair<std::string_view, TargetStep>>({
      {"IsWindow", TargetStep::Window},
      {"D2D1CreateFactory", TargetStep::Drawing},
      {"GetClientRect", TargetStep::ClientArea},
      {"CreateHwndRenderTarget", TargetStep::Picture},
      {"DWriteCreateFactory", TargetStep::Texts},
      {"CoCreateInstance", TargetStep::Imaging},
  });
  DrawingRecorder recorder;
  const std::string name = args.Name(0);
  const auto* const failing =
      std::ranges::find(steps, name, &std::pair<std::string_view, TargetStep>::first);
  recorder.failCode = static_cast<ResultCode>(IntegerOf(args.At(1)));
  if (failing != steps.end()) recorder.failingStep = failing->second;
  CCanvas canvas;
  const bool success = canvas.Initialize(&recorder);
  const auto kept = std::ranges::count_if(
      steps, [&canvas](const auto& step) { return canvas.Holds(step.second); });
  return Row(success, std::string_view(canvas.errorText), static_cast<int>(kept));
}

Value StrokesOf(ReplayEditor&, const Args& args)
{
  DrawingRecorder recorder;
  CCanvas canvas;
  canvas.Initialize(&recorder);
  recorder.calls.clear();
  std::vector<PixelPoint> points;
  for (const Json& point : ListOf(args.At(0))) {
    points.push_back({static_cast<float>(NumberOf(Item(point, 0))),
                      static_cast<float>(NumberOf(Item(point, 1)))});
  }
  canvas.DrawPolyline(points, {});
  return recorder.calls.size();
}

Value Widths(ReplayEditor&, const Args& args)
{
  const auto widths = PaneWidths(args.Integer(0));
  return Row(widths[0], widths[1], widths[2]);
}

Value UnitLabel(ReplayEditor& editor, const Args& args)
{
  std::u16string label = WideOf(args.At(0));
  editor.app.GetUnitLabel(label);
  return label;
}

Value OnViewPort(ReplayEditor& editor, const std::string& name, const Args& args)
{
  CViewPort& v = *editor.view.viewPort;
  if (name == "Contains") return v.Contains(args.Number(0), args.Number(1));
  if (name == "ScreenToWorld") {
    const WorldPoint p = v.ScreenToWorld(args.Number(0), args.Number(1));
    return Row(p.x, p.y);
  }
  if (name == "WorldToScreen" || name == "WorldToScreenFlat") {
    const ScreenPoint p = name == "WorldToScreen"
                              ? v.WorldToScreen(args.Number(0), args.Number(1))
                              : v.WorldToScreenFlat(args.Number(0), args.Number(1));
    return Row(p.x, p.y);
  }
  if (name == "KeepAspect") v.KeepAspect();
  if (name == "FitExtents") v.FitExtents(ExtentsOf(args, 0));
  if (name == "ZoomToExtents") v.ZoomToExtents(ExtentsOf(args, 0));
  return {};
}

Value OnShape(ReplayEditor& editor, const std::string& name, const Args& args)
{
  CShape& shape = ShapeOf(editor, args);
  CShapes& group = GroupOf(editor, args.Integer(0));
  const CViewPort* const viewPort = editor.view.viewPort.get();
  if (name == "HitTest") return shape.HitTest(viewPort, args.Number(2), args.Number(3));
  if (name == "DistanceTo") return shape.DistanceTo(args.Number(2), args.Number(3));
  if (name == "IsVisible") return shape.IsVisible(*viewPort);
  if (name == "CloneShape") group.shapes.push_back(shape.Clone());
  if (name == "Reset") shape.Reset();
  if (name == "AppendVertices") {
    const auto source = static_cast<std::size_t>(args.Integer(2));
    dynamic_cast<CShapePolyline&>(shape).AppendVertices(
        dynamic_cast<const CShapePolyline*>(group.shapes.at(source).get()));
  }
  if (name == "ContainsPoint") {
    const auto& rings = dynamic_cast<const CShapePolygon&>(shape).rings;
    return rings.at(static_cast<std::size_t>(args.Integer(2)))
        ->ContainsPoint(args.Number(3), args.Number(4));
  }
  if (name == "PolygonAddVertex") {
    dynamic_cast<CShapePolygon&>(shape).AddVertex(
        std::make_unique<CShapeVertex>(args.Number(3), args.Number(4), args.Number(5)),
        static_cast<std::size_t>(args.Integer(2)));
  }
  return {};
}

template <auto Operation>
Value By(ReplayEditor& editor, const std::string&, const Args& args)
{
  return Operation(editor, args);
}

struct CallEntry {
  std::string_view name;
  Value (*call)(ReplayEditor&, const std::string&, const Args&);
};

constexpr auto calls = std::to_array<CallEntry>({
    {"ToMetres",
     [](ReplayEditor&, const std::string&, const Args& a) -> Value {
       return ToMetres(UnitCode{a.Integer(0)}, a.Number(1));
     }},
    {"FromMetres",
     [](ReplayEditor&, const std::string&, const Args& a) -> Value {
       return FromMetres(UnitCode{a.Integer(0)}, a.Number(1));
     }},
    {"ConvertUnits", By<ConvertUnits>},
    {"VertexOp", By<VertexOp>},
    {"SnapToGrid", By<Snap>},
    {"DistanceToSegment", By<SegmentDistance>},
    {"WorldToScreen", OnViewPort},
    {"WorldToScreenFlat", OnViewPort},
    {"ScreenToWorld", OnViewPort},
    {"Contains", OnViewPort},
    {"KeepAspect", OnViewPort},
    {"FitExtents", OnViewPort},
    {"ZoomToExtents", OnViewPort},
    {"HitTest", OnShape},
    {"DistanceTo", OnShape},
    {"IsVisible", OnShape},
    {"GetExtents", By<GetExtents>},
    {"ContainsPoint", OnShape},
    {"PolygonAddVertex", OnShape},
    {"CloneShape", OnShape},
    {"AppendVertices", OnShape},
    {"AppendClones",
     [](ReplayEditor& e, const std::string&, const Args& a) -> Value {
       GroupOf(e, a.Integer(0)).AppendClones(&GroupOf(e, a.Integer(1)));
       return {};
     }},
    {"RemoveForeign", By<RemoveForeign>},
    {"Reset", OnShape},
    {"Transform", By<Transform>},
    {"AddArc", By<AddArc>},
    {"GetShapes", By<FindGroup>},
    {"UpdateExtents", By<UpdateExtents>},
    {"NewAnchor",
     [](ReplayEditor& e, const std::string&, const Args&) -> Value {
       return e.app.anchors->NewAnchor()->id;
     }},
    {"Escape",
     [](ReplayEditor&, const std::string&, const Args& a) -> Value {
       return Escape(WideOf(a.At(0)));
     }},
    {"Write", By<WriteXml>},
    {"GetUnitLabel", By<UnitLabel>},
    {"LoadGridSettings",
     [](ReplayEditor& e, const std::string&, const Args&) -> Value {
       return Of(e.app.LoadGridSettings());
     }},
    {"SaveGridSettings", By<SaveGrid>},
    {"PaneWidths", By<Widths>},
    {"CanvasInitialize", By<InitialiseCanvas>},
    {"DrawPolylineCount", By<StrokesOf>},
});

}  // namespace

std::optional<Value> CallOperation(ReplayEditor& editor, const std::string& name,
                                   const Json& arguments)
{
  const auto* const found = std::ranges::find(calls, name, &CallEntry::name);
  if (found == calls.end()) return std::nullopt;
  try {
    return found->call(editor, name, Args(arguments));
  } catch (const std::out_of_range&) {
    return "no such place";
  } catch (const std::bad_cast&) {
    return "no such shape";
  }
}

}  // namespace hullwright::replay
