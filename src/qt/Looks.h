#pragma once

namespace hullwright {

/// Gives the whole program the look of a command: a style of the toolkit and a palette. Numbers
/// between the looks take the blue one.
void ApplyLook(int look);

}  // namespace hullwright
