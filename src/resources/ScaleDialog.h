#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace ScaleControls {
inline constexpr auto rows = std::to_array<DialogRow>({
    {DialogRowKind::Field, factor, u"Scale Factor:", ControlId::None, ControlId::None, u"unity"},
});
}  // namespace ScaleControls

inline constexpr DialogTemplate scaleDialog = {DialogId::Scale, u"Scale Design",
                                               ScaleControls::rows};

}  // namespace hullwright
