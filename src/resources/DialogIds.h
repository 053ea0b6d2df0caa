#pragma once

namespace hullwright {

/// A dialog by the number of its template.
enum class DialogId : int {
  About = 100,
  Grid = 310,
  Vertex = 313,
  Units = 314,
  Scale = 317,
  Rotate = 319,
  Move = 322,
  Offsets = 323,
};

/// A control of a dialog by its number. Each dialog counts for itself; `Controls.def` has the
/// names.
enum class ControlId : int {
  None = 0,  ///< no control, and one that is never asked for
};

}  // namespace hullwright
