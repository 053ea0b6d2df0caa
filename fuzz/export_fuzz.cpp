#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "FuzzInput.h"
#include "base/Bits.h"
#include "dxf/DxfSections.h"
#include "exchange/CsvExport.h"
#include "exchange/DxfExport.h"
#include "exchange/GeoJsonExport.h"
#include "headless/KeptTrace.h"
#include "headless/SilentWindow.h"
#include "model/ShapePolyline.h"

// Any bytes are a design: the reader of drawings must give the same polylines of its export, to the
// bit of each coordinate, and a point and a text for each offset and anchor.
using namespace hullwright;

namespace {

/// Few digits, or any bits that are a finite number.
double TakeNumber(FuzzInput& input)
{
  if (input.Below(2) == 0) return input.Take<std::int8_t>() / 8.0;
  const auto number = input.Take<double>();
  return std::isfinite(number) ? number : -0.0;
}

std::unique_ptr<CShapePolyline> TakePolyline(FuzzInput& input)
{
  auto line = std::make_unique<CShapePolyline>();
  const bool flat = input.Below(4) != 0;
  const bool closed = input.Below(2) != 0;
  for (unsigned count = input.Below(8); count != 0; --count) {
    const double x = TakeNumber(input);
    const double y = TakeNumber(input);
    line->AddVertex(x, y, flat ? 0.0 : TakeNumber(input));
  }
  if (closed && !line->vertices.empty()) {
    const CShapeVertex first = *line->vertices.front();
    line->AddVertex(first.x, first.y, first.z);
  }
  return line;
}

void TakeDesign(FuzzInput& input, DesignState& design)
{
  constexpr std::array codes = {ViewSide::Top, ViewSide::Rear, ViewSide::All, ViewSide{3}};
  design.unitCode = UnitCode{9000 + static_cast<std::int32_t>(input.Below(100))};
  for (unsigned groups = input.Below(4); groups != 0; --groups) {
    auto group = std::make_unique<CShapes>(codes.at(input.Below(codes.size())));
    for (unsigned lines = input.Below(6); lines != 0; --lines) {
      group->shapes.push_back(TakePolyline(input));
    }
    design.shapeGroups.push_back(std::move(group));
  }
  for (unsigned anchors = input.Below(4); anchors != 0; --anchors) {
    auto anchor = std::make_unique<CAnchor>();
    anchor->id = input.Take<std::uint32_t>();
    for (unsigned length = input.Below(64); length != 0; --length) {
      anchor->name.push_back(input.Take<char16_t>());
    }
    anchor->attachmentX = TakeNumber(input);
    anchor->attachmentY = TakeNumber(input);
    design.anchors->items.push_back(std::move(anchor));
  }
}

/// A flat polyline has no sign of its zero Z in a drawing.
void RequireSame(const CShape& exported, const CShape& imported)
{
  Require(exported.vertices.size() == imported.vertices.size());
  for (std::size_t i = 0; i < exported.vertices.size(); ++i) {
    const CShapeVertex& a = *exported.vertices[i];
    const CShapeVertex& b = *imported.vertices[i];
    Require(SameBits(a.x, b.x) && SameBits(a.y, b.y) && a.z == b.z);
  }
}

void RequireSameAgain(const ExportedDesign& design, const DxfForm& form)
{
  const DxfDrawing drawing = MakeDxf(design, form);
  SilentWindow window;
  const KeptTrace log;
  DxfLines lines(drawing.bytes);
  DxfContext context(log, {});
  CShapes shapes;
  ProcessSections(lines, context, shapes, window);
  context.tally.CountShapes(shapes);
  Require(context.tally.polylines == design.polylines.size());
  Require(context.tally.points == design.places.size());
  Require(context.tally.texts == design.places.size());
  for (std::size_t i = 0; i < design.polylines.size(); ++i) {
    RequireSame(*design.polylines[i].shape, *shapes.shapes[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  FuzzInput input(data, size);
  DesignState design;
  TakeDesign(input, design);
  const ExportedDesign exported = GatherExport(design, ViewSide::All, "metre");
  for (const DxfVersion version : {DxfVersion::R12, DxfVersion::R2000}) {
    RequireSameAgain(exported, {version, DxfLayering::Side});
  }
  Require(MakeCsv(exported).ends_with("\r\n"));
  Require(MakeGeoJson(exported).ends_with("}\n"));
  return 0;
}
