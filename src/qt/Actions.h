#pragma once

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <functional>
#include <map>
#include <span>

#include "resources/Commands.h"
#include "resources/Menus.h"

class QMenuBar;

namespace hullwright {

/// The actions of all commands, made from the resource tables: texts, prompts, icons and keys. An
/// action runs its command through one function.
class Actions : public QObject {
public:
  Actions(QWidget* window, std::function<void(CommandId)> run);

  /// The action of a command; made on first use.
  QAction* Get(CommandId command);

  /// Fills a menu bar or a menu from its rows, and hands each menu that it fills to `onMenu`.
  void FillMenuBar(QMenuBar& bar, std::span<const MenuItem> rows);
  void FillMenu(QMenu& menu, std::span<const MenuItem> rows);

  /// Calls `visit` with each command and its action.
  void ForEach(const std::function<void(CommandId, QAction&)>& visit);

  /// Draws the icons anew in the window's palette.
  void RefreshIcons();

  std::function<void(QMenu&)> onMenu;

private:
  void AddEntry(QMenu& menu, CommandId command);
  void SetKeys(const CommandEntry& command, QAction& action);

  QWidget* window_;
  QActionGroup* looks_;  ///< one of them is current, or none that the menu shows
  std::function<void(CommandId)> run_;
  std::map<CommandId, QAction*> actions_;
};

/// A label of the resources on one line, with a blank where a carriage return marks its line break.
QString OneLine(std::u16string_view label);

/// The same label on two lines.
QString TwoLines(std::u16string_view label);

/// A command's label with its key, and below it what the command does.
QString ToolTip(const CommandEntry& command);

}  // namespace hullwright
