#include "exchange/DxfHeader.h"

#include <algorithm>
#include <utility>

#include "base/Code.h"
#include "base/Numbers.h"
#include "exchange/DrawingUnits.h"
#include "exchange/DxfRecords.h"

namespace hullwright {
namespace {

void Variable(DxfText& text, std::string_view name, int code, std::string_view value)
{
  text.Group(9, name);
  text.Group(code, value);
}

/// Height of the view that shows the whole box in any window no higher than it is wide: the longer
/// side of the box, with a margin.
double HeightOf(const DxfBox& box)
{
  constexpr double margin = 1.2;
  return box.Size() * margin;
}

/// The mean of two numbers, also of those whose sum would be infinite.
double Mean(double a, double b) { return a / 2.0 + b / 2.0; }

}  // namespace

void DxfBox::Widen(const CShapeVertex& place)
{
  if (std::exchange(isEmpty, false)) {
    low = high = place;
    return;
  }
  for (const auto axis : {&CShapeVertex::x, &CShapeVertex::y, &CShapeVertex::z}) {
    low.*axis = std::min(low.*axis, place.*axis);
    high.*axis = std::max(high.*axis, place.*axis);
  }
}

double DxfBox::Size() const
{
  constexpr double largest = 1e99;  // that CAD programs work with
  const double size = std::max(high.x - low.x, high.y - low.y);
  return size > 0.0 ? std::min(size, largest) : 1.0;
}

double DxfBox::TextHeight() const
{
  constexpr double textsPerDrawing = 100.0;
  return Size() / textsPerDrawing;
}

DxfBox BoxOf(const ExportedDesign& design)
{
  DxfBox box;
  for (const ExportedPolyline& polyline : design.polylines) {
    ForEachEntry(polyline.shape->vertices, [&](const CShapeVertex& vertex) { box.Widen(vertex); });
  }
  for (const ExportedPlace& place : design.places) {
    box.Widen(CShapeVertex(place.x, place.y, place.z.value_or(0.0)));
  }
  return box;
}

void WriteDxfHeader(DxfText& text, UnitCode unit, const DxfBox& box, std::uint32_t nextHandle)
{
  const bool isR12 = nextHandle == 0;
  text.Group(999, "Hullwright, vessel coordinates, unit EPSG " + std::to_string(NumberOf(unit)));
  text.Records("0 SECTION|2 HEADER");
  Variable(text, "$ACADVER", 1, isR12 ? "AC1009" : "AC1015");
  if (!isR12) {
    Variable(text, "$DWGCODEPAGE", 3, "ANSI_1252");
    Variable(text, "$HANDSEED", 5, FormatHex(nextHandle, 1));
    Variable(text, "$INSUNITS", 70, std::to_string(DrawingUnitOf(unit)));
    Variable(text, "$MEASUREMENT", 70, "1");
  }
  // Points are drawn as crosses as large as the texts beside them, so that they are seen.
  Variable(text, "$PDMODE", 70, "3");
  text.Group(9, "$PDSIZE");
  text.Real(40, box.TextHeight());
  text.Group(9, "$EXTMIN");
  text.Place(10, box.low.x, box.low.y, box.low.z);
  text.Group(9, "$EXTMAX");
  text.Place(10, box.high.x, box.high.y, box.high.z);
  text.Group(9, "$LIMMIN");
  text.Place(10, box.low.x, box.low.y);
  text.Group(9, "$LIMMAX");
  text.Place(10, box.high.x, box.high.y);
  text.Records("0 ENDSEC");
}

void WriteActiveViewport(DxfText& text, const DxfBox& box)
{
  text.Records(
      "0 VPORT|5 23|330 8|100 AcDbSymbolTableRecord|100 AcDbViewportTableRecord|2 *Active|70 0"
      "|10 0.0|20 0.0|11 1.0|21 1.0");
  text.Place(12, Mean(box.low.x, box.high.x), Mean(box.low.y, box.high.y));
  text.Records(
      "13 0.0|23 0.0|14 0.5|24 0.5|15 0.5|25 0.5|16 0.0|26 0.0|36 1.0|17 0.0|27 0.0|37 0.0");
  text.Real(40, HeightOf(box));
  text.Records(
      "41 1.34|42 50.0|43 0.0|44 0.0|50 0.0|51 0.0|71 0|72 1000|73 1|74 3|75 0|76 0|77 0|78 0|281 0"
      "|65 0|146 0.0");
}

}  // namespace hullwright
