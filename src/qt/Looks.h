#pragma once

#include "resources/CommandIds.h"

namespace hullwright {

/// Brings the style of the looks in before there is a widget, each of which would be measured again
/// by a change of it.
void PrepareLooks();

/// Gives the whole program a look: a style of the toolkit and a palette. Numbers
/// between the looks take the blue one.
void ApplyLook(Look look);

}  // namespace hullwright
