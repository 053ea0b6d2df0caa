#pragma once

#include <span>
#include <string_view>

#include "resources/CommandIds.h"

namespace hullwright {

/// What a command shows beside its menu text: the icon's name, and the prompt, which is the status
/// bar's text, a line feed, and the tooltip, in which a carriage return marks the line break of the
/// toolbar label.
struct CommandEntry {
  int id;
  std::string_view icon;
  std::u16string_view prompt;
};

/// All commands, each id once.
std::span<const CommandEntry> Commands();

/// The entry of a command; null for one that the table lacks.
const CommandEntry* FindCommand(int id);

/// The two texts that stand in a prompt.
std::u16string_view StatusText(const CommandEntry& command);
std::u16string_view TooltipText(const CommandEntry& command);  ///< may hold a carriage return

}  // namespace hullwright
