#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/ShapeAttributes.h"
#include "model/Shapes.h"

namespace hullwright {

/// Holder that an import fills before its shapes move into the design; never saved.
class CLayer {
public:
  /// Brings `extents` up to date. A box whose four bounds are all non-zero counts as computed; one
  /// with a bound of exactly 0.0 is computed again, even where that is right.
  void UpdateExtents();

  /// The same with the box of the shapes, where it is known.
  void UpdateExtents(const Extents& ofShapes);

  std::unique_ptr<CShapes> shapes = std::make_unique<CShapes>();
  std::unique_ptr<CShapeAttributes> attributes = std::make_unique<CShapeAttributes>();
  std::u16string name;
  std::u16string description;
  std::int32_t flagA = 0;  ///< carried
  std::int32_t flagB = 1;  ///< carried
  std::int64_t enabled = 1;
  Extents extents{0.0, 0.0, 0.0, 0.0};
  double spareA = 0.0;  ///< carried
  double spareB = 0.0;  ///< carried
};

}  // namespace hullwright
