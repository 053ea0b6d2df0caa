#include "base/AlignedBlock.h"

#include <cstdlib>
#include <new>

namespace hullwright {

void* TakeAligned(std::size_t size, std::size_t alignment)
{
  void* block = nullptr;
  if (posix_memalign(&block, alignment, size) != 0) throw std::bad_alloc();
  return block;
}

void GiveBackAligned(void* block) noexcept { std::free(block); }

}  // namespace hullwright
