#pragma once

#include <array>
#include <string>
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

/// The side of a name; null for any other word.
constexpr const ViewSideEntry* FindViewSideByName(std::string_view name)
{
  return FindOrNull(viewSides, name, &ViewSideEntry::name);
}

/// What a view code is called: the name of its side, `all` for that of every side, and for any
/// other code `other` with its two hexadecimal digits behind.
std::string SideName(ViewSide code, std::string_view all, std::string_view other);

}  // namespace hullwright
