#include "exchange/ExportedDesign.h"

#include <utility>

#include "base/Bits.h"
#include "base/Text.h"
#include "model/OffsetPoints.h"
#include "model/ShapeColours.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

void GatherPolylines(const CShapes& group, ExportedDesign& exported)
{
  constexpr std::size_t fewest = 2;  // vertices of a line
  const std::string side = NameOfSide(group.viewCode);
  std::size_t number = 0;
  ForEachEntry(group.shapes, [&](const CShape& shape) {
    if (shape.type != ShapeType::Polyline) return;
    ++number;
    if (shape.vertices.size() < fewest) {
      ++exported.leftOut;
    } else {
      exported.polylines.push_back({side, number, &shape});
    }
  });
}

void GatherPlaces(const DesignState& design, ExportedDesign& exported)
{
  for (const OffsetPoint& point : offsetPoints) {
    const CShapeVertex* const place = (design.*point.place).get();
    if (place == nullptr) continue;
    exported.places.push_back(
        {offsetKind, WideFromAscii(point.name), std::nullopt, place->x, place->y, place->z});
  }
  ForEachEntry(design.anchors->items, [&](const CAnchor& anchor) {
    exported.places.push_back(
        {anchorKind, anchor.name, anchor.id, anchor.attachmentX, anchor.attachmentY, std::nullopt});
  });
}

}  // namespace

ExportedDesign GatherExport(const DesignState& design, ViewSide side, std::string unitName)
{
  ExportedDesign exported;
  exported.unit = design.unitCode;
  exported.unitName = std::move(unitName);
  const bool everything = side == ViewSide::All;
  ForEachEntry(design.shapeGroups, [&](const CShapes& group) {
    if (everything || group.AnswersFor(side)) GatherPolylines(group, exported);
  });
  if (everything || side == ViewSide::Top) GatherPlaces(design, exported);
  return exported;
}

std::string NameOfSide(ViewSide code) { return SideName(code, "all", "view-"); }

bool IsClosed(const CShape& polyline)
{
  constexpr std::size_t fewest = 3;  // there, a corner, and back
  if (polyline.vertices.size() < fewest) return false;
  const CShapeVertex& first = *polyline.vertices.front();
  const CShapeVertex& last = *polyline.vertices.back();
  return SameBits(first.x, last.x) && SameBits(first.y, last.y) && SameBits(first.z, last.z);
}

std::uint32_t LineColourOf(const CShape& polyline)
{
  constexpr std::uint32_t channels = 0xFFFFFF;
  return StyleOf(polyline).lineColour & channels;
}

double LineWidthOf(const CShape& polyline) { return StyleOf(polyline).lineWidth; }

}  // namespace hullwright
