#pragma once

#include <cstddef>

namespace hullwright {

/// A block of memory at a multiple of an alignment. It has just the bytes asked for: `new` takes up
/// to the next multiple of the alignment, and where that is large the heap is left with a gap of
/// that size behind each block. Throws where memory has ended.
void* TakeAligned(std::size_t size, std::size_t alignment);

/// Takes such a block back.
void GiveBackAligned(void* block) noexcept;

}  // namespace hullwright
