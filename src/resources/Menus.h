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
    {MenuRow::Menu, CommandId::None, u"&File"},
    {MenuRow::Entry, CommandId::FileNew},
    {MenuRow::Entry, CommandId::FileOpen},
    {MenuRow::Entry, CommandId::FileSave},
    {MenuRow::Entry, CommandId::FileSaveAs},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::ImportDxf},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::RecentFile},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::Exit},

    {MenuRow::Menu, CommandId::None, u"&View"},
    {MenuRow::Entry, CommandId::ViewToolbars},
    {MenuRow::Entry, CommandId::ViewStatusBar},
    {MenuRow::SubMenu, CommandId::None, u"&Application Look"},
    {MenuRow::Entry, CommandOf(Look::Windows2000)},
    {MenuRow::Entry, CommandOf(Look::OfficeXp)},
    {MenuRow::Entry, CommandOf(Look::WindowsXp)},
    {MenuRow::Entry, CommandOf(Look::Office2003)},
    {MenuRow::Entry, CommandOf(Look::VisualStudio2005)},
    {MenuRow::Entry, CommandOf(Look::VisualStudio2008)},
    {MenuRow::SubMenu, CommandId::None, u"Office 200&7"},
    {MenuRow::Entry, CommandOf(Look::Blue)},
    {MenuRow::Entry, CommandOf(Look::Black)},
    {MenuRow::Entry, CommandOf(Look::Silver)},
    {MenuRow::Entry, CommandOf(Look::Aqua)},
    {MenuRow::EndSubMenu},
    {MenuRow::EndSubMenu},

    {MenuRow::Menu, CommandId::None, u"&Edit"},
    {MenuRow::Entry, CommandId::EditUndo},
    {MenuRow::Entry, CommandId::EditRedo},

    {MenuRow::Menu, CommandId::None, u"Modify"},
    {MenuRow::Entry, CommandId::MirrorVertically},
    {MenuRow::Entry, CommandId::MirrorHorizontally},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::RotateRight},
    {MenuRow::Entry, CommandId::RotateLeft},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::Scale},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::Move},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::Offsets},

    {MenuRow::Menu, CommandId::None, u"&Options"},
    {MenuRow::Entry, CommandId::Grid},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::Units},

    {MenuRow::Menu, CommandId::None, u"Cursor"},
    {MenuRow::Entry, CommandId::CursorZoomIn},
    {MenuRow::Entry, CommandId::CursorZoomOut},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::CursorMove},
    {MenuRow::Separator},
    {MenuRow::Entry, CommandId::DrawPolyline},

    {MenuRow::Menu, CommandId::None, u"&Help"},
    {MenuRow::Entry, CommandId::About},
});

/// The menu of the side drop-down.
inline constexpr auto viewMenu = std::to_array<MenuItem>({
    {MenuRow::Entry, CommandId::ViewTop},
    {MenuRow::Entry, CommandId::ViewBottom},
    {MenuRow::Entry, CommandId::ViewFront},
    {MenuRow::Entry, CommandId::ViewRear},
    {MenuRow::Entry, CommandId::ViewRight},
    {MenuRow::Entry, CommandId::ViewLeft},
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
    {CommandId::MenuZoomIn, Offered::Always},
    {CommandId::MenuZoomOut, Offered::Always},
    {CommandId::MenuCenter, Offered::Always},
    {CommandId::None, Offered::Always},
    {CommandId::EditVertex, Offered::OnHit},
    {CommandId::AddVertex, Offered::OnNoHitOrVertex},
    {CommandId::RemoveVertex, Offered::OnVertex},
    {CommandId::AddAnchor, Offered::OnNoHit},
    {CommandId::RemoveAnchor, Offered::OnAnchor},
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
    {TreeMenuKind::Side, {CommandId::AddPolyline, CommandId::RemoveAllPolylines}},
    {TreeMenuKind::Anchors, {CommandId::AddAnchor}},
    {TreeMenuKind::Polyline,
     {CommandId::AddVertex, CommandId::RemovePolyline, CommandId::ZoomPolyline}},
    {TreeMenuKind::Anchor, {CommandId::RemoveAnchor, CommandId::ModifyAnchor}},
    {TreeMenuKind::Point, {CommandId::EditVertex, CommandId::RemoveVertex}},
});

}  // namespace hullwright
