#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/HeadlessEditor.h"
#include "resources/ViewSides.h"

namespace hullwright {

/// Which sides are drawn to which files, and how.
struct PictureRequest {
  std::string input;   ///< path of a design or a drawing; "-" for standard input
  std::string output;  ///< path to write; its ending decides the format: .png, .svg or .pdf
  std::string ending;  ///< the format in place of that ending, with its point; may be empty
  std::vector<ViewSideEntry> sides;  ///< the sides to draw
  bool oneEach = false;              ///< a file for each side, its name set before the ending
  bool sheet = false;                ///< all sides on one sheet, with their names
  int width = 1600;                  ///< size of a side's picture in pixels
  int height = 1000;
  std::optional<Extents> stretch;  ///< what to show at least; without it everything
  std::optional<bool> grid;        ///< whether the grid is drawn; without it as by default
  bool symbols = true;             ///< whether a design's offsets and anchors are drawn
};

/// Draws sides of a design, or of a drawing imported into them, to picture files. Empty on success,
/// else what went wrong. A file is written whole or not at all. `isIncomplete` is set to whether
/// memory or a limit cut the import of the drawing short, which is reported.
std::string WritePictures(const PictureRequest& request, bool& isIncomplete);

}  // namespace hullwright
