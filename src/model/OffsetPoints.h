#pragma once

#include <array>
#include <memory>
#include <string_view>

#include "model/DesignState.h"

namespace hullwright {

/// A place of equipment that a design has besides its anchors.
struct OffsetPoint {
  std::string_view element;  ///< in a design file
  std::string_view name;     ///< in reports, messages and exports
  std::unique_ptr<CShapeVertex> DesignState::*place;
};

/// The offset points of a design, in the order of its file.
inline constexpr auto offsetPoints = std::to_array<OffsetPoint>({
    {"gps", "GNSS antenna", &DesignState::offsetGps},
    {"txd", "echo sounder", &DesignState::offsetTransducer},
    {"piv", "pivot", &DesignState::offsetPivot},
});

/// Whether the offsets and the anchors are drawn, and can be picked, where a side is in view.
constexpr bool ShowsOffsetsAndAnchors(ViewSide inView)
{
  return inView == ViewSide::Top || inView == ViewSide::All;
}

}  // namespace hullwright
