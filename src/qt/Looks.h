#pragma once

#include "resources/CommandIds.h"

namespace hullwright {

/// Gives the whole program a look: a style of the toolkit and a palette. Numbers
/// between the looks take the blue one.
void ApplyLook(Look look);

}  // namespace hullwright
