#pragma once

#include <string>

#include "dxf/ColourTable.h"
#include "model/Shapes.h"

namespace hullwright {

/// A block of a drawing with its shapes, ready to be inserted. Its header is kept as it stands in
/// the drawing; the insertion uses none of it, not even the base point.
class CFileDxfBlock : public CShapes {
public:
  std::string name;
  std::string layerName;
  std::string handle;
  double baseX = 0.0;
  double baseY = 0.0;
  ColourIndex colour{};
};

}  // namespace hullwright
