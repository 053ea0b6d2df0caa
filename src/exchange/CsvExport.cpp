#include "exchange/CsvExport.h"

#include <initializer_list>
#include <string_view>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/ShapeColours.h"

namespace hullwright {
namespace {

/// A field as a table spells it: in quotation marks where it could be taken for several.
std::string Field(std::string_view text)
{
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

void AppendRow(std::string& csv, std::initializer_list<std::string_view> fields)
{
  bool first = true;
  for (const std::string_view field : fields) {
    if (!first) csv += ',';
    first = false;
    csv += Field(field);
  }
  csv += "\r\n";
}

void AppendVertices(std::string& csv, const ExportedPolyline& polyline, const std::string& unit)
{
  const std::string number = std::to_string(polyline.number);
  const std::string colour = HexColour(LineColourOf(*polyline.shape));
  const std::string width = FormatShortest(LineWidthOf(*polyline.shape));
  std::size_t vertexNumber = 0;
  ForEachEntry(polyline.shape->vertices, [&](const CShapeVertex& vertex) {
    AppendRow(csv, {"vertex", polyline.side, number, std::to_string(++vertexNumber), "",
                    FormatShortest(vertex.x), FormatShortest(vertex.y), FormatShortest(vertex.z),
                    unit, colour, width});
  });
}

void AppendPlace(std::string& csv, const ExportedPlace& place, const std::string& unit)
{
  AppendRow(csv, {place.kind, NameOfSide(ViewSide::Top),
                  place.number ? std::to_string(*place.number) : "", "", Utf8FromWide(place.name),
                  FormatShortest(place.x), FormatShortest(place.y),
                  place.z ? FormatShortest(*place.z) : "", unit, "", ""});
}

}  // namespace

std::string MakeCsv(const ExportedDesign& design)
{
  std::string csv;
  AppendRow(csv,
            {"kind", "side", "number", "vertex", "name", "x", "y", "z", "unit", "colour", "width"});
  for (const ExportedPolyline& polyline : design.polylines) {
    AppendVertices(csv, polyline, design.unitName);
  }
  for (const ExportedPlace& place : design.places) AppendPlace(csv, place, design.unitName);
  return csv;
}

}  // namespace hullwright
