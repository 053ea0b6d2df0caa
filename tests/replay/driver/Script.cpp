#include "replay/driver/Script.h"

#include "base/Numbers.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapePolyline.h"
#include "model/ShapeText.h"

namespace hullwright::replay {

std::u16string WideOf(const QJsonValue& value) { return value.toString().toStdU16String(); }

std::string BytesOf(const QJsonValue& value)
{
  std::string bytes;
  for (const QChar unit : value.toString()) bytes.push_back(static_cast<char>(unit.unicode()));
  return bytes;
}

double NumberOf(const QJsonValue& value)
{
  return value.isString() ? ParseDouble(WideOf(value)) : value.toDouble();
}

CShapeVertex VertexOf(const QJsonValue& value)
{
  constexpr qsizetype withCarriedFields = 6;
  const QJsonArray parts = value.toArray();
  CShapeVertex vertex(NumberOf(parts.at(0)), NumberOf(parts.at(1)), NumberOf(parts.at(2)));
  if (parts.size() < withCarriedFields) return vertex;
  vertex.flag = static_cast<std::uint8_t>(parts.at(3).toInt());
  vertex.tagA = parts.at(4).toInt();
  vertex.tagB = parts.at(5).toInt();
  return vertex;
}

namespace {

void AddVertices(CShape& shape, const QJsonValue& list)
{
  for (const QJsonValue& vertex : list.toArray()) {
    shape.vertices.push_back(std::make_unique<CShapeVertex>(VertexOf(vertex)));
  }
}

std::unique_ptr<CShape> GeometryOf(const QJsonObject& object)
{
  switch (object[u"type"].toInt()) {
    case ShapeType::Point: {
      auto point = std::make_unique<CShapePoint>();
      point->position = VertexOf(object[u"position"]);
      return point;
    }
    case ShapeType::Polygon: {
      auto polygon = std::make_unique<CShapePolygon>();
      for (const QJsonValue& ring : object[u"rings"].toArray()) {
        AddVertices(*polygon->rings.emplace_back(std::make_unique<CShapePolygonRing>()), ring);
      }
      return polygon;
    }
    case ShapeType::Text: {
      auto label = std::make_unique<CShapeText>();
      AddVertices(*label, object[u"vertices"]);
      label->text = WideOf(object[u"text"]);
      label->angle = NumberOf(object[u"angle"]);
      label->height = NumberOf(object[u"height"]);
      return label;
    }
    default: {
      auto line = std::make_unique<CShapePolyline>();
      AddVertices(*line, object[u"vertices"]);
      return line;
    }
  }
}

std::unique_ptr<ShapeStyle> StyleOf(const QJsonObject& object)
{
  auto style = std::make_unique<ShapeStyle>();
  const auto integer = [&](const char* name, auto& field) {
    const QJsonValue value = object[QLatin1String(name)];
    if (!value.isUndefined()) field = static_cast<std::decay_t<decltype(field)>>(value.toInteger());
  };
  integer("lineColour", style->lineColour);
  integer("fillColour", style->fillColour);
  integer("styleCode", style->styleCode);
  integer("styleFlagA", style->styleFlagA);
  integer("styleFlagB", style->styleFlagB);
  if (object.contains(u"lineWidth")) {
    style->lineWidth = static_cast<float>(NumberOf(object[u"lineWidth"]));
  }
  return style;
}

}  // namespace

std::unique_ptr<CShape> ShapeOf(const QJsonObject& object)
{
  std::unique_ptr<CShape> shape = GeometryOf(object);
  if (object[u"style"].isObject()) shape->style = StyleOf(object[u"style"].toObject());
  if (object[u"attributes"].isArray()) {
    shape->attributes = std::make_unique<CShapeAttributes>();
    for (const QJsonValue& pair : object[u"attributes"].toArray()) {
      shape->attributes->Append(WideOf(pair.toArray().at(0)), WideOf(pair.toArray().at(1)));
    }
  }
  shape->selected = object[u"selected"].toBool();
  shape->editing = object[u"editing"].toBool();
  shape->tag = object[u"tag"].toInt();
  return shape;
}

}  // namespace hullwright::replay
