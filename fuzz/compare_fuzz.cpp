#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

#include "compare/CompareDesigns.h"
#include "compare/DifferenceText.h"
#include "model/ShapePolyline.h"

// Any bytes are two designs: a design must be equal to itself, and exchanged designs must have the
// same differences the other way round.
using namespace hullwright;

namespace {

/// Takes small numbers from the input, zeros behind its end.
class Input {
public:
  explicit Input(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  unsigned Byte()
  {
    if (bytes_.empty()) return 0;
    const unsigned byte = bytes_[0];
    bytes_ = bytes_.subspan(1);
    return byte;
  }

  bool AtEnd() const { return bytes_.empty(); }

  /// A coordinate near others, far away, or none.
  double Coordinate()
  {
    static constexpr std::array<double, 8> steps = {0.0005, 0.001, 0.002, 0.25,
                                                    1.0,    7.0,   1e12,  1e300};
    const unsigned byte = Byte();
    if (byte == 0xFF) return std::nan("");
    if (byte == 0xFE) return HUGE_VAL;
    return (static_cast<double>(byte >> 3U) - 8.0) * steps.at(byte & 7U);
  }

private:
  std::span<const std::uint8_t> bytes_;
};

void Fill(DesignState& design, Input& input)
{
  static constexpr std::array<ViewSide, 3> sides = {ViewSide::Top, ViewSide::Left, ViewSide::All};
  const unsigned shapes = input.Byte() % 40;
  for (unsigned i = 0; i < shapes && !input.AtEnd(); ++i) {
    const unsigned kind = input.Byte();
    auto line = std::make_unique<CShapePolyline>();
    for (unsigned k = 0; k < kind >> 3U; ++k) {
      line->AddVertex(input.Coordinate(), input.Coordinate(), (kind & 4U) != 0 ? 1.0 : 0.0);
    }
    GetShapes(design.shapeGroups, sides.at(kind & 1U))->shapes.push_back(std::move(line));
  }
  const unsigned anchors = input.Byte() % 8;
  for (unsigned i = 0; i < anchors; ++i) {
    auto anchor = std::make_unique<CAnchor>();
    anchor->id = input.Byte() % 4;
    anchor->name.assign(input.Byte() % 3, u'a');
    anchor->attachmentX = input.Coordinate();
    design.anchors->items.push_back(std::move(anchor));
  }
  design.offsetGps->x = input.Coordinate();
}

bool IsSame(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

bool IsSame(const Place& a, const Place& b)
{
  return IsSame(a.x, b.x) && IsSame(a.y, b.y) && IsSame(a.z, b.z);
}

template <class T>
bool IsMirrored(const BeforeAndAfter<T>& a, const BeforeAndAfter<T>& b)
{
  return a.former == b.current && a.current == b.former;
}

bool IsMirrored(const ShapeDifference& a, const ShapeDifference& b)
{
  if (!IsMirrored(a.number, b.number) || !IsMirrored(a.vertexCount, b.vertexCount)) return false;
  if (a.change == ShapeChange::Added || a.change == ShapeChange::Removed)
    return a.change != b.change;
  const auto vertexMirrored = [](const VertexDifference& v, const VertexDifference& w) {
    return IsMirrored(v.number, w.number) && IsSame(v.place.former, w.place.current) &&
           IsSame(v.place.current, w.place.former);
  };
  // Vertices that were removed and added between the same two have no order among them.
  return a.side == b.side && a.change == b.change && a.reversed == b.reversed &&
         IsSame(a.by.x, -b.by.x) && IsSame(a.by.y, -b.by.y) &&
         std::ranges::is_permutation(a.vertices, b.vertices, vertexMirrored);
}

void Require(bool condition)
{
  if (!condition) __builtin_trap();
}

std::string SideName(ViewSide) { return "side"; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static constexpr std::array<double, 4> tolerances = {0.0, 0.001, 0.6, 1e9};
  Input input({data, size});
  CompareOptions options;
  options.tolerance = tolerances.at(input.Byte() & 3U);
  DesignState former;
  DesignState current;
  Fill(former, input);
  Fill(current, input);
  Require(CompareDesigns(former, former, options).None());
  Require(CompareDesigns(current, current, options).None());

  const Differences there = CompareDesigns(former, current, options);
  const Differences back = CompareDesigns(current, former, options);
  Require(there.None() == DescribeDifferences(there, {{"a", "b"}, SideName}, 0.001).empty());
  Require(there.offsets.size() == back.offsets.size());
  Require(there.anchors.size() == back.anchors.size());
  Require(there.shapes.size() == back.shapes.size());
  Require(std::ranges::is_permutation(
      there.shapes, back.shapes,
      [](const ShapeDifference& a, const ShapeDifference& b) { return IsMirrored(a, b); }));

  current.unitCode = UnitCode{9002};
  Require(CompareDesigns(former, current, options).unit.has_value());
  return 0;
}
