#pragma once

#include <cstdint>
#include <string>

namespace hullwright {

/// A layer of a drawing.
struct CFileDxfLayer {
  std::string name;         ///< as bytes, case kept
  std::int32_t colour = 0;  ///< AutoCAD Color Index; negative when the layer is off
  bool frozen = false;
  bool off = false;
};

}  // namespace hullwright
