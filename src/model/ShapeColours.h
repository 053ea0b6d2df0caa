#pragma once

#include <cstdint>
#include <string>

#include "model/Shape.h"

namespace hullwright {

/// How a shape is stroked, also one that has no style.
const ShapeStyle& StyleOf(const CShape& shape);

// The parts of a colour 0x00BBGGRR, from 0 to 255.
constexpr int RedOf(std::uint32_t colour) { return static_cast<int>(colour & 0xFFU); }
constexpr int GreenOf(std::uint32_t colour) { return static_cast<int>(colour >> 8U & 0xFFU); }
constexpr int BlueOf(std::uint32_t colour) { return static_cast<int>(colour >> 16U & 0xFFU); }

/// A colour 0x00BBGGRR as "#RRGGBB", the way painting programs write it.
std::string HexColour(std::uint32_t colour);

}  // namespace hullwright
