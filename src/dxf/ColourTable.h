#pragma once

#include <cstddef>
#include <cstdint>

namespace hullwright {

inline constexpr std::size_t colourCount = 256;

/// Colour of an AutoCAD Color Index as 0x00BBGGRR; black for an index that the table lacks.
std::uint32_t ColourOfIndex(std::int32_t index);

/// The first index whose colour is nearest to a colour of the form 0x00BBGGRR, by the sum of the
/// squared differences of the channels. What stands above the third byte plays no part.
std::int32_t NearestColourIndex(std::uint32_t colour);

}  // namespace hullwright
