#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace hullwright {

/// Room for many small objects of one size, taken from large slabs: a piece costs no more than its
/// own bytes and next to no time. Pieces that are given back are used again; when the last one is
/// back, the slabs go. For one thread, and for objects that live in the program's own containers.
template <std::size_t PieceSize>
class SlabPool {
public:
  void* Take()
  {
    if (free_ == nullptr) AddSlab();
    Piece* const piece = free_;
    free_ = piece->next;
    ++taken_;
    return piece;
  }

  void GiveBack(void* place)
  {
    if (place == nullptr) return;
    free_ = new (place) Piece{free_};
    if (--taken_ != 0) return;
    free_ = nullptr;
    slabs_.clear();
  }

private:
  struct Piece {
    Piece* next;
  };
  static_assert(PieceSize >= sizeof(Piece) && PieceSize % alignof(std::max_align_t) == 0);

  static constexpr std::size_t piecesInSlab = 1024;
  struct Slab {
    alignas(std::max_align_t) std::byte bytes[piecesInSlab * PieceSize];
  };

  void AddSlab()
  {
    // In the order of their places, so that what is made together lies together.
    std::byte* const bytes = slabs_.emplace_back(std::make_unique_for_overwrite<Slab>())->bytes;
    for (std::size_t i = piecesInSlab; i-- > 0;) free_ = new (bytes + i * PieceSize) Piece{free_};
  }

  std::vector<std::unique_ptr<Slab>> slabs_;
  Piece* free_ = nullptr;
  std::size_t taken_ = 0;
};

}  // namespace hullwright
