#pragma once

#include <array>
#include <string_view>

#include "resources/CommandIds.h"

namespace hullwright {

enum class MenuRow {
  Menu,     ///< begins a menu of the bar
  SubMenu,  ///< begins a menu inside the current one
  EndSubMenu,
  Entry,
  Separator
};

/// One row of a menu: a command, or the title of a menu that begins here, with '&' before its
/// access key.
struct MenuItem {
  MenuRow row;
  CommandId id = CommandId::None;
  std::u16string_view title = {};
};

/// The menu bar.
inline constexpr auto mainMenu = std::to_array<MenuItem>({
#define MENU_BAR(...) {MenuRow::__VA_ARGS__},
#include "resources/Commands.def"
});

/// The menu of the side drop-down.
inline constexpr auto viewMenu = std::to_array<MenuItem>({
#define SIDE_MENU(...) {MenuRow::__VA_ARGS__},
#include "resources/Commands.def"
});

/// Title of the side drop-down, a carriage return marking its line break.
inline constexpr std::u16string_view viewButtonText = u"Select\rView";

/// When an entry of the design view's context menu is offered, by what lies under the mouse.
enum class Offered { Always, OnHit, OnNoHitOrVertex, OnVertex, OnNoHit, OnAnchor };

/// One row of that menu; without a command it is a separator.
struct ContextMenuRow {
  CommandId id;
  Offered offered;
};

/// The context menu of the design view.
inline constexpr auto contextMenu = std::to_array<ContextMenuRow>({
#define CONTEXT_MENU(...) {__VA_ARGS__},
#include "resources/Commands.def"
});

/// What an item of the object tree is to its context menu.
enum class TreeMenuKind { Side, Anchors, Polyline, Anchor, Point };

/// The context menu of a kind of item.
struct TreeMenu {
  TreeMenuKind kind;
  std::array<CommandId, 3> entries;  ///< CommandId::None where there are fewer
};

/// The context menus of the object tree, by the kind of item.
inline constexpr auto treeMenus = std::to_array<TreeMenu>({
#define TREE_MENU(kind, ...) {kind, {__VA_ARGS__}},
#include "resources/Commands.def"
});

}  // namespace hullwright
