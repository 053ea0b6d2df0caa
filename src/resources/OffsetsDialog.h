#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace OffsetsControls {
using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {.kind = Kind::Group, .text = u"GNSS Antenna Offset"},
    {Kind::Field, antennaX, u"X:", ControlId::None, antennaXUnit, u"Static"},
    {Kind::Field, antennaY, u"Y:", ControlId::None, antennaYUnit, u"Static"},
    {.kind = Kind::Group, .text = u"Echo Sounder Transducer Offset"},
    {Kind::Field, transducerX, u"X:", ControlId::None, transducerXUnit, u"Static"},
    {Kind::Field, transducerY, u"Y:", ControlId::None, transducerYUnit, u"Static"},
    {.kind = Kind::Group, .text = u"Pivot Point Offset (Dredging Only)"},
    {Kind::Field, pivotX, u"X:", ControlId::None, pivotXUnit, u"Static"},
    {Kind::Field, pivotY, u"Y:", ControlId::None, pivotYUnit, u"Static"},
    {Kind::Field, pivotZ, u"Z:", ControlId::None, pivotZUnit, u"Static"},
    {.kind = Kind::Group, .text = u""},
    {.kind = Kind::Note,
     .text = u"Use this dialog to set offset points manually. Please note that the pivot point "
             u"offset is used for dredging only !"},
});
}  // namespace OffsetsControls

inline constexpr DialogTemplate offsetsDialog = {DialogId::Offsets, u"Modify Offsets",
                                                 OffsetsControls::rows};

}  // namespace hullwright
