#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace UnitsControls {
inline constexpr auto rows =
    std::to_array<DialogRow>({{DialogRowKind::List, units, u"Length units"}});
}  // namespace UnitsControls

inline constexpr DialogTemplate unitsDialog = {DialogId::Units, u"Switch Units",
                                               UnitsControls::rows};

}  // namespace hullwright
