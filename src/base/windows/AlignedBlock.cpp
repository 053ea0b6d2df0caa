#include "base/AlignedBlock.h"

#include <malloc.h>

#include <new>

namespace hullwright {

void* TakeAligned(std::size_t size, std::size_t alignment)
{
  void* const block = _aligned_malloc(size, alignment);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void GiveBackAligned(void* block) noexcept { _aligned_free(block); }

}  // namespace hullwright
