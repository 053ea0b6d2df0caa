#include "compare/DifferenceText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "base/Code.h"
#include "base/Numbers.h"
#include "base/VisibleText.h"
#include "model/OffsetPoints.h"
#include "model/ShapeColours.h"

namespace hullwright {
namespace {

constexpr std::size_t titleWidth = 12;
constexpr std::size_t mostVertices = 12;  // of one shape, a line each

std::string Padded(std::string text, std::size_t width)
{
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

/// "3 polylines", "1 vertex".
std::string Counted(std::size_t count, std::string_view one, std::string_view many)
{
  return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

/// Numbers in ascending order as "1, 3-7, 9".
std::string Ranges(const std::vector<std::size_t>& numbers)
{
  std::string text;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t last = i;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (!text.empty()) text += ", ";
    text += std::to_string(numbers[i]);
    if (last != i) text += (last == i + 1 ? ", " : "-") + std::to_string(numbers[last]);
    i = last + 1;
  }
  return text;
}

/// Puts the lines together.
class DifferenceWriter {
public:
  DifferenceWriter(const DifferenceNames& names, double tolerance)
      : names_(names), tolerance_(tolerance)
  {
  }

  std::string Write(const Differences& differences)
  {
    if (differences.unit) WriteUnit(*differences.unit);
    // Every length is another one then, which the unit says shorter.
    if (differences.unit && differences.unit->sameNumbers) return std::move(text_);
    for (const OffsetDifference& offset : differences.offsets) WriteOffset(offset);
    for (const AnchorDifference& anchor : differences.anchors) WriteAnchor(anchor);
    WriteShapes(differences.shapes);
    return std::move(text_);
  }

private:
  void AddLine(const std::string& title, const std::string& rest)
  {
    text_ += "  " + Padded(title, titleWidth) + "  " + rest + "\n";
  }

  std::string Number(double value) const { return FormatWithin(value, tolerance_); }
  std::string PlaceText(const Place& p) const { return FlatPlace(p) + ", " + Number(p.z); }
  std::string FlatPlace(const Place& p) const { return Number(p.x) + ", " + Number(p.y); }

  std::string Moved(const FormerAndCurrent<Place>& place, bool flat) const
  {
    const auto text = [&](const Place& p) { return flat ? FlatPlace(p) : PlaceText(p); };
    return text(place.former) + " -> " + text(place.current) + ", moved by " +
           Number(LengthOf(Way(place.former, place.current)));
  }

  void WriteUnit(const UnitDifference& unit)
  {
    const char* const note = unit.sameNumbers
                                 ? "; all numbers are the same, so that every length changed"
                             : unit.converted ? "; the former numbers are shown converted"
                                              : "; the numbers are compared as they stand";
    AddLine("unit", names_.unit.former + " -> " + names_.unit.current + note);
  }

  void WriteOffset(const OffsetDifference& offset)
  {
    AddLine(std::string(NameOf(offset.kind)), Moved(offset.place, false));
  }

  static std::string AnchorTitle(const AnchorRecord& anchor)
  {
    return "anchor " + std::to_string(anchor.id) + " " + QuotedText(anchor.name);
  }

  void WriteAnchor(const AnchorDifference& difference)
  {
    const auto& [former, current] = difference.anchor;
    if (!former) return AddLine(AnchorTitle(*current), "added at " + FlatPlace(current->place));
    if (!current) return AddLine(AnchorTitle(*former), "removed from " + FlatPlace(former->place));
    std::string rest;
    if (former->id != current->id || former->name != current->name) {
      rest = "was " + AnchorTitle(*former);
    }
    if (difference.moved) {
      if (!rest.empty()) rest += "; ";
      rest += Moved({former->place, current->place}, true);
    }
    AddLine(AnchorTitle(*current), rest);
  }

  /// What shapes that share a line have in common; empty for one that has a line of its own.
  std::string LineKey(const ShapeDifference& d) const
  {
    const bool isPlain =
        d.change == ShapeChange::Moved && !d.style && d.number.former == d.number.current;
    if (!isPlain) return {};
    return names_.ofSide(d.side) + "/" + std::string(NameOf(d.type)) + "/" + PlaceText(d.by);
  }

  void WriteShapes(const std::vector<ShapeDifference>& shapes)
  {
    std::map<std::string, std::vector<std::size_t>> together;
    for (const ShapeDifference& shape : shapes) {
      if (const std::string key = LineKey(shape); !key.empty()) {
        together[key].push_back(shape.number.current);
      }
    }
    for (const ShapeDifference& shape : shapes) {
      const auto found = together.find(LineKey(shape));
      if (found == together.end() || found->second.size() == 1) {
        WriteShape(shape);
      } else if (found->second.front() == shape.number.current) {
        WriteTogether(shape, found->second);
      }
    }
  }

  /// A number with its sign, but for one that is shown as zero.
  std::string Signed(double value) const
  {
    const std::string text = Number(value);
    if (text.find_first_of("123456789") == std::string::npos) return Number(0.0);
    return value > 0.0 ? "+" + text : text;
  }

  std::string MovedBy(const Place& way) const
  {
    return "moved by " + Number(LengthOf(way)) + " (dX " + Signed(way.x) + ", dY " + Signed(way.y) +
           ", dZ " + Signed(way.z) + ")";
  }

  void WriteTogether(const ShapeDifference& first, const std::vector<std::size_t>& numbers)
  {
    AddLine(names_.ofSide(first.side),
            std::string(NameOf(first.type)) + "s " + Ranges(numbers) + " " + MovedBy(first.by));
  }

  void WriteShape(const ShapeDifference& shape)
  {
    const bool removed = shape.change == ShapeChange::Removed;
    const std::size_t number = removed ? shape.number.former : shape.number.current;
    std::string line = std::string(NameOf(shape.type)) + " " + std::to_string(number);
    const std::u16string& words = removed ? shape.text.former : shape.text.current;
    if (shape.type == ShapeType::Text) line += " " + QuotedText(words);
    const bool renumbered = shape.number.former != 0 && shape.number.current != 0 &&
                            shape.number.former != shape.number.current;
    if (renumbered) line += " (was " + std::to_string(shape.number.former) + ")";
    AddLine(names_.ofSide(shape.side), line + " " + WhatHappened(shape));
    WriteVertices(shape);
  }

  std::string WhatHappened(const ShapeDifference& shape) const
  {
    switch (shape.change) {
      case ShapeChange::Added: return "added" + Extent(shape, shape.vertexCount.current);
      case ShapeChange::Removed: return "removed" + Extent(shape, shape.vertexCount.former);
      case ShapeChange::Moved: return MovedBy(shape.by) + OtherStyle(shape);
      case ShapeChange::Changed: break;
    }
    return "changed" + Vertices(shape) + Form(shape) + OtherStyle(shape);
  }

  std::string Extent(const ShapeDifference& shape, std::size_t count) const
  {
    if (count == 0) return ", without vertices";
    std::string text = ": " + Counted(count, "vertex", "vertices");
    if (!shape.box.IsEmpty()) {
      text += ", from " + FlatPlace({shape.box.minX, shape.box.minY, 0.0}) + " to " +
              FlatPlace({shape.box.maxX, shape.box.maxY, 0.0});
    }
    return text;
  }

  static std::string Vertices(const ShapeDifference& shape)
  {
    if (shape.reversed) return ", the same vertices from the last to the first";
    if (shape.vertices.empty()) return {};
    std::array<std::size_t, 3> counts{};  // moved, added, removed
    for (const VertexDifference& vertex : shape.vertices) {
      ++counts.at(vertex.number.former == 0 ? 1 : vertex.number.current == 0 ? 2 : 0);
    }
    static constexpr std::array<const char*, 3> words = {"moved", "added", "removed"};
    std::string text;
    for (std::size_t i = 0; i < counts.size(); ++i) {
      if (counts.at(i) == 0) continue;
      text += (text.empty() ? ": " : ", ") + Counted(counts.at(i), "vertex ", "vertices ") +
              words.at(i);
    }
    const auto& [former, current] = shape.vertexCount;
    text += former == current ? " of " + std::to_string(current)
                              : ", " + std::to_string(former) + " -> " + std::to_string(current);
    return text;
  }

  static std::string Form(const ShapeDifference& shape)
  {
    if (!shape.otherForm) return {};
    if (shape.type != ShapeType::Text) return ", parted in other rings";
    if (shape.text.former == shape.text.current) return ", another angle or height";
    return ", was " + QuotedText(shape.text.former);
  }

  static std::string OtherStyle(const ShapeDifference& shape)
  {
    if (!shape.style) return {};
    const auto& [former, current] = *shape.style;
    std::string text;
    if (former.colour != current.colour) {
      text = ", colour " + HexColour(former.colour) + " -> " + HexColour(current.colour);
    }
    if (former.width != current.width) {
      text +=
          ", line width " + FormatShortest(former.width) + " -> " + FormatShortest(current.width);
    }
    return text;
  }

  void WriteVertices(const ShapeDifference& shape)
  {
    const std::string indent(titleWidth + 6, ' ');
    const std::size_t shown = std::min(shape.vertices.size(), mostVertices);
    for (std::size_t i = 0; i < shown; ++i) text_ += indent + VertexText(shape.vertices[i]) + "\n";
    if (shown < shape.vertices.size()) {
      text_ += indent + "and " + std::to_string(shape.vertices.size() - shown) + " more\n";
    }
  }

  std::string VertexText(const VertexDifference& vertex) const
  {
    const auto& [former, current] = vertex.number;
    if (former == 0) {
      return "vertex " + std::to_string(current) + ": added at " + PlaceText(vertex.place.current);
    }
    if (current == 0) {
      return "vertex " + std::to_string(former) + " of before: removed from " +
             PlaceText(vertex.place.former);
    }
    std::string title = "vertex " + std::to_string(current);
    if (former != current) title += " (was " + std::to_string(former) + ")";
    return title + ": " + Moved(vertex.place, false);
  }

  const DifferenceNames& names_;
  double tolerance_;
  std::string text_;
};

}  // namespace

std::string DescribeDifferences(const Differences& differences, const DifferenceNames& names,
                                double tolerance)
{
  return DifferenceWriter(names, tolerance).Write(differences);
}

std::string FormatWithin(double value, double tolerance)
{
  constexpr int fewest = 3;
  constexpr int most = 15;
  if (tolerance <= 0.0 && std::isfinite(value)) return FormatShortest(value);
  const double needed = std::clamp(std::ceil(-std::log10(tolerance)), 1.0 * fewest, 1.0 * most);
  return FormatFixed(value, tolerance <= 0.0 ? fewest : static_cast<int>(needed));
}

std::string_view NameOf(OffsetKind kind)
{
  return offsetPoints.at(static_cast<std::size_t>(NumberOf(kind))).name;
}

std::string_view NameOf(ShapeType type)
{
  switch (type) {
    case ShapeType::Point: return "point";
    case ShapeType::Polyline: return "polyline";
    case ShapeType::Polygon: return "area";
    case ShapeType::Text: return "text";
    default: break;
  }
  return "shape";
}

}  // namespace hullwright
