#pragma once

#include <array>

#include "resources/Controls.h"
#include "resources/DialogTemplates.h"

namespace hullwright {

namespace VertexControls {
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
