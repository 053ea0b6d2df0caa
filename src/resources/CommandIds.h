#pragma once

#include <optional>

namespace hullwright {

/// A command by the number under which menus, toolbars, settings and scripts know it.
enum class CommandId : int {
  None = 0,  ///< no command: a separator where commands stand in a row
  Customize = 126,
  ImportDxf = 32772,
  Scale = 32775,
  MirrorVertically = 32776,
  MirrorHorizontally = 32777,
  RotateLeft = 32778,
  RotateRight = 32779,
  Offsets = 32780,
  Move = 32781,
  ToggleGrid = 32782,
  ToggleSnap = 32783,
  CursorZoomIn = 32784,
  CursorZoomOut = 32785,
  ShowAll = 32786,
  CursorMove = 32787,
  DrawPolyline = 32788,
  AddVertex = 32789,  ///< "Add Point" in the tree
  MenuZoomIn = 32790,
  EditVertex = 32791,  ///< "Edit Point" in the tree
  MenuZoomOut = 32792,
  MenuCenter = 32793,
  RemovePolyline = 32794,
  RemoveAllPolylines = 32795,
  AddPolyline = 32796,
  ZoomPolyline = 32797,
  RemoveVertex = 32798,  ///< "Remove Point" in the tree
  ViewRight = 32802,
  ViewLeft = 32803,
  ViewTop = 32804,
  ViewBottom = 32805,
  ViewFront = 32806,
  ViewRear = 32807,
  SelectView = 32808,  ///< placeholder of the side drop-down on the toolbar
  AddAnchor = 32815,
  RemoveAnchor = 32816,
  ModifyAnchor = 32817,
  Grid = 32818,
  Units = 32819,

  FileNew = 57600,
  FileOpen = 57601,
  FileSave = 57603,
  FileSaveAs = 57604,
  FilePrint = 57607,
  RecentFile = 57616,
  EditCopy = 57634,
  EditCut = 57635,
  EditPaste = 57637,
  EditUndo = 57643,
  EditRedo = 57644,
  About = 57664,
  Exit = 57665,
  NextPane = 57680,
  PreviousPane = 57681,
  ViewToolbars = 59392,  ///< placeholder of the list of toolbars and panes
  ViewStatusBar = 59393,
};

/// A look of the program by its number in the settings, which is also that of its command. The
/// settings may hold any number here.
enum class Look : int {
  Windows2000 = 205,
  OfficeXp = 206,
  WindowsXp = 207,
  Office2003 = 208,
  VisualStudio2005 = 209,
  VisualStudio2008 = 210,
  Blue = 215,
  Black = 216,
  Silver = 217,
  Aqua = 218,
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
