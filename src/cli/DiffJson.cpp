#include "cli/DiffJson.h"

#include <array>
#include <cmath>

#include "base/Code.h"
#include "base/Numbers.h"

namespace hullwright {
namespace {

void WritePlace(JsonWriter& json, const Place& place) { json.Doubles({place.x, place.y, place.z}); }

/// What was computed from coordinates, without the bits that only computing brings.
double Rounded(double value, const DiffSubject& subject)
{
  return std::isfinite(value) ? ParseDouble(FormatWithin(value, subject.tolerance)) + 0.0 : value;
}

void WriteDistance(JsonWriter& json, const Place& way, const DiffSubject& subject)
{
  json.Key("distance").Double(Rounded(LengthOf(way), subject));
}

/// Writes a number that counts from 1; null for 0.
void WriteNumber(JsonWriter& json, std::size_t number)
{
  if (number == 0) return json.Null();
  json.Integer(static_cast<std::int64_t>(number));
}

/// Writes a member of two values, the former and the current one.
template <class T, class Write>
void WritePair(JsonWriter& json, std::string_view key, const FormerAndCurrent<T>& pair, Write write)
{
  json.Key(key).BeginObject();
  json.Key("former");
  write(pair.former);
  json.Key("current");
  write(pair.current);
  json.EndObject();
}

void WriteUnit(JsonWriter& json, const UnitDifference& unit, const DiffSubject& subject)
{
  const auto write = [&json](std::string_view key, UnitCode code, const std::string& name) {
    json.Key(key).BeginObject();
    json.Key("code");
    if (code == UnitCode{}) {
      json.Null();
    } else {
      json.Integer(NumberOf(code));
    }
    json.Key("name").Text(WideFromUtf8(name));
    json.EndObject();
  };
  json.BeginObject();
  write("former", unit.unit.former, subject.unit.former);
  write("current", unit.unit.current, subject.unit.current);
  json.Key("sameNumbers").Boolean(unit.sameNumbers);
  json.Key("converted").Boolean(unit.converted);
  json.EndObject();
}

void WriteOffset(JsonWriter& json, const OffsetDifference& offset, const DiffSubject& subject)
{
  json.BeginObject();
  json.Key("name").Ascii(NameOf(offset.kind));
  json.Key("former");
  WritePlace(json, offset.place.former);
  json.Key("current");
  WritePlace(json, offset.place.current);
  WriteDistance(json, Way(offset.place.former, offset.place.current), subject);
  json.EndObject();
}

void WriteAnchor(JsonWriter& json, const AnchorDifference& difference, const DiffSubject& subject)
{
  const auto write = [&json](const std::optional<AnchorRecord>& anchor) {
    if (!anchor) return json.Null();
    json.BeginObject();
    json.Key("id").Integer(anchor->id);
    json.Key("name").Text(anchor->name);
    json.Key("attachment").Doubles({anchor->place.x, anchor->place.y});
    json.EndObject();
  };
  const auto& [former, current] = difference.anchor;
  json.BeginObject();
  json.Key("change").Ascii(!former ? "added" : !current ? "removed" : "changed");
  json.Key("former");
  write(former);
  json.Key("current");
  write(current);
  if (former && current) {
    WriteDistance(json, Way(former->place, current->place), subject);
  }
  json.EndObject();
}

void WriteVertex(JsonWriter& json, const VertexDifference& vertex, const DiffSubject& subject)
{
  const auto write = [&json](std::string_view key, std::size_t number, const Place& place) {
    json.Key(key);
    if (number == 0) return json.Null();
    json.BeginObject();
    json.Key("number");
    WriteNumber(json, number);
    json.Key("place");
    WritePlace(json, place);
    json.EndObject();
  };
  json.BeginObject();
  write("former", vertex.number.former, vertex.place.former);
  write("current", vertex.number.current, vertex.place.current);
  if (vertex.number.former != 0 && vertex.number.current != 0) {
    WriteDistance(json, Way(vertex.place.former, vertex.place.current), subject);
  }
  json.EndObject();
}

void WriteShape(JsonWriter& json, const ShapeDifference& shape, const DiffSubject& subject)
{
  static constexpr std::array<const char*, 4> changes = {"added", "removed", "moved", "changed"};
  json.BeginObject();
  json.Key("side").Ascii(subject.nameOfSide(shape.side));
  json.Key("type").Ascii(NameOf(shape.type));
  json.Key("change").Ascii(changes.at(static_cast<std::size_t>(shape.change)));
  WritePair(json, "number", shape.number, [&](std::size_t number) { WriteNumber(json, number); });
  WritePair(json, "vertices", shape.vertexCount,
            [&](std::size_t count) { json.Integer(static_cast<std::int64_t>(count)); });
  if (shape.change == ShapeChange::Moved) {
    json.Key("by");
    WritePlace(json, {Rounded(shape.by.x, subject), Rounded(shape.by.y, subject),
                      Rounded(shape.by.z, subject)});
    WriteDistance(json, shape.by, subject);
  }
  json.Key("reversed").Boolean(shape.reversed);
  json.Key("changedVertices").BeginArray();
  for (const VertexDifference& vertex : shape.vertices) WriteVertex(json, vertex, subject);
  json.EndArray();
  if (shape.style) {
    WritePair(json, "look", *shape.style, [&](const LineStyle& style) {
      json.BeginObject();
      json.Key("line").Integer(style.colour);
      json.Key("width").Double(static_cast<double>(style.width));
      json.EndObject();
    });
  }
  if (shape.otherForm) {
    WritePair(json, "form", shape.text, [&](const std::u16string& text) { json.Text(text); });
  }
  json.EndObject();
}

template <class T, class Write>
void WriteList(JsonWriter& json, std::string_view key, const std::vector<T>& list,
               const DiffSubject& subject, Write write)
{
  json.Key(key).BeginArray();
  for (const T& entry : list) write(json, entry, subject);
  json.EndArray();
}

}  // namespace

void WriteDiffJson(JsonWriter& json, const Differences& differences, const DiffSubject& subject)
{
  json.BeginObject();
  json.Key("former").Text(WideFromUtf8(subject.name.former));
  json.Key("current").Text(WideFromUtf8(subject.name.current));
  json.Key("tolerance").Double(subject.tolerance);
  json.Key("equal").Boolean(differences.None());
  json.Key("unit");
  if (differences.unit) {
    WriteUnit(json, *differences.unit, subject);
  } else {
    json.Null();
  }
  WriteList(json, "offsets", differences.offsets, subject, WriteOffset);
  WriteList(json, "anchors", differences.anchors, subject, WriteAnchor);
  WriteList(json, "shapes", differences.shapes, subject, WriteShape);
  json.EndObject();
  json.EndLine();
}

}  // namespace hullwright
