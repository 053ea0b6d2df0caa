#pragma once

#include "dxf/DxfEntity.h"

namespace hullwright {

/// The arbitrary axis algorithm of the DXF reference: takes a point from the coordinate system that
/// belongs to an extrusion direction into the world's. The direction is taken as it is given, not
/// normalised, and the matrix is rounded to single precision.
class Extrusion {
public:
  explicit Extrusion(const DxfPoint& normal);

  DxfPoint operator()(const DxfPoint& point) const;

private:
  bool identity_;  ///< straight up: nothing is to be done
  DxfPoint ax_;
  DxfPoint ay_;
  DxfPoint n_;
};

}  // namespace hullwright
