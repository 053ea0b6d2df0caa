#include "file/CoordinateLine.h"

#include <cstring>

namespace hullwright {

char* CoordinateLine::Write(char* at, const CShapeVertex& place) const
{
  const auto write = [&at](const Piece& piece) {
    std::memcpy(at, piece.text.data(), piece.text.size());
    at += piece.length;
  };
  for (std::size_t i = 0; i < coordinates.size(); ++i) {
    write(before_[i]);
    at = WriteFixed3(at, place.*coordinates[i].member);
  }
  write(end_);
  return at;
}

}  // namespace hullwright
