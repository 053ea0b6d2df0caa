#include "base/Pages.h"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <memory>

namespace hullwright {

void GiveBackPages(std::span<char> stretch)
{
  static const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  void* begin = stretch.data();
  std::size_t size = stretch.size();
  if (std::align(page, page, begin, size) == nullptr) return;
  madvise(begin, size / page * page, MADV_DONTNEED);
}

void GiveBackFreed() { malloc_trim(0); }

void MapLargeBlocks()
{
  constexpr int large = 1 << 20;
  mallopt(M_MMAP_THRESHOLD, large);
}

}  // namespace hullwright
