#pragma once

#include "model/GridSettings.h"
#include "platform/SettingsStore.h"

namespace hullwright {

/// Reads the six keys of the section "Grid". Spacings are stored as hundredths and read as
/// unsigned, so that a negative one comes back huge.
GridSettings LoadGridSettings(const ISettingsStore& store);

/// Writes the six keys. Spacings are truncated to hundredths, not rounded: 1.15 comes back as 1.14.
void SaveGridSettings(ISettingsStore& store, const GridSettings& grid);

}  // namespace hullwright
