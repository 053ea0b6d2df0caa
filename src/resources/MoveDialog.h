#pragma once

#include <array>

#include "resources/DialogTemplates.h"

namespace hullwright {

namespace MoveControls {
inline constexpr ControlId x{1024};
inline constexpr ControlId xUnit{1004};
inline constexpr ControlId y{1025};
inline constexpr ControlId yUnit{1005};

using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {Kind::Field, x, u"X-Direction:", ControlId::None, xUnit, u"meters"},
    {Kind::Field, y, u"Y-Direction:", ControlId::None, yUnit, u"meters"},
});
}  // namespace MoveControls

inline constexpr DialogTemplate moveDialog = {DialogId::Move, u"Move Design", MoveControls::rows};

}  // namespace hullwright
