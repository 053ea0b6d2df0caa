#pragma once

#include <optional>

#include "platform/Drawing.h"
#include "render/SeenStretch.h"

namespace hullwright {

class CShape;

/// Tells which polylines a frame may leave out, before they are mapped. Holds for one frame.
class OutOfView {
public:
  /// Nothing is out of view on a target to which every line counts, or in a view that is turned.
  OutOfView(const CViewPort& view, const IDrawingTarget* target);

  /// Whether the shape is a polyline of which nothing can be seen. A frame of a large drawing asks
  /// this more than anything else: one out of view costs about a comparison a vertex, one in view
  /// about four in all.
  bool Holds(const CShape& shape) const;

private:
  std::optional<SeenStretch> seen_;  ///< nothing where every line counts
};

}  // namespace hullwright
