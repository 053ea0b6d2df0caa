#include "DesignHash.h"

#include "Checks.h"
#include "base/Code.h"
#include "model/ShapePoint.h"
#include "model/ShapePolygon.h"
#include "model/ShapeText.h"

namespace hullwright::bench {
namespace {

/// Walks a design and adds all of it up.
class Summing {
public:
  void Add(const DesignState& design)
  {
    ForEachEntry(design.shapeGroups, [this](const CShapes& group) {
      hash_.Add(static_cast<std::uint64_t>(NumberOf(group.viewCode)));
      ForEachEntry(group.shapes, [this](const CShape& shape) { AddShape(shape); });
    });
    for (const CShapeVertex* offset :
         {design.offsetGps.get(), design.offsetTransducer.get(), design.offsetPivot.get()}) {
      if (offset != nullptr) AddPoint(*offset);
    }
    ForEachEntry(design.anchors->items, [this](const CAnchor& anchor) {
      hash_.Add(static_cast<std::uint64_t>(anchor.id));
      hash_.Add(anchor.name);
      hash_.Add(anchor.attachmentX);
      hash_.Add(anchor.attachmentY);
    });
  }

  DesignSum Sum() const { return {shapes_, vertices_, hash_.Sum()}; }

private:
  void AddPoint(const CShapeVertex& vertex)
  {
    hash_.Add(vertex.x);
    hash_.Add(vertex.y);
    hash_.Add(vertex.z);
  }

  void AddVertices(const OwnedArray<CShapeVertex>& vertices)
  {
    vertices_ += vertices.size();
    ForEachEntry(vertices, [this](const CShapeVertex& vertex) { AddPoint(vertex); });
  }

  void AddStyle(const ShapeStyle& style)
  {
    hash_.Add(static_cast<std::uint64_t>(style.lineColour));
    hash_.Add(static_cast<std::uint64_t>(style.fillColour));
    hash_.Add(static_cast<double>(style.lineWidth));
    hash_.Add(static_cast<std::uint64_t>(style.styleCode));
  }

  void AddShape(const CShape& shape)
  {
    ++shapes_;
    hash_.Add(static_cast<std::uint64_t>(NumberOf(shape.type)));
    hash_.Add(static_cast<std::uint64_t>(shape.tag));
    if (shape.style) AddStyle(*shape.style);
    if (shape.attributes) {
      ForEachEntry(shape.attributes->items, [this](const ShapeAttribute& pair) {
        hash_.Add(pair.name);
        hash_.Add(pair.value);
      });
    }
    AddVertices(shape.vertices);
    if (const auto* const point = dynamic_cast<const CShapePoint*>(&shape)) {
      AddPoint(point->position);
    } else if (const auto* const label = dynamic_cast<const CShapeText*>(&shape)) {
      hash_.Add(label->text);
      hash_.Add(label->angle);
      hash_.Add(label->height);
    } else if (const auto* const polygon = dynamic_cast<const CShapePolygon*>(&shape)) {
      ForEachEntry(polygon->rings,
                   [this](const CShapePolygonRing& ring) { AddVertices(ring.vertices); });
    }
  }

  Hash hash_;
  std::size_t shapes_ = 0;
  std::size_t vertices_ = 0;
};

}  // namespace

DesignSum SumUp(const DesignState& design)
{
  Summing summing;
  summing.Add(design);
  return summing.Sum();
}

}  // namespace hullwright::bench
