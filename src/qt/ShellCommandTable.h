#pragma once

#include <algorithm>
#include <array>

#include "app/DesignCommandTable.h"
#include "qt/Busy.h"
#include "qt/MainWindow.h"
#include "resources/Menus.h"
#include "resources/ToolBarButtons.h"
#include "view/ViewCommandTable.h"

namespace hullwright {

/// The commands that the window itself carries out, a row each.
struct ShellCommandTable {
  using Window = MainWindow;

  static void Nothing(Window&) {}
  static void Save(Window& window)
  {
    ShowBusy();
    window.documents_.Save();
  }
  static CommandState HasRecentFiles(const Window& window)
  {
    return {.enabled = !window.documents_.RecentFiles().empty()};
  }
  static CommandState ShowsStatusBar(const Window& window)
  {
    return Checked(window.ShowsStatusBar());
  }

  static constexpr auto rows = std::to_array<CommandHandler<Window>>({
      {CommandId::FileNew, [](Window& window) { window.documents_.New(); }},
      {CommandId::FileOpen, [](Window& window) { window.documents_.Open(); }},
      {CommandId::FileSave, Save},
      {CommandId::FileSaveAs, [](Window& window) { window.documents_.SaveAs(); }},
      {CommandId::Exit, [](Window& window) { window.close(); }},
      {CommandId::Customize, [](Window& window) { window.Customize(); }},
      {CommandId::NextPane, [](Window& window) { window.GoToNextPane(); }},
      {CommandId::PreviousPane, [](Window& window) { window.GoToNextPane(); }},
      {CommandId::ViewStatusBar, [](Window& window) { window.ToggleStatusBar(); }, ShowsStatusBar},
      // These open a menu.
      {CommandId::ViewToolbars, Nothing},
      {CommandId::RecentFile, Nothing, HasRecentFiles},
  });

  /// Commands that nothing carries out, and which are never enabled.
  static constexpr std::array unhandled = {
      CommandId::EditUndo,  CommandId::EditRedo,  CommandId::EditCut,   CommandId::EditCopy,
      CommandId::EditPaste, CommandId::FilePrint, CommandId::SelectView};

  static constexpr bool IsSettled(CommandId id)
  {
    return id == CommandId::None || LookOf(id) || HasHandler(rows, id) ||
           HasHandler(ViewCommandTable::rows, id) || HasHandler(DesignCommandTable::rows, id) ||
           std::ranges::find(unhandled, id) != unhandled.end();
  }
};

static_assert(std::ranges::all_of(mainMenu, [](const MenuItem& row) {
  return ShellCommandTable::IsSettled(row.id);
}));
static_assert(std::ranges::all_of(viewMenu, [](const MenuItem& row) {
  return ShellCommandTable::IsSettled(row.id);
}));
static_assert(std::ranges::all_of(mainToolBar, ShellCommandTable::IsSettled));
static_assert(std::ranges::all_of(smallToolBar, ShellCommandTable::IsSettled));

}  // namespace hullwright
