#pragma once

#include <cstdint>
#include <string_view>

namespace hullwright {

/// The parts of a drawing that are the same for every design, as `DxfText::Records` takes them. All
/// handles in them are below `firstFreeHandle`.
namespace DxfRecords {

inline constexpr std::uint32_t firstFreeHandle = 0x40;
inline constexpr std::uint32_t modelSpace = 0x17;

// Of R2000, in the order in which they come: between the first two the active viewport, between the
// second and third the layers, and between the last two the entities.
extern const std::string_view classesToViewports;
extern const std::string_view linetypesToLayers;
extern const std::string_view stylesToBlocks;
extern const std::string_view objects;

// The same of R12, which has no objects.
extern const std::string_view linetypesToLayersR12;
extern const std::string_view stylesToBlocksR12;

}  // namespace DxfRecords
}  // namespace hullwright
