#pragma once

#include <cstdint>
#include <string>

namespace hullwright {

struct PictureRequest {
  std::string design;     ///< path of the design file
  std::int32_t side = 0;  ///< code of the side in view
  int width = 0;          ///< in pixels
  int height = 0;
  std::string output;  ///< path of the picture to write
};

/// Draws one side of a design to a PNG file. Empty on success, else what went wrong. A file is
/// written whole or not at all.
std::string WritePicture(const PictureRequest& request);

}  // namespace hullwright
