#include "file/CoordinateLine.h"

#include <cstring>

namespace hullwright {

char* CoordinateLine::Write(char* at, const CShapeVertex& place) const
{
  const auto write = [&at](const Piece& piece) {
    std::memcpy(at, piece.text.data(), piece.text.size());
    at += piece.length;
  };
  const auto writeCoordinate = [&](std::size_t i) {
    write(before_[i]);
    at = WriteFixed3(at, place.*coordinates[i].member);
  };
  // Not in a loop: where each member lies is then part of the code, and is not looked up.
  static_assert(coordinates.size() == 3);
  writeCoordinate(0);
  writeCoordinate(1);
  writeCoordinate(2);
  write(end_);
  return at;
}

}  // namespace hullwright
