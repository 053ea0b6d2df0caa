#pragma once

namespace hullwright {

/// Gives the whole program the look of a command: a style of the toolkit and a palette. Looks that
/// the toolkit has none for share its plain one.
void ApplyLook(int look);

}  // namespace hullwright
