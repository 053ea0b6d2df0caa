#include "view/PickedItem.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

#include "base/Numbers.h"
#include "model/OffsetPoints.h"
#include "render/ScreenMapping.h"
#include "render/SeenStretch.h"

namespace hullwright {
namespace {

/// The box around the mouse. 64-bit, so that it can't wrap at the ends of the pixel range.
class PickBox {
public:
  PickBox(const CViewPort& viewPort, std::int32_t x, std::int32_t y)
      : mapping_(viewPort),
        left_(std::int64_t{x} - reach),
        top_(std::int64_t{y} - reach),
        stretch_(StretchIn(viewPort))
  {
  }

  bool Holds(double wx, double wy) const
  {
    if (stretch_ && stretch_->Misses(wx, wy)) return false;  // as do most, without a division
    const ScreenPoint p = mapping_.Flat(wx, wy);
    const std::int64_t px = TruncateToInt32(p.x);
    const std::int64_t py = TruncateToInt32(p.y);
    return px >= left_ && px < left_ + 2 * reach && py >= top_ && py < top_ + 2 * reach;
  }

private:
  static constexpr std::int64_t reach = 5;

  /// The world around the box. Of one at the lowest pixel none: what is too large for a pixel
  /// counts as that one.
  std::optional<SeenStretch> StretchIn(const CViewPort& viewPort) const
  {
    constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
    if (left_ <= lowest || top_ <= lowest) return std::nullopt;
    const auto left = static_cast<double>(left_);
    const auto top = static_cast<double>(top_);
    constexpr auto extent = static_cast<double>(2 * reach);
    // Truncation towards zero takes up to a pixel on the left for the next one.
    return SeenStretch({left - 1.0, top - 1.0, left + extent, top + extent}, viewPort);
  }

  ScreenMapping mapping_;
  std::int64_t left_;
  std::int64_t top_;
  std::optional<SeenStretch> stretch_;
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
  const auto isIt = [&](const OffsetPoint& point) { return (design.*point.place).get() == vertex; };
  if (std::ranges::any_of(offsetPoints, isIt)) return true;
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
