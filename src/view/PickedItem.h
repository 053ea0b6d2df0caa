#pragma once

#include <cstdint>
#include <variant>

#include "model/DesignState.h"

namespace hullwright {

/// What a pick points at.
enum class HitKind : std::int32_t {
  None = 0,
  Anchor = 6,
  Vertex = 7,
  Gps = 12,
  Transducer = 13,
  Pivot = 14,
};

/// Stands for an item that was picked and has been released since.
struct ReleasedItem {
  friend bool operator==(const ReleasedItem&, const ReleasedItem&) = default;
};

/// A borrowed item of the design: nothing, a vertex (of a polyline or an offset) or an anchor.
using PickedItem = std::variant<std::monostate, CShapeVertex*, CAnchor*, ReleasedItem>;

/// Whether the item is still part of the design. Nothing and released items are not.
bool IsInDesign(const DesignState& design, const PickedItem& item);

/// Writes x and y of a vertex, or the attachment point of an anchor; z stays. Other items take
/// nothing.
void MoveItem(const PickedItem& item, double x, double y);

/// An item and its kind; nothing of the kind None.
struct Pick {
  HitKind kind = HitKind::None;
  PickedItem item;
};

/// First item of the side in view whose pixel lies in the box of 10 by 10 pixels around the point,
/// right and bottom edges excluded. Offsets go before anchors, both on the top side and with all
/// sides in view only, and those before the vertices of the group's polylines.
Pick FindItemAt(const DesignState& design, std::int32_t x, std::int32_t y);

}  // namespace hullwright
