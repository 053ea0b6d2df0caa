#pragma once

#include <cstddef>
#include <filesystem>

#include "model/Extents.h"
#include "model/Shapes.h"

namespace hullwright::bench {

/// Polylines of 20 vertices, some twelve units from one to the next, spread at random over an area
/// around the origin. The same numbers each time.
struct Scene {
  std::size_t polylines = 0;
  double width = 0.0;  ///< of the area, in world units
  double height = 0.0;
  float lineWidth = 1.0F;
};

/// Polylines of a scene of 100,000 vertices; far fewer where a file `tiny` in the folder of inputs
/// states that all is only tried.
std::size_t PolylinesOfWindow(const std::filesystem::path& inputs);

/// The stretch of the world that a scene covers, or a part of it around the origin.
Extents StretchOf(const Scene& scene, double part = 1.0);

/// Adds the scene's polylines to a group.
void Fill(CShapes& group, const Scene& scene);

}  // namespace hullwright::bench
