#include "replay/driver/Script.h"

#include <cmath>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapePolyline.h"
#include "model/ShapeText.h"

namespace hullwright::replay {

Json ParseLine(std::string_view line)
{
  // The parser takes a minus zero that is written as an integer for a zero without a sign.
  const auto keepMinusZero = [](int, Json::parse_event_t event, Json& value) {
    const bool signedInteger = value.is_number_integer() && !value.is_number_unsigned();
    if (event == Json::parse_event_t::value && signedInteger && value == 0) value = -0.0;
    return true;
  };
  return Json::parse(line, keepMinusZero);
}

const Json& Member(const Json& object, const char* name)
{
  static const Json none;
  const auto found = object.is_object() ? object.find(name) : object.end();
  return found == object.end() ? none : *found;
}

const Json& Item(const Json& list, std::size_t index)
{
  static const Json none;
  return list.is_array() && index < list.size() ? list[index] : none;
}

const Json& ListOf(const Json& value)
{
  static const Json none = Json::array();
  return value.is_array() ? value : none;
}

const Json& MembersOf(const Json& value)
{
  static const Json none = Json::object();
  return value.is_object() ? value : none;
}

std::int64_t IntegerOf(const Json& value, std::int64_t fallback)
{
  constexpr double beyond = 9223372036854775808.0;  // the first that is no 64-bit integer
  if (value.is_number_unsigned()) {
    const auto number = value.get<std::uint64_t>();
    return std::in_range<std::int64_t>(number) ? static_cast<std::int64_t>(number) : fallback;
  }
  if (value.is_number_integer()) return value.get<std::int64_t>();
  if (!value.is_number_float()) return fallback;
  const double number = value.get<double>();
  const bool fits = number >= -beyond && number < beyond && std::trunc(number) == number;
  return fits ? static_cast<std::int64_t>(number) : fallback;
}

int IntOf(const Json& value, int fallback)
{
  const std::int64_t number = IntegerOf(value, fallback);
  return std::in_range<int>(number) ? static_cast<int>(number) : fallback;
}

bool BoolOf(const Json& value, bool fallback)
{
  return value.is_boolean() ? value.get<bool>() : fallback;
}

std::string TextOf(const Json& value)
{
  return value.is_string() ? value.get<std::string>() : std::string();
}

std::u16string WideOf(const Json& value) { return WideFromUtf8(TextOf(value)); }

std::string BytesOf(const Json& value)
{
  std::string bytes;
  for (const char16_t unit : WideOf(value)) bytes.push_back(static_cast<char>(unit));
  return bytes;
}

double NumberOf(const Json& value)
{
  if (value.is_string()) return ParseDouble(WideOf(value));
  return value.is_number() ? value.get<double>() : 0.0;
}

CShapeVertex VertexOf(const Json& value)
{
  constexpr std::size_t withCarriedFields = 6;
  const Json& parts = ListOf(value);
  CShapeVertex vertex(NumberOf(Item(parts, 0)), NumberOf(Item(parts, 1)), NumberOf(Item(parts, 2)));
  if (parts.size() < withCarriedFields) return vertex;
  vertex.flag = static_cast<std::uint8_t>(IntOf(Item(parts, 3)));
  vertex.tagA = IntOf(Item(parts, 4));
  vertex.tagB = IntOf(Item(parts, 5));
  return vertex;
}

namespace {

void AddVertices(CShape& shape, const Json& list)
{
  for (const Json& vertex : ListOf(list)) {
    shape.vertices.push_back(std::make_unique<CShapeVertex>(VertexOf(vertex)));
  }
}

std::unique_ptr<CShape> GeometryOf(const Json& object)
{
  switch (CodeOf<ShapeType>(Member(object, "type"))) {
    case ShapeType::Point: {
      auto point = std::make_unique<CShapePoint>();
      point->position = VertexOf(Member(object, "position"));
      return point;
    }
    case ShapeType::Polygon: {
      auto polygon = std::make_unique<CShapePolygon>();
      for (const Json& ring : ListOf(Member(object, "rings"))) {
        AddVertices(*polygon->rings.emplace_back(std::make_unique<CShapePolygonRing>()), ring);
      }
      return polygon;
    }
    case ShapeType::Text: {
      auto label = std::make_unique<CShapeText>();
      AddVertices(*label, Member(object, "vertices"));
      label->text = WideOf(Member(object, "text"));
      label->angle = NumberOf(Member(object, "angle"));
      label->height = NumberOf(Member(object, "height"));
      return label;
    }
    default: {
      auto line = std::make_unique<CShapePolyline>();
      AddVertices(*line, Member(object, "vertices"));
      return line;
    }
  }
}

std::unique_ptr<ShapeStyle> StyleOf(const Json& object)
{
  auto style = std::make_unique<ShapeStyle>();
  const auto integer = [&](const char* name, auto& field) {
    if (!object.contains(name)) return;
    field = static_cast<std::decay_t<decltype(field)>>(IntegerOf(object[name]));
  };
  integer("lineColour", style->lineColour);
  integer("fillColour", style->fillColour);
  integer("styleCode", style->styleCode);
  integer("styleFlagA", style->styleFlagA);
  integer("styleFlagB", style->styleFlagB);
  if (object.contains("lineWidth")) {
    style->lineWidth = static_cast<float>(NumberOf(Member(object, "lineWidth")));
  }
  return style;
}

}  // namespace

std::unique_ptr<CShape> ShapeOf(const Json& object)
{
  std::unique_ptr<CShape> shape = GeometryOf(object);
  if (Member(object, "style").is_object()) shape->style = StyleOf(Member(object, "style"));
  if (Member(object, "attributes").is_array()) {
    shape->attributes = std::make_unique<CShapeAttributes>();
    for (const Json& pair : ListOf(Member(object, "attributes"))) {
      shape->attributes->Append(WideOf(Item(pair, 0)), WideOf(Item(pair, 1)));
    }
  }
  shape->selected = BoolOf(Member(object, "selected"));
  shape->editing = BoolOf(Member(object, "editing"));
  shape->tag = IntOf(Member(object, "tag"));
  return shape;
}

}  // namespace hullwright::replay
