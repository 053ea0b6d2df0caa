#pragma once

#include <cstddef>
#include <cstdint>

namespace hullwright {

/// An AutoCAD Color Index. Beside those of the table it holds any number that a drawing has; a
/// layer that is off has a negative one.
enum class ColourIndex : std::int32_t {
  ByBlock = 0,  ///< black in the table
  ByLayer = 256
};

inline constexpr std::size_t colourCount = 256;

/// Colour of an index as 0x00BBGGRR; black for an index that the table lacks.
std::uint32_t ColourOfIndex(ColourIndex index);

/// The first index whose colour is nearest to a colour of the form 0x00BBGGRR, by the sum of the
/// squared differences of the channels. What stands above the third byte plays no part.
ColourIndex NearestColourIndex(std::uint32_t colour);

}  // namespace hullwright
