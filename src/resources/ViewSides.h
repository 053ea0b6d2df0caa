#pragma once

#include <array>
#include <string_view>

#include "base/FindOrNull.h"
#include "model/ViewSide.h"
#include "resources/CommandIds.h"

namespace hullwright {

/// A side that can be in view, with the command that selects it.
struct ViewSideEntry {
  ViewSide code;
  CommandId command;
  std::string_view name;  ///< lower case, as command lines and file names spell it
};

inline constexpr std::array<ViewSideEntry, 6> viewSides = {{
    {ViewSide::Top, CommandId::ViewTop, "top"},
    {ViewSide::Bottom, CommandId::ViewBottom, "bottom"},
    {ViewSide::Right, CommandId::ViewRight, "right"},
    {ViewSide::Left, CommandId::ViewLeft, "left"},
    {ViewSide::Front, CommandId::ViewFront, "front"},
    {ViewSide::Rear, CommandId::ViewRear, "rear"},
}};

/// The side of a code; null for a code of no single side.
constexpr const ViewSideEntry* FindViewSide(ViewSide code)
{
  return FindOrNull(viewSides, code, &ViewSideEntry::code);
}

/// The side that a command selects; null for any other command.
constexpr const ViewSideEntry* FindViewSideByCommand(CommandId command)
{
  return FindOrNull(viewSides, command, &ViewSideEntry::command);
}

}  // namespace hullwright
