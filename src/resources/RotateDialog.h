#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace RotateControls {
using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {.kind = Kind::Group, .text = u"Angle"},
    {Kind::Radio, by90, u"Rotate 90 degrees"},
    {Kind::Radio, by180, u"Rotate 180 degrees"},
    {Kind::Radio, by270, u"Rotate 270 degrees"},
    {Kind::RadioField, byAngle, u"Rotate", angle, ControlId::None, u"degrees"},
    {.kind = Kind::Group, .text = u"Direction"},
    {Kind::Radio, clockwise, u"Rotate Right (Clockwise)"},
    {Kind::Radio, counterClockwise, u"Rotate Left (Counter Clockwise)"},
});
}  // namespace RotateControls

inline constexpr DialogTemplate rotateDialog = {DialogId::Rotate, u"Rotate Design",
                                                RotateControls::rows};

}  // namespace hullwright
