#pragma once

#include <string>

#include "replay/driver/ReplayEditor.h"

namespace hullwright::replay {

/// What does not hold of an editor although it must behind each step; empty where all does. In a
/// group one shape at most is edited; no object of the design stands in two places; the tree lists
/// what the design holds; and a save comes back as it was, to three decimals. The editor stays as
/// it is, but for the tree, which is made anew.
std::string BrokenRule(ReplayEditor& editor);

}  // namespace hullwright::replay
