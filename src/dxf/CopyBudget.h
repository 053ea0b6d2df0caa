#pragma once

#include <cstddef>
#include <cstdint>

#include "model/Shape.h"

namespace hullwright {

/// Bytes that the copies of inserted shapes may still take, roughly. Blocks that insert blocks
/// multiply without bound; when this is used up, no more copies are made.
class CopyBudget {
public:
  explicit CopyBudget(std::int64_t bytes) : left_(bytes) {}

  /// Pays for a copy of a shape that is placed by so many insertions in one another, each of which
  /// leaves its attributes on it. False when that uses it up, or it was used up before.
  bool Take(const CShape& shape, std::size_t insertions = 1);

  bool IsUsedUp() const { return left_ < 0; }
  std::int64_t Left() const { return left_; }

private:
  std::int64_t left_;
};

}  // namespace hullwright
