#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "compare/CompareDesigns.h"
#include "compare/DifferenceText.h"
#include "model/ShapePolyline.h"

// Any bytes are two designs: a design must be equal to itself, and exchanged designs must have the
// same differences the other way round.
using namespace hullwright;

namespace {

/// A coordinate near others, far away, or none.
double TakeCoordinate(FuzzInput& input)
{
  static constexpr std::array<double, 8> steps = {0.0005, 0.001, 0.002, 0.25,
                                                  1.0,    7.0,   1e12,  1e300};
  const unsigned byte = input.Byte();
  if (byte == 0xFF) return std::nan("");
  if (byte == 0xFE) return HUGE_VAL;
  return (static_cast<double>(byte >> 3U) - 8.0) * steps.at(byte & 7U);
}

void Fill(DesignState& design, FuzzInput& input)
{
  static constexpr std::array<ViewSide, 4> sides = {ViewSide::Top, ViewSide::Left, ViewSide::All,
                                                    ViewSide{3}};  // the last is no side
  const unsigned shapes = input.Below(40);
  for (unsigned i = 0; i < shapes && !input.AtEnd(); ++i) {
    const unsigned kind = input.Byte();
    auto line = std::make_unique<CShapePolyline>();
    for (unsigned k = 0; k < kind >> 3U; ++k) {
      line->AddVertex(TakeCoordinate(input), TakeCoordinate(input), (kind & 4U) != 0 ? 1.0 : 0.0);
    }
    GetShapes(design.shapeGroups, sides.at(kind & 3U))->shapes.push_back(std::move(line));
  }
  const unsigned anchors = input.Below(8);
  for (unsigned i = 0; i < anchors; ++i) {
    auto anchor = std::make_unique<CAnchor>();
    anchor->id = input.Below(4);
    anchor->name.assign(input.Below(3), u'a');
    anchor->attachmentX = TakeCoordinate(input);
    design.anchors->items.push_back(std::move(anchor));
  }
  design.offsetGps->x = TakeCoordinate(input);
}

/// Numbers of which what is no number is equal to its like.
using Numbers = std::vector<double>;

void Add(Numbers& numbers, std::initializer_list<double> more)
{
  constexpr double noNumber = 1e307;
  for (const double value : more) {
    numbers.push_back(std::isnan(value) ? noNumber : value);
  }
}

template <class T>
FormerAndCurrent<T> Turned(const FormerAndCurrent<T>& pair, bool turn)
{
  return turn ? FormerAndCurrent<T>{pair.current, pair.former} : pair;
}

/// All that a shape's difference says, or would say with the designs exchanged.
Numbers NumbersOf(const ShapeDifference& shape, bool turn)
{
  ShapeChange change = shape.change;
  if (turn && change == ShapeChange::Added) {
    change = ShapeChange::Removed;
  } else if (turn && change == ShapeChange::Removed) {
    change = ShapeChange::Added;
  }
  const double sign = turn ? -1.0 : 1.0;
  const auto number = Turned(shape.number, turn);
  const auto count = Turned(shape.vertexCount, turn);
  Numbers numbers;
  Add(numbers, {static_cast<double>(shape.side), static_cast<double>(change),
                static_cast<double>(number.former), static_cast<double>(number.current),
                static_cast<double>(count.former), static_cast<double>(count.current),
                shape.reversed ? 1.0 : 0.0, sign * shape.by.x, sign * shape.by.y});
  // Vertices that were removed and added between the same two have no order among them.
  std::vector<Numbers> vertices;
  for (const VertexDifference& vertex : shape.vertices) {
    const auto at = Turned(vertex.number, turn);
    const auto place = Turned(vertex.place, turn);
    Add(vertices.emplace_back(),
        {static_cast<double>(at.former), static_cast<double>(at.current), place.former.x,
         place.former.y, place.current.x, place.current.y});
  }
  std::ranges::sort(vertices);
  for (const Numbers& vertex : vertices)
    numbers.insert(numbers.end(), vertex.begin(), vertex.end());
  return numbers;
}

std::vector<Numbers> NumbersOf(const Differences& differences, bool turn)
{
  std::vector<Numbers> all;
  for (const ShapeDifference& shape : differences.shapes) all.push_back(NumbersOf(shape, turn));
  std::ranges::sort(all);
  return all;
}

std::string SideName(ViewSide) { return "side"; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static constexpr std::array<double, 4> tolerances = {0.0, 0.001, 0.6, 1e9};
  FuzzInput input(data, size);
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
  Require(NumbersOf(there, false) == NumbersOf(back, true));

  current.unitCode = UnitCode{9002};
  Require(CompareDesigns(former, current, options).unit.has_value());
  return 0;
}
