#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace GridControls {
using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {.kind = Kind::Group, .text = u"Display"},
    {Kind::Check, showGrid, u"Show Grid"},
    {Kind::Field, showX, u"X-Spacing:", showXLabel, showXUnit, u"meters"},
    {Kind::Field, showY, u"Y-Spacing:", showYLabel, showYUnit, u"meters"},
    {.kind = Kind::Group, .text = u"Snap"},
    {Kind::Check, snapToGrid, u"Snap to grid"},
    {Kind::Field, snapX, u"X-Spacing:", snapXLabel, snapXUnit, u"meters"},
    {Kind::Field, snapY, u"Y-Spacing:", snapYLabel, snapYUnit, u"meters"},
});
}  // namespace GridControls

inline constexpr DialogTemplate gridDialog = {DialogId::Grid, u"Grid", GridControls::rows};

}  // namespace hullwright
