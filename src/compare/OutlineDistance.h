#pragma once

#include <optional>
#include <span>
#include <vector>

#include "compare/DesignRecords.h"
#include "compare/NearPairs.h"

namespace hullwright {

/// The share of its own size by which an outline's vertices may have gone for it to be the same
/// one, measured anew.
inline constexpr double mostStrayed = 0.1;

/// The longest side of the box around the vertices of a shape, in space; not finite where they are
/// not.
double SizeOf(const ShapeRecord& shape);

/// The largest distance between vertices of the same number in two shapes that have as many;
/// nothing where it is more than `most`, or where a vertex is at no place.
std::optional<double> OutlineDistance(const ShapeRecord& a, const ShapeRecord& b, double most);

/// Shapes as items of a grid with cells of size 1 in which those within `mostStrayed` of each other
/// meet, each pair once: a shape has an item for the power of two above its size and one for the
/// next, and its place is measured by that.
class SizedItems {
public:
  /// Adds the items of shape `index` with the key of its form; none for one without a finite size.
  void Add(const ShapeRecord& shape, std::size_t index, std::uint64_t key);

  std::span<const GridItem> Items() const { return items_; }

  /// The shape of an item.
  std::size_t Owner(std::size_t item) const { return owners_[item]; }

  /// How far the vertices of the shapes of two items, each of a list of its own, may be apart;
  /// nothing where the shapes meet by other items.
  static std::optional<double> MostBetween(const SizedItems& a, std::size_t i, const SizedItems& b,
                                           std::size_t k);

private:
  struct Measure {
    double size;   ///< of the shape
    int ownLevel;  ///< the power of two above that
    int level;     ///< the one that this item is measured by
  };

  std::vector<GridItem> items_;
  std::vector<std::size_t> owners_;
  std::vector<Measure> measures_;
};

}  // namespace hullwright
