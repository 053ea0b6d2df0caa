#include "exchange/GeoJsonExport.h"

#include "base/Code.h"
#include "base/Json.h"
#include "model/ShapeColours.h"

namespace hullwright {
namespace {

constexpr const char* note =
    "Vessel coordinates in the unit of length that is named here, not longitudes and latitudes.";

void WriteText(JsonWriter& json, std::string_view key, std::string_view utf8)
{
  json.Key(key);
  json.Text(WideFromUtf8(utf8));
}

/// Begins a feature and its properties, with those that all have.
void BeginFeature(JsonWriter& json, const ExportedDesign& design, std::string_view kind,
                  std::string_view side)
{
  json.BeginObject();
  WriteText(json, "type", "Feature");
  json.Key("properties");
  json.BeginObject();
  WriteText(json, "kind", kind);
  WriteText(json, "side", side);
  WriteText(json, "unit", design.unitName);
}

/// Ends the properties and begins the geometry, whose coordinates come next.
void BeginGeometry(JsonWriter& json, std::string_view type)
{
  json.EndObject();
  json.Key("geometry");
  json.BeginObject();
  WriteText(json, "type", type);
  json.Key("coordinates");
}

void EndFeature(JsonWriter& json)
{
  json.EndObject();
  json.EndObject();
}

void WritePolyline(JsonWriter& json, const ExportedDesign& design, const ExportedPolyline& polyline)
{
  BeginFeature(json, design, "polyline", polyline.side);
  json.Key("number");
  json.Integer(static_cast<std::int64_t>(polyline.number));
  json.Key("name");
  json.Null();
  WriteText(json, "colour", HexColour(LineColourOf(*polyline.shape)));
  json.Key("width");
  json.Double(LineWidthOf(*polyline.shape));
  json.Key("closed");
  json.Boolean(IsClosed(*polyline.shape));
  BeginGeometry(json, "LineString");
  json.BeginArray();
  ForEachEntry(polyline.shape->vertices, [&](const CShapeVertex& vertex) {
    json.Doubles({vertex.x, vertex.y, vertex.z});
  });
  json.EndArray();
  EndFeature(json);
}

void WritePlace(JsonWriter& json, const ExportedDesign& design, const ExportedPlace& place)
{
  BeginFeature(json, design, place.kind, NameOfSide(ViewSide::Top));
  json.Key("number");
  if (place.number) {
    json.Integer(*place.number);
  } else {
    json.Null();
  }
  json.Key("name");
  json.Text(place.name);
  for (const char* const key : {"colour", "width"}) {
    json.Key(key);
    json.Null();
  }
  BeginGeometry(json, "Point");
  if (place.z) {
    json.Doubles({place.x, place.y, *place.z});
  } else {
    json.Doubles({place.x, place.y});
  }
  EndFeature(json);
}

}  // namespace

std::string MakeGeoJson(const ExportedDesign& design)
{
  std::string text;
  JsonWriter json(text);
  json.BeginObject();
  WriteText(json, "type", "FeatureCollection");
  WriteText(json, "note", note);
  json.Key("unit");
  json.BeginObject();
  json.Key("code");
  json.Integer(NumberOf(design.unit));
  WriteText(json, "name", design.unitName);
  json.EndObject();
  json.Key("features");
  json.BeginArray();
  for (const ExportedPolyline& polyline : design.polylines) WritePolyline(json, design, polyline);
  for (const ExportedPlace& place : design.places) WritePlace(json, design, place);
  json.EndArray();
  json.EndObject();
  json.EndLine();
  return text;
}

}  // namespace hullwright
