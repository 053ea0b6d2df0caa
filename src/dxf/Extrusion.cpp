#include "dxf/Extrusion.h"

#include <cmath>

namespace hullwright {
namespace {

DxfPoint Normalised(const DxfPoint& v)
{
  const double length = std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
  return {v.x / length, v.y / length, v.z / length};
}

DxfPoint Cross(const DxfPoint& a, const DxfPoint& b)
{
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

DxfPoint InSinglePrecision(const DxfPoint& v)
{
  return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

}  // namespace

Extrusion::Extrusion(const DxfPoint& normal)
    : identity_(normal.x == 0.0 && normal.y == 0.0 && normal.z == 1.0)
{
  if (identity_) return;
  constexpr double nearlyUpright = 0.015625;  // 1/64, of the DXF reference
  const bool slanted = std::abs(normal.x) >= nearlyUpright || std::abs(normal.y) >= nearlyUpright;
  const DxfPoint ax =
      Normalised(slanted ? DxfPoint{-normal.y, normal.x, 0.0} : DxfPoint{normal.z, 0.0, -normal.x});
  ax_ = InSinglePrecision(ax);
  ay_ = InSinglePrecision(Normalised(Cross(normal, ax)));
  n_ = InSinglePrecision(normal);
}

}  // namespace hullwright
