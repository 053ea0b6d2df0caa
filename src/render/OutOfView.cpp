#include "render/OutOfView.h"

#include <algorithm>

#include "model/Shape.h"

namespace hullwright {
namespace {

/// Wider lines, of which there are few, are always drawn. A highlight, of 4 pixels, is no wider.
constexpr float widest = 8.0F;

std::optional<SeenStretch> StretchOf(const CViewPort& view, const IDrawingTarget* target)
{
  if (target == nullptr || view.rotation != 0.0) return std::nullopt;
  const std::optional<PixelRect> area = target->SeenArea(widest);
  if (!area) return std::nullopt;
  return SeenStretch({area->left, area->top, area->right, area->bottom}, view);
}

/// Whether a line through vertices misses a stretch by one of its edges.
bool Misses(const OwnedArray<CShapeVertex>& vertices, const SeenStretch& seen)
{
  const auto all = [&](auto isBeyond) {
    return std::ranges::all_of(vertices,
                               [&](const auto& vertex) { return !vertex || isBeyond(*vertex); });
  };
  // One that is no number lies beyond no edge.
  return all([west = seen.west](const CShapeVertex& v) { return v.x < west; }) ||
         all([east = seen.east](const CShapeVertex& v) { return v.x > east; }) ||
         all([south = seen.south](const CShapeVertex& v) { return v.y < south; }) ||
         all([north = seen.north](const CShapeVertex& v) { return v.y > north; });
}

}  // namespace

OutOfView::OutOfView(const CViewPort& view, const IDrawingTarget* target)
    : seen_(StretchOf(view, target))
{
}

bool OutOfView::Holds(const CShape& shape) const
{
  if (!seen_ || shape.type != ShapeType::Polyline || shape.vertices.size() < 2) return false;
  // Written so that a width that is no number is not out of view.
  if (shape.style && !(shape.style->lineWidth <= widest)) return false;
  return Misses(shape.vertices, *seen_);
}

}  // namespace hullwright
