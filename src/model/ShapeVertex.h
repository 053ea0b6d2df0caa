#pragma once

#include <cstddef>
#include <cstdint>

#include "base/ClassSlabs.h"
#include "model/Units.h"

namespace hullwright {

/// One 3-D world coordinate in the design's length unit. `z` is carried and saved; drawing and hit
/// testing ignore it.
class CShapeVertex final {
public:
  CShapeVertex() = default;
  CShapeVertex(double wx, double wy, double wz) : x(wx), y(wy), z(wz) {}
  CShapeVertex(const CShapeVertex& v) = default;

  static void* operator new(std::size_t) { return TakePlace<CShapeVertex>(); }
  static void operator delete(void* place) { GiveBackPlace<CShapeVertex>(place); }

  /// Copies all six fields.
  virtual CShapeVertex& operator=(const CShapeVertex& v);

  // Component-wise on x, y, z; the carried fields stay.
  virtual CShapeVertex& operator+=(const CShapeVertex& v);
  virtual CShapeVertex& operator-=(const CShapeVertex& v);

  // Results are new vertices whose carried fields are zero. Divisors are not guarded against zero.
  virtual CShapeVertex operator-(const CShapeVertex& v) const;
  virtual CShapeVertex operator+(const CShapeVertex& v) const;
  virtual CShapeVertex operator/(double d) const;
  virtual CShapeVertex operator/(const CShapeVertex& v) const;
  virtual CShapeVertex operator*(double d) const;

  /// Orders by x, then y; z plays no part.
  virtual bool operator<(const CShapeVertex& v) const;

  /// Exact equality of all three coordinates, without tolerance.
  virtual bool operator==(const CShapeVertex& v) const;

  /// Takes all three coordinates from one unit to another. False, with nothing changed, at the
  /// origin and when the units are the same.
  bool ConvertUnits(UnitCode from, UnitCode to);

  // Carried: kept with the vertex and used by nothing; copied where an operation says so, else 0.
  std::uint8_t flag = 0;
  std::int32_t tagA = 0;
  std::int32_t tagB = 0;

  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

/// Distance of `p` from the segment a-b in the x-y plane. False, with `distance` untouched, for a
/// segment without length and for a point behind `a`; a point beyond `b` gets the distance to the
/// nearer end.
bool DistanceToSegment(const CShapeVertex& a, const CShapeVertex& b, const CShapeVertex& p,
                       double& distance);

/// Multiplies each coordinate by its own factor.
void ScaleVertex(CShapeVertex& vertex, double sx, double sy, double sz);

/// Turns a vertex about the world origin in the x-y plane, through polar form; a positive angle
/// turns from +x towards +y. `z` stays.
void RotateVertex(CShapeVertex& vertex, double angleDegrees);

}  // namespace hullwright
