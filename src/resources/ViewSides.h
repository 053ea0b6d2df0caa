#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "model/ViewSide.h"
#include "resources/CommandIds.h"

namespace hullwright {

/// A side that can be in view, with the command that selects it.
struct ViewSideEntry {
  std::int32_t code;
  int command;
  std::string_view name;  ///< lower case, as command lines and file names spell it
};

inline constexpr std::array<ViewSideEntry, 6> viewSides = {{
    {ViewSide::Top, Command::ViewTop, "top"},
    {ViewSide::Bottom, Command::ViewBottom, "bottom"},
    {ViewSide::Right, Command::ViewRight, "right"},
    {ViewSide::Left, Command::ViewLeft, "left"},
    {ViewSide::Front, Command::ViewFront, "front"},
    {ViewSide::Rear, Command::ViewRear, "rear"},
}};

/// The side of a code; null for a code of no single side.
constexpr const ViewSideEntry* FindViewSide(std::int32_t code)
{
  const auto* const found = std::ranges::find(viewSides, code, &ViewSideEntry::code);
  return found == viewSides.end() ? nullptr : found;
}

/// The side that a command selects; null for any other command.
constexpr const ViewSideEntry* FindViewSideByCommand(int command)
{
  const auto* const found = std::ranges::find(viewSides, command, &ViewSideEntry::command);
  return found == viewSides.end() ? nullptr : found;
}

}  // namespace hullwright
