#pragma once

#include <algorithm>

#include "base/FindOrNull.h"
#include "resources/CommandIds.h"

namespace hullwright {

/// How a command's menu entry and button look at the moment.
struct CommandState {
  bool enabled = false;
  bool checked = false;
  bool checkable = false;
};

/// How one room carries a command out: what runs it, and how it looks.
template <typename Owner>
struct CommandHandler {
  CommandId id;
  void (*run)(Owner&);
  CommandState (*state)(const Owner&) = [](const Owner&) { return CommandState{.enabled = true}; };
};

/// The state of a command that can be on.
constexpr CommandState Checked(bool on)
{
  return {.enabled = true, .checked = on, .checkable = true};
}

/// Whether a table of handlers has a row for a command.
constexpr bool HasHandler(const auto& handlers, CommandId id)
{
  return std::ranges::any_of(handlers, [id](const auto& row) { return row.id == id; });
}

/// The row of a command in a table of handlers; null for one that the table lacks.
constexpr auto* FindHandler(const auto& handlers, CommandId id)
{
  return FindOrNull(handlers, id, [](const auto& row) { return row.id; });
}

/// Carries a command out by its row; false without one.
bool RunCommand(const auto& handlers, auto& owner, CommandId id)
{
  const auto* const handler = FindHandler(handlers, id);
  if (handler != nullptr) handler->run(owner);
  return handler != nullptr;
}

/// How a command looks at the moment by its row; disabled without one.
CommandState StateOf(const auto& handlers, const auto& owner, CommandId id)
{
  const auto* const handler = FindHandler(handlers, id);
  return handler == nullptr ? CommandState{} : handler->state(owner);
}

}  // namespace hullwright
