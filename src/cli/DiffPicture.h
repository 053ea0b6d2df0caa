#pragma once

#include <string>
#include <vector>

#include "compare/Differences.h"
#include "model/DesignState.h"
#include "resources/ViewSides.h"

namespace hullwright {

/// What a picture of differences is made of.
struct DiffPictureRequest {
  const DesignState& former;
  const DesignState& current;
  const Differences& differences;
  std::vector<ViewSideEntry> sides;  ///< those to choose from
  bool symbols = true;               ///< whether offsets and anchors are drawn
  std::string output;                ///< path to write; its ending decides the format
};

/// Draws the sides on which designs differ, the first one where they differ on none, on a sheet:
/// the former design in grey, the current one upon it, in blue where it is another, and rings
/// around what changed. Empty on success, else what went wrong. The file is written whole or not at
/// all.
std::string WriteDiffPicture(const DiffPictureRequest& request);

}  // namespace hullwright
