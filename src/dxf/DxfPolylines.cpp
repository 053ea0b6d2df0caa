#include <algorithm>
#include <iterator>
#include <utility>

#include "dxf/FileDxf.h"

// Polylines, the one kind of entity that is spread over several records.
namespace hullwright {

void CFileDxf::AppendFlattened(CShapePolyline& shape, std::vector<CFileDxfVertex>& list) const
{
  // The flattened polyline goes at once, so its vertices move over instead of being copied.
  if (const auto flat = FlattenVertices(list)) {
    std::ranges::move(flat->vertices, std::back_inserter(shape.vertices));
  }
}

void CFileDxf::ReadPolyline()
{
  // The vertices of one that never ended stay and pass into this one; so do its flags, if this one
  // has none.
  pendingPolyline.reset();
  auto shape = std::make_unique<CShapePolyline>();
  DxfEntity entity;
  float width = 1.0F;
  ReadGroups(entity, [&](std::int32_t code, std::string_view value) {
    if (code == 40) width = static_cast<float>(entity.Number(code) * 2.0);
    if (code == 70) polylineFlags = entity.flags;
    if (code == 75) polylineCurveType = ParseInt32(value, 10);
  });
  polylineExtrusion = entity.Normal();
  if (IsOnHiddenLayer(entity)) return;
  shape->attributes = std::make_unique<CShapeAttributes>();
  shape->attributes->Append(u"FEATURE", u"POLYLINE");
  Identify(*shape, entity);
  Colour(*shape, entity);
  shape->style->lineWidth = width;
  pendingPolyline = std::move(shape);
}

void CFileDxf::ReadVertex()
{
  constexpr std::int32_t splineControlPoint = 16;
  DxfEntity groups;
  ForEachPair([&](std::int32_t code, std::string_view value) { groups.Take(code, value); });
  if (groups.flags == splineControlPoint) return;
  const DxfPoint p = groups.Point(10);
  polylineVertices.push_back({p.x, p.y, p.z, groups.Number(42), groups.flags});
}

void CFileDxf::ReadSeqEnd(CShapes& target)
{
  constexpr std::int32_t closed = 1;  // the whole value: 9, a closed line in space, stays open
  SkipEntity();
  if (pendingPolyline) {
    if (polylineFlags == closed && !polylineVertices.empty()) {
      polylineVertices.emplace_back(polylineVertices.front());
    }
    AppendFlattened(*pendingPolyline, polylineVertices);
    target.shapes.push_back(std::move(pendingPolyline));
  }
  polylineVertices.clear();
}

namespace {

/// Gathers vertices whose coordinates come one by one. A vertex is complete when the next one
/// begins, so that a bulge may follow its coordinates.
class VertexGatherer {
public:
  void TakeX(double x)
  {
    if (PushComplete()) seenY_ = false;
    next_.x = x;
    seenX_ = true;
  }

  void TakeY(double y)
  {
    if (PushComplete()) seenX_ = false;
    next_.y = y;
    seenY_ = true;
  }

  void TakeBulge(double bulge) { next_.bulge = bulge; }

  std::vector<CFileDxfVertex> Finish(bool closed)
  {
    PushComplete();
    if (closed && !vertices_.empty()) vertices_.emplace_back(vertices_.front());
    return std::move(vertices_);
  }

private:
  bool PushComplete()
  {
    if (!seenX_ || !seenY_) return false;
    vertices_.push_back(next_);
    next_.bulge = 0.0;
    return true;
  }

  std::vector<CFileDxfVertex> vertices_;
  CFileDxfVertex next_;
  bool seenX_ = false;
  bool seenY_ = false;
};

}  // namespace

void CFileDxf::ReadLwPolyline(CShapes& target)
{
  DxfEntity entity;
  VertexGatherer vertices;
  const auto gather = [&](std::int32_t code, std::string_view) {
    if (code == 10) vertices.TakeX(entity.Number(code));
    if (code == 20) vertices.TakeY(entity.Number(code));
    if (code == 42) vertices.TakeBulge(entity.Number(code));
  };
  ReadGroups(entity, gather, shortLine);
  // Neither elevation nor normal nor paper space play a part.
  polylineExtrusion = {0.0, 0.0, 1.0};
  if (IsOnHiddenLayer(entity)) return;
  auto shape = std::make_unique<CShapePolyline>();
  std::vector<CFileDxfVertex> list = vertices.Finish((entity.flags & 1) != 0);
  AppendFlattened(*shape, list);
  AddShape(std::move(shape), entity, target);
  const double width = entity.Number(43);
  if (width != 0.0) target.shapes.back()->style->lineWidth = static_cast<float>(width * 2.0);
}

}  // namespace hullwright
