#pragma once

#include <cstddef>
#include <cstdint>

#include "base/ClassSlabs.h"

namespace hullwright {

/// How a shape is stroked. A shape without a style is drawn black, one pixel wide.
struct ShapeStyle final {
  static void* operator new(std::size_t) { return TakePlace<ShapeStyle>(); }
  static void operator delete(void* place) { GiveBackPlace<ShapeStyle>(place); }

  std::uint32_t lineColour = 0;         ///< 0x00BBGGRR, red in the low byte
  std::uint32_t fillColour = 0xC0C0C0;  ///< same encoding
  std::uint8_t styleCode = 7;           ///< carried
  float lineWidth = 1.0F;               ///< stroke width in pixels
  std::uint8_t styleFlagA = 0;          ///< carried
  std::uint8_t styleFlagB = 0;          ///< carried
};

}  // namespace hullwright
