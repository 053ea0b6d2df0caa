#pragma once

#include <cstddef>
#include <vector>

#include "compare/DesignRecords.h"
#include "compare/Place.h"

namespace hullwright {

/// By which rule two shapes were found to be one and the same.
enum class MatchRule { Equal, Moved, Changed };

/// A former shape and the current one that it has become, as indices.
struct ShapeMatch {
  std::size_t former = 0;
  std::size_t current = 0;
  MatchRule rule = MatchRule::Equal;
};

/// Pairs the shapes of two designs, each with one of its side and type at most, in time that grows
/// with the number of vertices. The rules come one after the other, each for what those before it
/// have left:
/// 1. Equal: the same form, and each vertex the same to the last bit, in order; first those of the
///    same style as well. Then those whose vertices are the same within the tolerance.
/// 2. Moved: the same form, and one way between all vertices, in order. First come ways that more
///    shapes of the side could have gone, then shorter ones.
/// 3. Changed: more than half of the vertices of the longer one stand in the other one, too. Those
///    with most of them come first.
/// 4. Changed: the same form, and no vertex farther from the one of the same number than a tenth of
///    the smaller outline's size, which is the longest side of its box: measured anew. The nearest
///    ones come first.
/// 5. Changed: at least half of the vertices of the shorter and a quarter of those of the longer
///    stand in the other one, too. Those with most of them come first.
/// What is left open is decided by the numbers of the shapes on their sides. With the designs
/// exchanged the pairs are the same.
std::vector<ShapeMatch> MatchShapes(const std::vector<ShapeRecord>& former,
                                    const std::vector<ShapeRecord>& current,
                                    const Tolerance& tolerance);

}  // namespace hullwright
