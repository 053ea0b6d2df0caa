#include "cli/DesignFindings.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <map>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "model/Units.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

using Numbers = std::initializer_list<std::pair<const char*, double>>;

/// Adds those of the numbers of one place that are not finite.
void AddNotFinite(std::vector<std::string>& findings, const std::string& place, Numbers numbers)
{
  for (const auto& [name, number] : numbers) {
    if (std::isfinite(number)) continue;
    const char* const value = std::isnan(number) ? "nan" : number < 0.0 ? "-inf" : "inf";
    findings.push_back(place + ": " + name + " is not finite (" + value + ")");
  }
}

bool IsFinite(const CShapeVertex& vertex)
{
  return std::isfinite(vertex.x) && std::isfinite(vertex.y) && std::isfinite(vertex.z);
}

void AddNotFinite(std::vector<std::string>& findings, const std::string& place,
                  const CShapeVertex& vertex)
{
  AddNotFinite(findings, place, {{"x", vertex.x}, {"y", vertex.y}, {"z", vertex.z}});
}

void AddGroup(std::vector<std::string>& findings, const std::string& name, const CShapes& group)
{
  std::size_t polyline = 0;
  ForEachEntry(group.shapes, [&](const CShape& shape) {
    const std::string place = name + ", polyline " + std::to_string(++polyline) + ", vertex ";
    std::size_t number = 0;
    ForEachEntry(shape.vertices, [&](const CShapeVertex& vertex) {
      ++number;
      if (!IsFinite(vertex)) AddNotFinite(findings, place + std::to_string(number), vertex);
    });
  });
}

}  // namespace

std::string GroupName(std::int32_t viewCode)
{
  if (const ViewSideEntry* const side = FindViewSide(viewCode)) return std::string(side->name);
  if (viewCode == ViewSide::All) return "all";
  return "view " + FormatHex(static_cast<std::uint32_t>(viewCode), 2);
}

std::vector<std::string> NumberFindings(const CHullwrightApp& app)
{
  std::vector<std::string> findings;
  std::map<std::int32_t, int> groups;
  ForEachEntry(app.shapeGroups, [&](const CShapes& group) {
    const int number = ++groups[group.viewCode];
    const std::string name = GroupName(group.viewCode);
    AddGroup(findings, number == 1 ? name : name + " (group " + std::to_string(number) + ")",
             group);
  });
  AddNotFinite(findings, "offset gps", *app.offsetGps);
  AddNotFinite(findings, "offset txd", *app.offsetTransducer);
  AddNotFinite(findings, "offset piv", *app.offsetPivot);
  ForEachEntry(app.anchors->items, [&](const CAnchor& anchor) {
    AddNotFinite(findings, "anchor " + std::to_string(anchor.id),
                 {{"attachmentX", anchor.attachmentX}, {"attachmentY", anchor.attachmentY}});
  });
  return findings;
}

std::vector<std::string> UnitFindings(CHullwrightApp& app)
{
  const std::int32_t code = app.unitCode;
  // Code 0 is told as one that a save leaves out.
  if (code == 0 || HasUnitFactor(code)) return {};
  std::string text = "the unit code " + std::to_string(code);
  const std::vector<UnitRecord> units = app.ReadUnits();
  const auto unit = std::ranges::find(units, code, &UnitRecord::numId);
  // EPSG keeps angles and ratios in ranges of their own.
  const bool isAngle = code / 100 == 91;
  const bool isRatio = code / 100 == 92;
  if (unit != units.end()) {
    text += " (" + Utf8FromWide(unit->strUnit) + ") has no factor";
  } else if (isAngle || isRatio) {
    text += isAngle ? " is an angle, not a length" : " is a ratio, not a length";
  } else {
    text += " is unknown";
  }
  return {text + "; all lengths count as metres"};
}

}  // namespace hullwright
