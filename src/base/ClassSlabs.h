#pragma once

#include <cstddef>
#include <new>

#include "base/SlabPool.h"

/// Slabs for the objects of one class: what its operators `new` and `delete` call, where nothing
/// derives from it and a drawing brings many.
namespace hullwright {

/// The slabs of a class. Never destroyed, so that static objects find them whenever they go.
template <class T>
union SlabsOf {
  constexpr SlabsOf() : pool() {}
  SlabsOf(const SlabsOf&) = delete;
  SlabsOf& operator=(const SlabsOf&) = delete;
  // NOLINTNEXTLINE(modernize-use-equals-default): a defaulted one would be deleted
  ~SlabsOf() {}

  SlabPool<(sizeof(T) + alignof(std::max_align_t) - 1) & ~(alignof(std::max_align_t) - 1)> pool;
};

template <class T>
inline constinit SlabsOf<T> slabsOf;

/// Room for one object. The address sanitizer and valgrind watch single allocations and get those.
template <class T>
void* TakePlace()
{
#ifdef HULLWRIGHT_SINGLE_ALLOCATIONS
  return ::operator new(sizeof(T));
#else
  return slabsOf<T>.pool.Take();
#endif
}

/// Takes such room back.
template <class T>
void GiveBackPlace(void* place)
{
#ifdef HULLWRIGHT_SINGLE_ALLOCATIONS
  ::operator delete(place);
#else
  slabsOf<T>.pool.GiveBack(place);
#endif
}

}  // namespace hullwright
