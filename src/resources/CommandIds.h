#pragma once

#include <optional>

namespace hullwright {

/// A command by the number under which menus, toolbars, settings and scripts know it.
enum class CommandId : int {
  None = 0,  ///< no command: a separator where commands stand in a row
#define COMMAND(name, number, ...) name = (number),
#include "resources/Commands.def"
};

/// A look of the program by its number in the settings, which is also that of its command. The
/// settings may hold any number here.
enum class Look : int {
#define LOOK(name, number, text) name = (number),
#include "resources/Commands.def"
  Windows7 = 219,  ///< in no menu
};

inline constexpr Look firstLook = Look::Windows2000;
inline constexpr Look lastLook = Look::Windows7;

constexpr CommandId CommandOf(Look look) { return CommandId{static_cast<int>(look)}; }

/// The look that a command selects; the numbers between the looks count as such, too.
constexpr std::optional<Look> LookOf(CommandId command)
{
  if (command < CommandOf(firstLook) || command > CommandOf(lastLook)) return std::nullopt;
  return Look{static_cast<int>(command)};
}

}  // namespace hullwright
