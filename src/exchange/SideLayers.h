#pragma once

#include <optional>
#include <string_view>

#include "model/DesignState.h"

namespace hullwright {

/// The side that a name of `NameOfSide` stands for, in capitals or not; nothing for another name.
std::optional<ViewSide> SideOfName(std::u16string_view name);

/// Whether the layers of an imported drawing stand for sides, as in an export: it has polylines,
/// and each lies on a layer that is named after a side.
bool HasSideLayers(const OwnedArray<CShapes>& groups);

/// Puts the shapes of a drawing that was imported into one group into a group for each side that
/// their layers name. The others, texts and points of offsets and anchors among them, lie on the
/// top side.
void PartBySideLayers(OwnedArray<CShapes>& groups);

}  // namespace hullwright
