#pragma once

#include <array>

#include "resources/DialogTemplates.h"

namespace hullwright {

namespace VertexControls {
inline constexpr ControlId x{1008};
inline constexpr ControlId xUnit{1004};
inline constexpr ControlId y{1009};
inline constexpr ControlId yUnit{1005};
inline constexpr ControlId z{1023};
inline constexpr ControlId zUnit{1010};

using Kind = DialogRowKind;
inline constexpr auto rows = std::to_array<DialogRow>({
    {Kind::Field, x, u"Coordinate-X:", ControlId::None, xUnit, u"meters"},
    {Kind::Field, y, u"Coordinate-Y:", ControlId::None, yUnit, u"meters"},
    {Kind::Field, z, u"Coordinate-Z:", ControlId::None, zUnit, u"meters"},
});
}  // namespace VertexControls

inline constexpr DialogTemplate vertexDialog = {DialogId::Vertex, u"Edit Vertex Coordinates",
                                                VertexControls::rows};

}  // namespace hullwright
