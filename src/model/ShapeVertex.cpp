#include "model/ShapeVertex.h"

#include <algorithm>
#include <cmath>

#include "model/Angle.h"

namespace hullwright {

CShapeVertex& CShapeVertex::operator=(const CShapeVertex& v)
{
  if (this == &v) return *this;
  x = v.x;
  y = v.y;
  z = v.z;
  flag = v.flag;
  tagA = v.tagA;
  tagB = v.tagB;
  return *this;
}

CShapeVertex& CShapeVertex::operator+=(const CShapeVertex& v)
{
  x += v.x;
  y += v.y;
  z += v.z;
  return *this;
}

CShapeVertex& CShapeVertex::operator-=(const CShapeVertex& v)
{
  x -= v.x;
  y -= v.y;
  z -= v.z;
  return *this;
}

CShapeVertex CShapeVertex::operator-(const CShapeVertex& v) const
{
  return {x - v.x, y - v.y, z - v.z};
}

CShapeVertex CShapeVertex::operator+(const CShapeVertex& v) const
{
  return {x + v.x, y + v.y, z + v.z};
}

CShapeVertex CShapeVertex::operator/(double d) const { return {x / d, y / d, z / d}; }

CShapeVertex CShapeVertex::operator/(const CShapeVertex& v) const
{
  return {x / v.x, y / v.y, z / v.z};
}

CShapeVertex CShapeVertex::operator*(double d) const { return {x * d, y * d, z * d}; }

bool CShapeVertex::operator<(const CShapeVertex& v) const { return x == v.x ? y < v.y : x < v.x; }

bool CShapeVertex::operator==(const CShapeVertex& v) const
{
  return x == v.x && y == v.y && z == v.z;
}

bool CShapeVertex::ConvertUnits(UnitCode from, UnitCode to)
{
  if (x == 0.0 && y == 0.0 && z == 0.0) return false;
  if (from == to) return false;
  for (double* const coordinate : {&x, &y, &z}) {
    *coordinate = FromMetres(to, ToMetres(from, *coordinate));
  }
  return true;
}

bool DistanceToSegment(const CShapeVertex& a, const CShapeVertex& b, const CShapeVertex& p,
                       double& distance)
{
  const auto distanceTo = [&p](double x, double y) {
    return std::sqrt((p.x - x) * (p.x - x) + (p.y - y) * (p.y - y));
  };
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  if (dx == 0.0 && dy == 0.0) return false;
  const double t = ((p.y - a.y) * dy + (p.x - a.x) * dx) / (dy * dy + dx * dx);
  if (t < 0.0) return false;
  distance = t > 1.0 ? std::min(distanceTo(a.x, a.y), distanceTo(b.x, b.y))
                     : distanceTo(a.x + t * dx, a.y + t * dy);
  return true;
}

void ScaleVertex(CShapeVertex& vertex, double sx, double sy, double sz)
{
  vertex.x *= sx;
  vertex.y *= sy;
  vertex.z *= sz;
}

void RotateVertex(CShapeVertex& vertex, double angleDegrees)
{
  const double r = std::sqrt(vertex.x * vertex.x + vertex.y * vertex.y);
  const double a =
      (std::atan2(vertex.y, vertex.x) * degreesPerRadian + angleDegrees) * radiansPerDegree;
  vertex.x = std::cos(a) * r;
  vertex.y = std::sin(a) * r;
}

}  // namespace hullwright
