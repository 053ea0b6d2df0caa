#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

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

/// Takes a design from bytes; at their end all is zero.
class Bytes {
public:
  Bytes(const std::uint8_t* data, std::size_t size) : at_(data), left_(size) {}

  template <class Value>
  Value Take()
  {
    Value value{};
    const std::size_t taken = std::min(left_, sizeof value);
    if (taken != 0) std::memcpy(&value, at_, taken);
    at_ += taken;
    left_ -= taken;
    return value;
  }

  unsigned Below(unsigned limit) { return Take<std::uint8_t>() % limit; }

  /// Few digits, or any bits that are a finite number.
  double Number()
  {
    if (Below(2) == 0) return Take<std::int8_t>() / 8.0;
    const auto number = Take<double>();
    return std::isfinite(number) ? number : -0.0;
  }

private:
  const std::uint8_t* at_;
  std::size_t left_;
};

std::unique_ptr<CShapePolyline> TakePolyline(Bytes& bytes)
{
  auto line = std::make_unique<CShapePolyline>();
  const bool flat = bytes.Below(4) != 0;
  const bool closed = bytes.Below(2) != 0;
  for (unsigned count = bytes.Below(8); count != 0; --count) {
    const double x = bytes.Number();
    const double y = bytes.Number();
    line->AddVertex(x, y, flat ? 0.0 : bytes.Number());
  }
  if (closed && !line->vertices.empty()) {
    const CShapeVertex first = *line->vertices.front();
    line->AddVertex(first.x, first.y, first.z);
  }
  return line;
}

void TakeDesign(Bytes& bytes, DesignState& design)
{
  constexpr std::array codes = {ViewSide::Top, ViewSide::Rear, ViewSide::All, ViewSide{3}};
  design.unitCode = UnitCode{9000 + static_cast<std::int32_t>(bytes.Below(100))};
  for (unsigned groups = bytes.Below(4); groups != 0; --groups) {
    auto group = std::make_unique<CShapes>(codes.at(bytes.Below(codes.size())));
    for (unsigned lines = bytes.Below(6); lines != 0; --lines) {
      group->shapes.push_back(TakePolyline(bytes));
    }
    design.shapeGroups.push_back(std::move(group));
  }
  for (unsigned anchors = bytes.Below(4); anchors != 0; --anchors) {
    auto anchor = std::make_unique<CAnchor>();
    anchor->id = bytes.Take<std::uint32_t>();
    for (unsigned length = bytes.Below(64); length != 0; --length) {
      anchor->name.push_back(bytes.Take<char16_t>());
    }
    anchor->attachmentX = bytes.Number();
    anchor->attachmentY = bytes.Number();
    design.anchors->items.push_back(std::move(anchor));
  }
}

void Expect(bool sound)
{
  if (!sound) __builtin_trap();
}

bool SameBits(double a, double b)
{
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

/// A flat polyline has no sign of its zero Z in a drawing.
void ExpectSame(const CShape& exported, const CShape& imported)
{
  Expect(exported.vertices.size() == imported.vertices.size());
  for (std::size_t i = 0; i < exported.vertices.size(); ++i) {
    const CShapeVertex& a = *exported.vertices[i];
    const CShapeVertex& b = *imported.vertices[i];
    Expect(SameBits(a.x, b.x) && SameBits(a.y, b.y) && a.z == b.z);
  }
}

void ExpectSameAgain(const ExportedDesign& design, const DxfForm& form)
{
  const DxfDrawing drawing = MakeDxf(design, form);
  SilentWindow window;
  const KeptTrace log;
  DxfLines lines(drawing.bytes);
  DxfContext context(log, {});
  CShapes shapes;
  ProcessSections(lines, context, shapes, window);
  context.tally.CountShapes(shapes);
  Expect(context.tally.polylines == design.polylines.size());
  Expect(context.tally.points == design.places.size());
  Expect(context.tally.texts == design.places.size());
  for (std::size_t i = 0; i < design.polylines.size(); ++i) {
    ExpectSame(*design.polylines[i].shape, *shapes.shapes[i]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  Bytes bytes(data, size);
  DesignState design;
  TakeDesign(bytes, design);
  const ExportedDesign exported = GatherExport(design, ViewSide::All, "metre");
  for (const DxfVersion version : {DxfVersion::R12, DxfVersion::R2000}) {
    ExpectSameAgain(exported, {version, DxfLayering::Side});
  }
  Expect(MakeCsv(exported).ends_with("\r\n"));
  Expect(MakeGeoJson(exported).ends_with("}\n"));
  return 0;
}
