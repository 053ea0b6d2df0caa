#include "exchange/GeoJsonExport.h"

#include "base/Code.h"
#include "base/Json.h"
#include "model/ShapeColours.h"

namespace hullwright {
namespace {

constexpr const char* note =
    "Vessel coordinates in the unit of length that is named here, not longitudes and latitudes.";

/// Begins a feature and its properties, with those that all have.
void BeginFeature(JsonWriter& json, const ExportedDesign& design, std::string_view kind,
                  std::string_view side)
{
  json.BeginObject();
  json.Key("type").Ascii("Feature");
  json.Key("properties").BeginObject();
  json.Key("kind").Ascii(kind);
  json.Key("side").Ascii(side);
  json.Key("unit").Text(WideFromUtf8(design.unitName));
}

/// Ends the properties and begins the geometry, whose coordinates come next.
void BeginGeometry(JsonWriter& json, std::string_view type)
{
  json.EndObject();
  json.Key("geometry").BeginObject();
  json.Key("type").Ascii(type);
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
  json.Key("number").Integer(static_cast<std::int64_t>(polyline.number));
  json.Key("name").Null();
  json.Key("colour").Ascii(HexColour(LineColourOf(*polyline.shape)));
  json.Key("width").Double(LineWidthOf(*polyline.shape));
  json.Key("closed").Boolean(IsClosed(*polyline.shape));
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
  json.Key("name").Text(place.name);
  json.Key("colour").Null();
  json.Key("width").Null();
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
  json.Key("type").Ascii("FeatureCollection");
  json.Key("note").Ascii(note);
  json.Key("unit").BeginObject();
  json.Key("code").Integer(NumberOf(design.unit));
  json.Key("name").Text(WideFromUtf8(design.unitName));
  json.EndObject();
  json.Key("features").BeginArray();
  for (const ExportedPolyline& polyline : design.polylines) WritePolyline(json, design, polyline);
  for (const ExportedPlace& place : design.places) WritePlace(json, design, place);
  json.EndArray();
  json.EndObject();
  json.EndLine();
  return text;
}

}  // namespace hullwright
