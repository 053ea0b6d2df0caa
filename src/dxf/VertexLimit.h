#pragma once

#include <cstddef>

#include "model/Shape.h"

namespace hullwright {

/// How many vertices the entities of one drawing may make. An arc of 80 bytes becomes 182 vertices
/// of 56, and a polyline without an end may have any number, so that without a limit a drawing that
/// nobody can use would take the memory of the whole machine. Copies of blocks have a budget of
/// their own.
class VertexLimit {
public:
  /// About 1.4 GB. A drawing of 250 MB has as many, and no vessel's outline comes near.
  static constexpr std::size_t usual = 25'000'000;

  explicit VertexLimit(std::size_t most) : most_(most) {}

  /// Counts a shape. Its own memory counts as that of some vertices.
  void Count(const CShape& shape)
  {
    constexpr std::size_t shapeItself = 8;
    taken_ += shapeItself + shape.vertices.size();
  }

  bool IsReached() const { return taken_ >= most_; }
  std::size_t Left() const { return IsReached() ? 0 : most_ - taken_; }
  std::size_t Most() const { return most_; }

private:
  std::size_t most_;
  std::size_t taken_ = 0;
};

}  // namespace hullwright
