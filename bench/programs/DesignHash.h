#pragma once

#include <cstddef>
#include <cstdint>

#include "model/DesignState.h"

namespace hullwright::bench {

/// What is in a design: how much of it, and a hash of every coordinate, style, attribute and text.
struct DesignSum {
  std::size_t shapes = 0;
  std::size_t vertices = 0;
  std::uint64_t hash = 0;
};

DesignSum SumUp(const DesignState& design);

}  // namespace hullwright::bench
