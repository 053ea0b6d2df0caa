#include "support/FailingNew.h"

#include <cstdlib>
#include <new>

#include "base/AlignedBlock.h"
#include "support/System.h"

namespace {

/// Allocations up to the one that fails; 0 while none shall.
thread_local std::size_t left = 0;
thread_local bool failed = false;
thread_local std::size_t count = 0;

/// Null when it is this allocation's turn, or when there is no memory indeed.
void* Allocate(std::size_t size, std::size_t alignment) noexcept
{
  ++count;
  if (left > 0 && --left == 0) {
    failed = true;
    return nullptr;
  }
  if (alignment <= alignof(std::max_align_t)) return std::malloc(size == 0 ? 1 : size);
  return hullwright::test::AllocateAligned(size, alignment);
}

void* AllocateOrThrow(std::size_t size, std::size_t alignment = 1)
{
  void* const place = Allocate(size, alignment);
  if (place == nullptr) throw std::bad_alloc();
  return place;
}

std::size_t Number(std::align_val_t alignment) { return static_cast<std::size_t>(alignment); }

void Free(void* place, std::align_val_t alignment) noexcept
{
  if (Number(alignment) <= alignof(std::max_align_t)) {
    std::free(place);
  } else {
    hullwright::test::FreeAligned(place);
  }
}

}  // namespace

// The whole family: a sanitizer brings its own for each one that is missing here, and those would
// not go together with these.
void* operator new(std::size_t n) { return AllocateOrThrow(n); }
void* operator new[](std::size_t n) { return AllocateOrThrow(n); }
void* operator new(std::size_t n, std::align_val_t a) { return AllocateOrThrow(n, Number(a)); }
void* operator new[](std::size_t n, std::align_val_t a) { return AllocateOrThrow(n, Number(a)); }
void* operator new(std::size_t n, const std::nothrow_t&) noexcept { return Allocate(n, 1); }
void* operator new[](std::size_t n, const std::nothrow_t&) noexcept { return Allocate(n, 1); }
void* operator new(std::size_t n, std::align_val_t a, const std::nothrow_t&) noexcept
{
  return Allocate(n, Number(a));
}
void* operator new[](std::size_t n, std::align_val_t a, const std::nothrow_t&) noexcept
{
  return Allocate(n, Number(a));
}
void operator delete(void* place) noexcept { std::free(place); }
void operator delete[](void* place) noexcept { std::free(place); }
void operator delete(void* place, std::size_t) noexcept { std::free(place); }
void operator delete[](void* place, std::size_t) noexcept { std::free(place); }
void operator delete(void* place, std::align_val_t a) noexcept { Free(place, a); }
void operator delete[](void* place, std::align_val_t a) noexcept { Free(place, a); }
void operator delete(void* place, std::size_t, std::align_val_t a) noexcept { Free(place, a); }
void operator delete[](void* place, std::size_t, std::align_val_t a) noexcept { Free(place, a); }
void operator delete(void* place, const std::nothrow_t&) noexcept { std::free(place); }
void operator delete[](void* place, const std::nothrow_t&) noexcept { std::free(place); }
void operator delete(void* place, std::align_val_t a, const std::nothrow_t&) noexcept
{
  Free(place, a);
}
void operator delete[](void* place, std::align_val_t a, const std::nothrow_t&) noexcept
{
  Free(place, a);
}

// Stands in for the base room's own.
namespace hullwright {

void* TakeAligned(std::size_t size, std::size_t alignment)
{
  return AllocateOrThrow(size, alignment);
}

void GiveBackAligned(void* block) noexcept { test::FreeAligned(block); }

}  // namespace hullwright

namespace hullwright::test {

FailingNew::FailingNew(std::size_t which)
{
  left = which;
  failed = false;
  count = 0;
}

FailingNew::~FailingNew() { Stop(); }

bool FailingNew::Stop()
{
  left = 0;
  return failed;
}

std::size_t FailingNew::Count() { return count; }

}  // namespace hullwright::test
