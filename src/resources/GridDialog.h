#pragma once

#include <array>

#include "resources/DialogTemplates.h"

namespace hullwright {

namespace GridControls {
inline constexpr ControlId showGrid{1002};
inline constexpr ControlId showX{1000};
inline constexpr ControlId showXLabel{1006};
inline constexpr ControlId showXUnit{1004};
inline constexpr ControlId showY{1003};
inline constexpr ControlId showYLabel{1007};
inline constexpr ControlId showYUnit{1005};
inline constexpr ControlId snapToGrid{1001};
inline constexpr ControlId snapX{1009};
inline constexpr ControlId snapXLabel{1008};
inline constexpr ControlId snapXUnit{1010};
inline constexpr ControlId snapY{1012};
inline constexpr ControlId snapYLabel{1011};
inline constexpr ControlId snapYUnit{1013};

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
