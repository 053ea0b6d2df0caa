#pragma once

namespace hullwright {

/// Tells assistive technology what the program's own widgets are: the design view a canvas, a pane
/// of the status bar that can be pressed a button. What a widget is, is asked for once, so this
/// comes before the first one. Further calls do nothing.
void InstallAccessibility();

}  // namespace hullwright
