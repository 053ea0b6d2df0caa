#include "cli/ShapesJson.h"

#include "base/Code.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

namespace hullwright {
namespace {

void WriteVertex(JsonWriter& json, const CShapeVertex& vertex)
{
  json.Doubles({vertex.x, vertex.y, vertex.z});
}

void WriteVertices(JsonWriter& json, const OwnedArray<CShapeVertex>& vertices)
{
  json.BeginArray();
  ForEachEntry(vertices, [&](const CShapeVertex& vertex) { WriteVertex(json, vertex); });
  json.EndArray();
}

void WriteStyle(JsonWriter& json, const ShapeStyle* style)
{
  if (style == nullptr) return json.Null();
  json.BeginObject();
  json.Key("line").Integer(style->lineColour);
  json.Key("fill").Integer(style->fillColour);
  json.Key("width").Double(style->lineWidth);
  json.Key("styleCode").Integer(style->styleCode);
  json.EndObject();
}

void WriteAttributes(JsonWriter& json, const CShapeAttributes* attributes)
{
  json.BeginArray();
  if (attributes != nullptr) {
    ForEachEntry(attributes->items, [&](const ShapeAttribute& pair) {
      json.BeginArray();
      json.Text(pair.name);
      json.Text(pair.value);
      json.EndArray();
    });
  }
  json.EndArray();
}

/// Writes the members that depend on the kind of a shape.
class GeometryWriter : public IShapeVisitor {
public:
  explicit GeometryWriter(JsonWriter& json) : json_(json) {}

  void Visit(const CShapePoint& point) override
  {
    json_.Key("vertices").BeginArray();
    WriteVertex(json_, point.position);
    json_.EndArray();
  }

  void Visit(const COutlineShape& outline) override { WriteOutline(outline); }

  void Visit(const CShapePolygon& polygon) override
  {
    WriteOutline(polygon);
    json_.Key("rings").BeginArray();
    ForEachEntry(polygon.rings,
                 [this](const CShapePolygonRing& ring) { WriteVertices(json_, ring.vertices); });
    json_.EndArray();
  }

  void Visit(const CShapeText& label) override
  {
    WriteOutline(label);
    json_.Key("text").Text(label.text);
    json_.Key("angle").Double(label.angle);
    json_.Key("height").Double(label.height);
  }

private:
  void WriteOutline(const CShape& shape)
  {
    json_.Key("vertices");
    WriteVertices(json_, shape.vertices);
  }

  JsonWriter& json_;
};

void WriteShape(JsonWriter& json, const CShape& shape)
{
  json.BeginObject();
  json.Key("type").Integer(NumberOf(shape.type));
  json.Key("tag").Integer(shape.tag);
  json.Key("style");
  WriteStyle(json, shape.style.get());
  json.Key("attrs");
  WriteAttributes(json, shape.attributes.get());
  GeometryWriter geometry(json);
  shape.Accept(geometry);
  json.EndObject();
}

/// The messages have the path in brackets, one of them behind a blank.
std::u16string WithoutPath(std::u16string text, std::u16string_view path)
{
  for (const std::u16string_view bracket : {u"[", u"[ "}) {
    const std::u16string shown = std::u16string(bracket).append(path) + u"]";
    const std::size_t at = text.find(shown);
    if (at != std::u16string::npos) return text.replace(at + bracket.size(), path.size(), u"%ls");
  }
  return text;
}

}  // namespace

void WriteImportJson(JsonWriter& json, int result, const KeptTrace& log, std::u16string_view path,
                     const CLayer& layer)
{
  json.BeginObject();
  json.Key("result").Integer(result);
  json.Key("log").BeginArray();
  for (const KeptTrace::Record& record : log.records) {
    json.BeginArray();
    json.Integer(NumberOf(record.level));
    json.Text(record.category);
    json.Text(WithoutPath(record.text, path));
    json.EndArray();
  }
  json.EndArray();
  json.Key("extents").Doubles(
      {layer.extents.minX, layer.extents.minY, layer.extents.maxX, layer.extents.maxY});
  json.Key("shapes").BeginArray();
  ForEachEntry(layer.shapes->shapes, [&](const CShape& shape) { WriteShape(json, shape); });
  json.EndArray();
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
