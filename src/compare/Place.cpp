#include "compare/Place.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hullwright {
namespace {

/// What the last bits of numbers up to this size, and of their difference, may amount to.
double NoiseOf(double size) { return 4.0 * std::numeric_limits<double>::epsilon() * size; }

}  // namespace

double LengthOf(const Place& way) { return std::hypot(way.x, way.y, way.z); }

bool Tolerance::Same(double a, double b) const
{
  if (a == b) return true;
  if (!std::isfinite(a) || !std::isfinite(b)) return std::isnan(a) && std::isnan(b);
  const double noise = largest_ > 0.0 ? NoiseOf(std::max(std::abs(a), std::abs(b))) : 0.0;
  return std::abs(a - b) <= largest_ + noise;
}

bool Tolerance::Same(const Place& a, const Place& b) const
{
  return Same(a.x, b.x) && Same(a.y, b.y) && Same(a.z, b.z);
}

bool Tolerance::SameWay(const Place& from, const Place& to, const Place& otherFrom,
                        const Place& otherTo) const
{
  for (double Place::*const axis : {&Place::x, &Place::y, &Place::z}) {
    const double way = to.*axis - from.*axis;
    const double otherWay = otherTo.*axis - otherFrom.*axis;
    const double size = std::max({std::abs(from.*axis), std::abs(to.*axis),
                                  std::abs(otherFrom.*axis), std::abs(otherTo.*axis)});
    // Written so that what is not a number is never the same.
    if (!(std::abs(way - otherWay) <= largest_ + NoiseOf(size))) return false;
  }
  return true;
}

}  // namespace hullwright
