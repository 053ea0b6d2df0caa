#pragma once

#include <span>

/// Memory that goes back to the system before its owner does, where the system can take it.
namespace hullwright {

/// Gives back the whole pages of a stretch whose content nobody needs any more. The stretch stays
/// its owner's; what it holds may be anything.
void GiveBackPages(std::span<char> stretch);

/// Gives back what has been freed and lies between blocks that have not, which the heap keeps.
void GiveBackFreed();

/// Makes each large block a mapping of its own, which grows without a copy and goes back to the
/// system when it is freed. The heap else keeps such blocks once one of them has gone. Called
/// before them.
void MapLargeBlocks();

}  // namespace hullwright
