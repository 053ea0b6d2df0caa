#pragma once

#include <array>

#include "resources/DialogTemplates.h"

namespace hullwright {

namespace OffsetsControls {
inline constexpr ControlId antennaX{1027};
inline constexpr ControlId antennaXUnit{1004};
inline constexpr ControlId antennaY{1028};
inline constexpr ControlId antennaYUnit{1005};
inline constexpr ControlId transducerX{1030};
inline constexpr ControlId transducerXUnit{1010};
inline constexpr ControlId transducerY{1031};
inline constexpr ControlId transducerYUnit{1013};
inline constexpr ControlId pivotX{1001};
inline constexpr ControlId pivotXUnit{1006};
inline constexpr ControlId pivotY{1002};
inline constexpr ControlId pivotYUnit{1007};
inline constexpr ControlId pivotZ{1003};
inline constexpr ControlId pivotZUnit{1008};

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
