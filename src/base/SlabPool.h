#pragma once

#include <cstddef>
#include <cstdint>
#include <new>

namespace hullwright {

/// Room for many small objects of one size, taken from large slabs: a piece costs little more than
/// its own bytes and next to no time. A slab whose pieces have all been given back goes, but for
/// one that is kept for the next piece. For one thread.
template <std::size_t PieceSize>
class SlabPool {
public:
  SlabPool() = default;
  SlabPool(const SlabPool&) = delete;
  SlabPool& operator=(const SlabPool&) = delete;

  /// What is still taken then is lost.
  ~SlabPool()
  {
    while (open_ != nullptr) Release(open_);
  }

  void* Take()
  {
    if (open_ == nullptr) AddSlab();
    Slab* const slab = open_;
    Piece* const piece = slab->free;
    slab->free = piece->next;
    ++slab->taken;
    if (slab->free == nullptr) Unlink(slab);
    return piece;
  }

  void GiveBack(void* place)
  {
    if (place == nullptr) return;
    Slab* const slab = SlabOf(place);
    if (slab->free == nullptr) Link(slab);
    slab->free = new (place) Piece{slab->free};
    const bool only = slab == open_ && slab->next == nullptr;
    if (--slab->taken == 0 && !only) Release(slab);
  }

private:
  struct Piece {
    Piece* next;
  };

  /// Begins each slab. Slabs stand at multiples of their size, so that a piece knows its own.
  struct alignas(std::max_align_t) Slab {
    Slab* previous;
    Slab* next;
    Piece* free;  ///< null when every piece is taken
    std::size_t taken;
  };

  static constexpr std::size_t slabSize = std::size_t{1} << 16U;
  static constexpr std::size_t piecesInSlab = (slabSize - sizeof(Slab)) / PieceSize;
  static constexpr auto alignment = static_cast<std::align_val_t>(slabSize);
  static_assert(PieceSize >= sizeof(Piece) && PieceSize % alignof(std::max_align_t) == 0);

  static Slab* SlabOf(void* place)
  {
    auto* const bytes = static_cast<std::byte*>(place);
    const auto offset = reinterpret_cast<std::uintptr_t>(place) & (slabSize - 1);
    return std::launder(reinterpret_cast<Slab*>(bytes - offset));
  }

  void AddSlab()
  {
    auto* const bytes = static_cast<std::byte*>(::operator new(slabSize, alignment));
    Piece* free = nullptr;
    // In the order of their places, so that what is made together lies together.
    for (std::size_t i = piecesInSlab; i-- > 0;) {
      free = new (bytes + sizeof(Slab) + i * PieceSize) Piece{free};
    }
    Link(new (bytes) Slab{nullptr, nullptr, free, 0});
  }

  void Release(Slab* slab)
  {
    Unlink(slab);
    ::operator delete(slab, alignment);
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

  Slab* open_ = nullptr;  ///< the slabs with room
};

}  // namespace hullwright
