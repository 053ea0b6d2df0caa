#pragma once

#include <span>
#include <vector>

#include "compare/Differences.h"

namespace hullwright {

/// How the vertices of one outline became those of another: the fewest that were moved, added or
/// removed, in order. The common beginning and end are set apart; what stands between is aligned by
/// its longest common part, unless both are so long that this would take more than
/// `mostAligned` steps: then vertices of equal place in the order count as moved, and the
/// rest as added or removed. With the outlines exchanged the vertices are the same.
std::vector<VertexDifference> CompareVertices(std::span<const Place> former,
                                              std::span<const Place> current,
                                              const Tolerance& tolerance);

inline constexpr std::size_t mostAligned = 4'000'000;

/// Whether an outline has the vertices of another one from the last to the first.
bool IsReversed(std::span<const Place> former, std::span<const Place> current,
                const Tolerance& tolerance);

}  // namespace hullwright
