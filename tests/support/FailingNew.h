#pragma once

#include <cstddef>

namespace hullwright::test {

/// While it lives, one allocation by `new` of this thread fails with `std::bad_alloc`; all others
/// succeed. A test program that links it has its own `new` and `delete` throughout, on `malloc` and
/// `free`, which the sanitizers watch as they would the usual ones.
class FailingNew {
public:
  /// `which` counts from 1, the next allocation.
  explicit FailingNew(std::size_t which);
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;
  ~FailingNew();

  /// From here on nothing fails; whether the one allocation was reached before.
  static bool Stop();

  /// Allocations since it began, the one that failed included.
  static std::size_t Count();
};

}  // namespace hullwright::test
