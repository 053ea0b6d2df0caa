#include "view/PickedItem.h"

#include <array>

#include "base/Numbers.h"
#include "model/OffsetPoints.h"
#include "render/ViewPort.h"

namespace hullwright {
namespace {

/// The box around the mouse. 64-bit, so that it can't wrap at the ends of the pixel range.
class PickBox {
public:
  PickBox(const CViewPort& viewPort, std::int32_t x, std::int32_t y)
      : viewPort_(viewPort), left_(std::int64_t{x} - reach), top_(std::int64_t{y} - reach)
  {
  }

  bool Holds(double wx, double wy) const
  {
    const ScreenPoint p = viewPort_.WorldToScreenFlat(wx, wy);
    const std::int64_t px = TruncateToInt32(p.x);
    const std::int64_t py = TruncateToInt32(p.y);
    return px >= left_ && px < left_ + 2 * reach && py >= top_ && py < top_ + 2 * reach;
  }

private:
  static constexpr std::int64_t reach = 5;

  const CViewPort& viewPort_;
  std::int64_t left_;
  std::int64_t top_;
};

Pick FindOffsetOrAnchor(const DesignState& design, const PickBox& box)
{
  const std::array<Pick, 3> offsets = {{{HitKind::Gps, design.offsetGps.get()},
                                        {HitKind::Transducer, design.offsetTransducer.get()},
                                        {HitKind::Pivot, design.offsetPivot.get()}}};
  for (const Pick& offset : offsets) {
    const CShapeVertex* const vertex = std::get<CShapeVertex*>(offset.item);
    if (vertex != nullptr && box.Holds(vertex->x, vertex->y)) return offset;
  }
  if (!design.anchors) return {};
  CAnchor* const anchor =
      WalkTo(design.anchors->cursor, design.anchors->items, [&](const CAnchor& candidate) {
        return box.Holds(candidate.attachmentX, candidate.attachmentY);
      });
  return anchor == nullptr ? Pick{} : Pick{HitKind::Anchor, anchor};
}

Pick FindVertex(const CShapes& group, const PickBox& box)
{
  CShapeVertex* hit = nullptr;
  WalkTo(group.cursor, group.shapes, [&](const CShape& shape) {
    if (shape.type != ShapeType::Polyline) return false;
    hit = WalkTo(shape.cursor, shape.vertices,
                 [&](const CShapeVertex& vertex) { return box.Holds(vertex.x, vertex.y); });
    return hit != nullptr;
  });
  return hit == nullptr ? Pick{} : Pick{HitKind::Vertex, hit};
}

bool HoldsVertex(const DesignState& design, const CShapeVertex* vertex)
{
  if (vertex == design.offsetGps.get() || vertex == design.offsetTransducer.get() ||
      vertex == design.offsetPivot.get()) {
    return true;
  }
  return AnyEntry(design.shapeGroups, [vertex](const CShapes& group) {
    return AnyEntry(group.shapes,
                    [vertex](const CShape& shape) { return HoldsEntry(shape.vertices, vertex); });
  });
}

}  // namespace

bool IsInDesign(const DesignState& design, const PickedItem& item)
{
  if (const auto* const vertex = std::get_if<CShapeVertex*>(&item)) {
    return HoldsVertex(design, *vertex);
  }
  const auto* const anchor = std::get_if<CAnchor*>(&item);
  return anchor != nullptr && design.anchors && HoldsEntry(design.anchors->items, *anchor);
}

void MoveItem(const PickedItem& item, double x, double y)
{
  if (const auto* const vertex = std::get_if<CShapeVertex*>(&item)) {
    (*vertex)->x = x;
    (*vertex)->y = y;
  } else if (const auto* const anchor = std::get_if<CAnchor*>(&item)) {
    (*anchor)->attachmentX = x;
    (*anchor)->attachmentY = y;
  }
}

Pick FindItemAt(const DesignState& design, std::int32_t x, std::int32_t y)
{
  if (design.viewPort == nullptr) return {};
  const PickBox box(*design.viewPort, x, y);
  if (ShowsOffsetsAndAnchors(design.activeView)) {
    const Pick pick = FindOffsetOrAnchor(design, box);
    if (pick.kind != HitKind::None) return pick;
  }
  const CShapes* const group = FindViewGroup(design.shapeGroups, design.activeView);
  return group == nullptr ? Pick{} : FindVertex(*group, box);
}

}  // namespace hullwright
