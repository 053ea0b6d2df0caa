#include "compare/DesignRecords.h"

#include <cmath>
#include <limits>
#include <map>
#include <utility>

#include "model/ShapeColours.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

namespace hullwright {
namespace {

double Comparable(double value, UnitCode from, UnitCode to)
{
  if (std::isnan(value)) return std::numeric_limits<double>::quiet_NaN();
  const double converted = from == to ? value : FromMetres(to, ToMetres(from, value));
  return converted + 0.0;  // makes the negative zero a zero
}

/// Takes form and vertices of a shape.
class RecordFiller : public IShapeVisitor {
public:
  RecordFiller(ShapeRecord& record, std::vector<Place>& places, UnitCode from, UnitCode to)
      : record_(record), places_(places), from_(from), to_(to)
  {
  }

  void Visit(const CShapePoint& point) override { Add(point.position); }
  void Visit(const COutlineShape& outline) override { AddAll(outline.vertices); }

  void Visit(const CShapePolygon& polygon) override
  {
    std::size_t count = 0;
    ForEachEntry(polygon.rings, [&](const CShapePolygonRing& ring) {
      count += AddAll(ring.vertices);
      record_.form.ringEnds.push_back(count);
    });
  }

  void Visit(const CShapeText& label) override
  {
    AddAll(label.vertices);
    record_.form.text = label.text;
    record_.form.angle = Comparable(label.angle, to_, to_);
    record_.form.height = Comparable(label.height, from_, to_);
  }

private:
  void Add(const CShapeVertex& vertex) { places_.push_back(PlaceOf(vertex, from_, to_)); }

  std::size_t AddAll(const OwnedArray<CShapeVertex>& vertices)
  {
    const std::size_t before = places_.size();
    ForEachEntry(vertices, [this](const CShapeVertex& vertex) { Add(vertex); });
    return places_.size() - before;
  }

  ShapeRecord& record_;
  std::vector<Place>& places_;
  UnitCode from_;
  UnitCode to_;
};

LineStyle LineStyleOf(const CShape& shape)
{
  const ShapeStyle& style = StyleOf(shape);
  return {style.lineColour, style.lineWidth};
}

/// Whether a design file and a drawing can both hold a shape.
bool IsLine(const CShape& shape)
{
  constexpr std::size_t fewest = 2;  // vertices
  return shape.type == ShapeType::Polyline && shape.vertices.size() >= fewest;
}

}  // namespace

Place PlaceOf(const CShapeVertex& vertex, UnitCode from, UnitCode to)
{
  return {Comparable(vertex.x, from, to), Comparable(vertex.y, from, to),
          Comparable(vertex.z, from, to)};
}

DesignRecords::DesignRecords(const DesignState& design, UnitCode from, UnitCode to,
                             const ShapeChoice& choice)
{
  std::map<std::pair<ViewSide, ShapeType>, std::size_t> counts;
  std::vector<std::size_t> ends;
  ForEachEntry(design.shapeGroups, [&](const CShapes& group) {
    if (choice.side && !group.AnswersFor(*choice.side)) return;
    const ViewSide side = choice.side.value_or(group.viewCode);
    ForEachEntry(group.shapes, [&](const CShape& shape) {
      const std::size_t number = ++counts[{side, shape.type}];
      if (choice.onlyLines && !IsLine(shape)) return;
      ShapeRecord& record = shapes_.emplace_back();
      record.side = side;
      record.type = shape.type;
      record.number = number;
      if (!choice.onlyLines) record.style = LineStyleOf(shape);
      RecordFiller filler(record, places_, from, to);
      shape.Accept(filler);
      ends.push_back(places_.size());
    });
  });
  // Only now that the list of places no longer grows.
  std::size_t begin = 0;
  for (std::size_t i = 0; i < shapes_.size(); ++i) {
    shapes_[i].vertices = std::span(places_).subspan(begin, ends[i] - begin);
    begin = ends[i];
  }
}

}  // namespace hullwright
