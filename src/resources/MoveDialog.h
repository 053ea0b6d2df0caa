#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace MoveControls {
using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {Kind::Field, directionX, u"X-Direction:", ControlId::None, directionXUnit, u"meters"},
    {Kind::Field, directionY, u"Y-Direction:", ControlId::None, directionYUnit, u"meters"},
});
}  // namespace MoveControls

inline constexpr DialogTemplate moveDialog = {DialogId::Move, u"Move Design", MoveControls::rows};

}  // namespace hullwright
