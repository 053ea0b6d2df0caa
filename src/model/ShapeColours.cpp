#include "model/ShapeColours.h"

#include "base/Numbers.h"

namespace hullwright {

const ShapeStyle& StyleOf(const CShape& shape)
{
  static const ShapeStyle plain;
  return shape.style ? *shape.style : plain;
}

std::string HexColour(std::uint32_t colour)
{
  const int rgb = RedOf(colour) << 16 | GreenOf(colour) << 8 | BlueOf(colour);
  return "#" + FormatHex(static_cast<std::uint32_t>(rgb), 6);
}

}  // namespace hullwright
