#include "resources/Commands.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "base/FindOrNull.h"
#include "resources/Menus.h"
#include "resources/ToolBarButtons.h"

namespace hullwright {
namespace {

constexpr std::array commands = std::to_array<CommandEntry>({
#define COMMAND(name, number, ...) {.id = CommandId::name, __VA_ARGS__},
#define LOOK(name, number, label) {.id = CommandOf(Look::name), .text = (label)},
#include "resources/Commands.def"
});

constexpr bool EachIdOnce()
{
  for (std::size_t i = 0; i < commands.size(); ++i) {
    for (std::size_t j = i + 1; j < commands.size(); ++j) {
      if (commands[i].id == commands[j].id) return false;
    }
  }
  return true;
}
static_assert(EachIdOnce());

constexpr bool EachKeyOnce()
{
  std::vector<std::string_view> seen;
  for (const CommandEntry& command : commands) {
    for (const std::string_view key : {command.key, command.otherKey}) {
      if (key.empty()) continue;
      if (std::ranges::find(seen, key) != seen.end()) return false;
      seen.push_back(key);
    }
  }
  return true;
}
static_assert(EachKeyOnce());

/// Whether each entry of the menus and each button has its row, with a text where one is shown.
constexpr bool EachIsKnown(auto rows, auto idOf, bool needsText)
{
  return std::ranges::all_of(rows, [&](const auto& row) {
    const CommandId id = idOf(row);
    const auto found = std::ranges::find(commands, id, &CommandEntry::id);
    return id == CommandId::None ||
           (found != commands.end() && !(needsText && found->text.empty()));
  });
}
static_assert(EachIsKnown(
    mainMenu, [](const MenuItem& row) { return row.id; }, true));
static_assert(EachIsKnown(
    viewMenu, [](const MenuItem& row) { return row.id; }, true));
static_assert(EachIsKnown(
    contextMenu, [](const ContextMenuRow& row) { return row.id; }, true));
static_assert(EachIsKnown(mainToolBar, std::identity(), false));
static_assert(EachIsKnown(smallToolBar, std::identity(), false));
static_assert(std::ranges::all_of(treeMenus, [](const TreeMenu& menu) {
  return EachIsKnown(menu.entries, std::identity(), true);
}));

}  // namespace

std::span<const CommandEntry> Commands() { return commands; }

const CommandEntry* FindCommand(CommandId id)
{
  return FindOrNull(commands, id, &CommandEntry::id);
}

std::u16string_view StatusText(const CommandEntry& command)
{
  return command.prompt.substr(0, command.prompt.find(u'\n'));
}

std::u16string_view TooltipText(const CommandEntry& command)
{
  const std::size_t end = command.prompt.find(u'\n');
  return end == std::u16string_view::npos ? std::u16string_view() : command.prompt.substr(end + 1);
}

std::u16string_view MenuText(CommandId id)
{
  const CommandEntry* const entry = FindCommand(id);
  return entry == nullptr ? std::u16string_view() : entry->text;
}

std::u16string_view TreeMenuText(CommandId id)
{
  const CommandEntry* const entry = FindCommand(id);
  return entry == nullptr || entry->treeText.empty() ? MenuText(id) : entry->treeText;
}

}  // namespace hullwright
