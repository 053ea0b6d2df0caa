#pragma once

#include <string>

#include "dxf/ColourTable.h"

namespace hullwright {

/// A layer of a drawing.
struct CFileDxfLayer {
  std::string name;      ///< as bytes, case kept
  ColourIndex colour{};  ///< negative when the layer is off
  bool frozen = false;
  bool off = false;
};

}  // namespace hullwright
