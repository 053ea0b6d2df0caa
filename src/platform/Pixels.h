#pragma once

/// The values that a picture is drawn with. Coordinates are client pixels, y growing downward.
namespace hullwright {

struct PixelPoint {
  float x = 0.0F;
  float y = 0.0F;
};

struct PixelRect {
  float left = 0.0F;
  float top = 0.0F;
  float right = 0.0F;
  float bottom = 0.0F;
};

struct PixelSize {
  float width = 0.0F;
  float height = 0.0F;
};

/// Dots per inch.
struct Resolution {
  float x = 96.0F;
  float y = 96.0F;
};

/// Parts from 0.0 to 1.0.
struct Colour {
  float red = 0.0F;
  float green = 0.0F;
  float blue = 0.0F;
  float alpha = 1.0F;
};

}  // namespace hullwright
