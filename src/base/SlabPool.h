#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <new>

#include "base/AlignedBlock.h"

namespace hullwright {

/// Room for many small objects of one size, taken from large slabs: a piece costs little more than
/// its own bytes and next to no time. A slab whose pieces have all been given back goes. What is
/// given back is noted in the head of its slab, so that no piece is touched for it: those of a
/// large design have long left the processor's caches when it goes. For one thread.
template <std::size_t PieceSize>
class SlabPool {
public:
  constexpr SlabPool() = default;
  SlabPool(const SlabPool&) = delete;
  SlabPool& operator=(const SlabPool&) = delete;

  /// What is still taken then is lost.
  ~SlabPool()
  {
    Slab* const fresh = fresh_ == freshEnd_ ? nullptr : SlabOf(fresh_);
    if (fresh != nullptr && fresh->taken == piecesInSlab) Link(fresh);
    while (open_ != nullptr) Release(open_);
  }

  void* Take()
  {
    if (open_ != nullptr) return TakeAgain();
    if (fresh_ == freshEnd_) AddSlab();
    std::byte* const place = fresh_;
    fresh_ += PieceSize;
    return place;
  }

  void GiveBack(void* place)
  {
    if (place == nullptr) return;
    Slab* const slab = SlabOf(place);
    if (slab->taken == piecesInSlab) Link(slab);
    const std::size_t piece = (OffsetInSlab(place) - sizeof(Slab)) / PieceSize;
    slab->free[piece / wordBits] |= std::uint64_t{1} << (piece % wordBits);
    if (--slab->taken == 0) Release(slab);
  }

private:
  // Slabs stand at multiples of their reach, so that a piece knows its own. They are a little
  // smaller: the heap puts a few bytes between them, and would leave gaps as large as a slab.
  // Twice the reach, which is what an aligned piece of the heap takes at first, stays below the
  // 128 KiB from which the C library maps each piece of memory by itself, gaps included.
  static constexpr std::size_t slabReach = std::size_t{1} << 15U;
  static constexpr std::size_t slabSize = slabReach - 64;
  static constexpr std::size_t wordBits = 64;

  /// Begins each slab.
  struct alignas(std::max_align_t) Slab {
    Slab* previous;
    Slab* next;
    std::size_t taken;  ///< pieces that have not been given out yet count as well
    std::array<std::uint64_t, slabSize / PieceSize / wordBits + 1> free;  ///< bits of pieces
  };

  static constexpr std::size_t piecesInSlab = (slabSize - sizeof(Slab)) / PieceSize;
  static_assert(PieceSize % alignof(std::max_align_t) == 0);

  static std::size_t OffsetInSlab(void* place)
  {
    return reinterpret_cast<std::uintptr_t>(place) & (slabReach - 1);
  }

  static Slab* SlabOf(void* place)
  {
    return std::launder(
        reinterpret_cast<Slab*>(static_cast<std::byte*>(place) - OffsetInSlab(place)));
  }

  /// A piece that was given back.
  void* TakeAgain()
  {
    Slab* const slab = open_;
    std::size_t word = 0;
    while (slab->free[word] == 0) ++word;
    const auto bit = static_cast<std::size_t>(std::countr_zero(slab->free[word]));
    slab->free[word] &= slab->free[word] - 1;
    if (++slab->taken == piecesInSlab) Unlink(slab);
    return reinterpret_cast<std::byte*>(slab) + sizeof(Slab) + (word * wordBits + bit) * PieceSize;
  }

  void AddSlab()
  {
    auto* const bytes = static_cast<std::byte*>(TakeAligned(slabSize, slabReach));
    new (bytes) Slab{nullptr, nullptr, piecesInSlab, {}};
    fresh_ = bytes + sizeof(Slab);
    freshEnd_ = fresh_ + piecesInSlab * PieceSize;
  }

  void Release(Slab* slab)
  {
    Unlink(slab);
    GiveBackAligned(slab);
  }

  void Link(Slab* slab)
  {
    slab->previous = nullptr;
    slab->next = open_;
    if (open_ != nullptr) open_->previous = slab;
    open_ = slab;
  }

  void Unlink(Slab* slab)
  {
    if (slab->previous != nullptr) slab->previous->next = slab->next;
    if (slab->next != nullptr) slab->next->previous = slab->previous;
    if (open_ == slab) open_ = slab->next;
  }

  Slab* open_ = nullptr;           ///< the slabs with pieces that were given back
  std::byte* fresh_ = nullptr;     ///< the next piece that was never given out
  std::byte* freshEnd_ = nullptr;  ///< the end of its slab
};

}  // namespace hullwright
