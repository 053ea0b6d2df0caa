#include <utility>
#include <vector>

#include "dxf/DxfCurves.h"
#include "dxf/DxfReaders.h"
#include "dxf/DxfShapes.h"

// Polylines, of one record or spread over several.
namespace hullwright {
namespace {

/// Gathers vertices whose coordinates come one by one. A vertex is complete when the next one
/// begins, so that a bulge may follow its coordinates.
class VertexGatherer {
public:
  /// Gathers into a list, which is emptied: at most one more than `most`, which shows that there
  /// are too many.
  VertexGatherer(std::vector<CFileDxfVertex>& list, std::size_t most) : vertices_(list), most_(most)
  {
    list.clear();
  }

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

  /// Takes the last vertex, and the first one once more if the polyline is closed.
  void Finish(bool closed)
  {
    PushComplete();
    if (closed && !vertices_.empty()) vertices_.emplace_back(vertices_.front());
  }

private:
  bool PushComplete()
  {
    if (!seenX_ || !seenY_) return false;
    if (vertices_.size() <= most_) vertices_.push_back(next_);
    next_.bulge = 0.0;
    return true;
  }

  std::vector<CFileDxfVertex>& vertices_;
  const std::size_t most_;
  CFileDxfVertex next_;
  bool seenX_ = false;
  bool seenY_ = false;
};

/// The stroke, in pixels, of a width of the drawing.
float LineWidth(double width) { return static_cast<float>(width * 2.0); }

}  // namespace

void ReadPolyline(DxfLines& lines, DxfContext& context, CShapes&)
{
  OpenPolyline& polyline = context.polyline;
  polyline.Begin();
  auto shape = std::make_unique<CShapePolyline>();
  DxfEntity entity;
  float width = 1.0F;
  ReadGroups(lines, entity, [&](DxfCode code, std::string_view value) {
    if (code == DxfCode::Width) width = LineWidth(entity.Number(code));
    if (code == DxfCode::Flags) polyline.SetFlags(entity.Flags());
    if (code == DxfCode::CurveType) polyline.SetCurveType(ParseInt32(value, 10));
  });
  polyline.SetExtrusion(ExtrusionAlong(entity.Normal(), context));
  if (CountIfHidden(entity, context)) return;
  Mark(*shape, u"FEATURE", u"POLYLINE");
  Identify(*shape, entity);
  ApplyColour(*shape, entity, context);
  shape->style->lineWidth = width;
  polyline.Wait(std::move(shape));
}

void ReadVertex(DxfLines& lines, DxfContext& context, CShapes&)
{
  constexpr std::int32_t splineControlPoint = 16;
  DxfEntity entity;
  ReadPairs(lines, entity);
  if (entity.Flags() == splineControlPoint) return;
  // One more than there may be shows that there are too many.
  if (context.polyline.VertexCount() > context.limit.Left()) return;
  const DxfPoint p = entity.Point(DxfCode::X);
  context.polyline.AddVertex({p.x, p.y, p.z, entity.Number(DxfCode::Bulge), entity.Flags()});
}

void ReadSeqEnd(DxfLines& lines, DxfContext& context, CShapes& target)
{
  lines.SkipEntity();
  bool leftOut = false;
  if (auto shape = context.polyline.End(context.limit.Left(), leftOut)) {
    AppendShape(std::move(shape), context, target);
  }
  if (leftOut) ++context.tally.beyondLimit;
}

void ReadLwPolyline(DxfLines& lines, DxfContext& context, CShapes& target)
{
  constexpr std::int32_t closed = 1;
  // Neither elevation nor normal nor paper space play a part here, but a polyline that is open
  // around this one loses its normal.
  context.polyline.SetExtrusion(Extrusion());
  DxfEntity entity;
  VertexGatherer vertices(context.vertices, context.limit.Left());
  const auto gather = [&](DxfCode code, std::string_view) {
    if (code == DxfCode::X) vertices.TakeX(entity.Number(code));
    if (code == DxfCode::Y) vertices.TakeY(entity.Number(code));
    if (code == DxfCode::Bulge) vertices.TakeBulge(entity.Number(code));
  };
  ReadGroups(lines, entity, gather, DxfLines::shortLine);
  if (CountIfHidden(entity, context)) return;
  auto shape = std::make_unique<CShapePolyline>();
  vertices.Finish(entity.HasFlag(closed));
  if (!FlattensWithin(context.limit.Left(), context.vertices)) {
    ++context.tally.beyondLimit;
    return;
  }
  AppendFlattened(*shape, context.vertices, Extrusion());
  const double width = entity.Number(DxfCode::ConstantWidth);
  if (width != 0.0) {
    shape->style = std::make_unique<ShapeStyle>();
    shape->style->lineWidth = LineWidth(width);
  }
  AddShape(std::move(shape), entity, context, target);
}

}  // namespace hullwright
