#pragma once

#include <span>
#include <string>
#include <string_view>

#include "resources/CommandIds.h"

namespace hullwright {

/// All that is shown of a command and the keys that run it.
struct CommandEntry {
  CommandId id;

  /// In menus, with '&' before the access key. A command that stands in no menu has none.
  std::u16string_view text = {};

  /// The status bar's text, a line feed, and the tooltip, in which a carriage return marks the line
  /// break of the toolbar label.
  std::u16string_view prompt = {};

  std::string_view icon = {};

  /// The keys that run the command; menus show the first.
  std::string_view key = {};
  std::string_view otherKey = {};

  /// In the menus of the object tree, where they call it otherwise.
  std::u16string_view treeText = {};

  /// A key that the menu names though it runs nothing.
  std::string_view shownKey = {};
};

/// All commands, each id once.
std::span<const CommandEntry> Commands();

/// The entry of a command; null for one that the table lacks.
const CommandEntry* FindCommand(CommandId id);

/// The two texts that stand in a prompt.
std::u16string_view StatusText(const CommandEntry& command);
std::u16string_view TooltipText(const CommandEntry& command);  ///< may hold a carriage return

/// Text of a command in the menus of bar and view, without its key, and in those of the object
/// tree; empty for a command that the table lacks.
std::u16string_view MenuText(CommandId id);
std::u16string_view TreeMenuText(CommandId id);

}  // namespace hullwright
