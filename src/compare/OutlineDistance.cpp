#include "compare/OutlineDistance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace hullwright {

double SizeOf(const ShapeRecord& shape)
{
  double size = 0.0;
  for (double Place::*const axis : {&Place::x, &Place::y, &Place::z}) {
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    for (const Place& vertex : shape.vertices) {
      low = std::min(low, vertex.*axis);
      high = std::max(high, vertex.*axis);
    }
    size = std::max(size, high - low);
  }
  return size;
}

std::optional<double> OutlineDistance(const ShapeRecord& a, const ShapeRecord& b, double most)
{
  double largest = 0.0;
  for (std::size_t i = 0; i < a.vertices.size(); ++i) {
    const double distance = LengthOf(Way(a.vertices[i], b.vertices[i]));
    // Written so that what is not a number is never near.
    if (!(distance <= most)) return std::nullopt;
    largest = std::max(largest, distance);
  }
  return largest;
}

void SizedItems::Add(const ShapeRecord& shape, std::size_t index, std::uint64_t key)
{
  const double size = SizeOf(shape);
  if (size <= 0.0 || !std::isfinite(size)) return;
  int own = 0;
  std::frexp(size, &own);
  // Shapes so near each other differ by a fifth in size, and so by one power at most.
  for (const int level : {own, own + 1}) {
    const double cell = std::ldexp(mostStrayed, level);
    const Place& begin = shape.vertices[0];
    items_.push_back(
        {Mixed(key, static_cast<std::uint64_t>(level)), begin.x / cell, begin.y / cell});
    owners_.push_back(index);
    measures_.push_back({size, own, level});
  }
}

std::optional<double> SizedItems::MostBetween(const SizedItems& a, std::size_t i,
                                              const SizedItems& b, std::size_t k)
{
  const Measure& one = a.measures_[i];
  const Measure& other = b.measures_[k];
  const int shared = std::max(one.ownLevel, other.ownLevel);
  if (one.level != shared || other.level != shared) return std::nullopt;
  return mostStrayed * std::min(one.size, other.size);
}

}  // namespace hullwright
