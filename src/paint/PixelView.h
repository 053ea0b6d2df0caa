#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace hullwright {

/// A picture in memory, 32 bits a pixel: 0xffRRGGBB, or premultiplied 0xAARRGGBB.
struct PixelView {
  std::uint32_t* pixels = nullptr;
  std::ptrdiff_t stride = 0;  ///< pixels from one row to the next
  int width = 0;
  int height = 0;
};

/// Rows and columns of a picture, the last ones included.
struct PixelArea {
  int firstRow = 0;
  int lastRow = -1;
  int firstX = 0;
  int lastX = -1;

  bool IsEmpty() const { return firstRow > lastRow || firstX > lastX; }
  int Width() const { return lastX - firstX + 1; }
  int Height() const { return lastRow - firstRow + 1; }

  /// What this area and another one have in common.
  PixelArea Within(const PixelArea& other) const
  {
    return {std::max(firstRow, other.firstRow), std::min(lastRow, other.lastRow),
            std::max(firstX, other.firstX), std::min(lastX, other.lastX)};
  }
};

/// A place in a picture, in its pixels. Pixel n reaches from n to n + 1.
struct PixelPosition {
  float x = 0.0F;
  float y = 0.0F;
};

}  // namespace hullwright
