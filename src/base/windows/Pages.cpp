#include "base/Pages.h"

namespace hullwright {

// The heap has large blocks mapped by itself, and its other memory stays its own.

void GiveBackPages(std::span<char>) {}

void GiveBackFreed() {}

void MapLargeBlocks() {}

}  // namespace hullwright
