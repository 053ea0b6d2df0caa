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

/// One row of a menu. Texts mark the access key with '&' and set the shortcut's name off with a
/// tab.
struct MenuItem {
  MenuRow row;
  int id = 0;
  std::u16string_view text = {};
};

/// The menu bar.
inline constexpr auto mainMenu = std::to_array<MenuItem>({
    {MenuRow::Menu, 0, u"&File"},
    {MenuRow::Entry, Command::FileNew, u"&New Design\tCtrl+N"},
    {MenuRow::Entry, Command::FileOpen, u"&Open Design...\tCtrl+O"},
    {MenuRow::Entry, Command::FileSave, u"&Save Design\tCtrl+S"},
    {MenuRow::Entry, Command::FileSaveAs, u"Save Design &As..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::ImportDxf, u"Import DXF File..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::RecentFile, u"Recent File"},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::Exit, u"E&xit"},

    {MenuRow::Menu, 0, u"&View"},
    {MenuRow::Entry, Command::ViewToolbars, u"&Toolbars and Docking Windows"},
    {MenuRow::Entry, Command::ViewStatusBar, u"&Status Bar"},
    {MenuRow::SubMenu, 0, u"&Application Look"},
    {MenuRow::Entry, Command::LookWindows2000, u"Windows &2000"},
    {MenuRow::Entry, Command::LookOfficeXp, u"Office &XP"},
    {MenuRow::Entry, Command::LookWindowsXp, u"&Windows XP"},
    {MenuRow::Entry, Command::LookOffice2003, u"Office 200&3"},
    {MenuRow::Entry, Command::LookVisualStudio2005, u"Visual Studio 200&5"},
    {MenuRow::Entry, Command::LookVisualStudio2008, u"Visual Studio 200&8"},
    {MenuRow::SubMenu, 0, u"Office 200&7"},
    {MenuRow::Entry, Command::LookBlue, u"&Blue Style"},
    {MenuRow::Entry, Command::LookBlack, u"B&lack Style"},
    {MenuRow::Entry, Command::LookSilver, u"&Silver Style"},
    {MenuRow::Entry, Command::LookAqua, u"&Aqua Style"},
    {MenuRow::EndSubMenu},
    {MenuRow::EndSubMenu},

    {MenuRow::Menu, 0, u"&Edit"},
    {MenuRow::Entry, Command::EditUndo, u"&Undo\tCtrl+Z"},
    {MenuRow::Entry, Command::EditRedo, u"&Redo\tCtrl+Y"},

    {MenuRow::Menu, 0, u"Modify"},
    {MenuRow::Entry, Command::MirrorVertically, u"Mirror Vertically"},
    {MenuRow::Entry, Command::MirrorHorizontally, u"Mirror Horizontally"},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::RotateRight, u"Rotate Right..."},
    {MenuRow::Entry, Command::RotateLeft, u"Rotate Left..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::Scale, u"Scale..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::Move, u"Move..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::Offsets, u"Offsets..."},

    {MenuRow::Menu, 0, u"&Options"},
    {MenuRow::Entry, Command::Grid, u"Grid..."},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::Units, u"&Units..."},

    {MenuRow::Menu, 0, u"Cursor"},
    {MenuRow::Entry, Command::CursorZoomIn, u"Zoom &In"},
    {MenuRow::Entry, Command::CursorZoomOut, u"Zoom &Out"},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::CursorMove, u"&Move"},
    {MenuRow::Separator},
    {MenuRow::Entry, Command::DrawPolyline, u"Draw &Polyline"},

    {MenuRow::Menu, 0, u"&Help"},
    {MenuRow::Entry, Command::About, u"&About Sondaris..."},
});

/// The menu of the side drop-down.
inline constexpr auto viewMenu = std::to_array<MenuItem>({
    {MenuRow::Entry, Command::ViewTop, u"Top"},
    {MenuRow::Entry, Command::ViewBottom, u"Bottom"},
    {MenuRow::Entry, Command::ViewFront, u"Front"},
    {MenuRow::Entry, Command::ViewRear, u"Rear"},
    {MenuRow::Entry, Command::ViewRight, u"Right"},
    {MenuRow::Entry, Command::ViewLeft, u"Left"},
});

/// Title of the side drop-down, a carriage return marking its line break.
inline constexpr std::u16string_view viewButtonText = u"Select\rView";

}  // namespace hullwright
