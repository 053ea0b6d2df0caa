#pragma once

/// Numbers of commands, menus, toolbars, panes and strings, as menus, accelerators and settings
/// name them.
namespace hullwright {

namespace Command {
inline constexpr int Customize = 126;
inline constexpr int LookFirst = 205;
inline constexpr int LookWindows2000 = 205;
inline constexpr int LookOfficeXp = 206;
inline constexpr int LookWindowsXp = 207;
inline constexpr int LookOffice2003 = 208;
inline constexpr int LookVisualStudio2005 = 209;
inline constexpr int LookVisualStudio2008 = 210;
inline constexpr int LookBlue = 215;
inline constexpr int LookBlack = 216;
inline constexpr int LookSilver = 217;
inline constexpr int LookAqua = 218;
inline constexpr int LookLast = 219;

inline constexpr int ImportDxf = 32772;
inline constexpr int Scale = 32775;
inline constexpr int MirrorVertically = 32776;
inline constexpr int MirrorHorizontally = 32777;
inline constexpr int RotateLeft = 32778;
inline constexpr int RotateRight = 32779;
inline constexpr int Offsets = 32780;
inline constexpr int Move = 32781;
inline constexpr int ToggleGrid = 32782;
inline constexpr int ToggleSnap = 32783;
inline constexpr int CursorZoomIn = 32784;
inline constexpr int CursorZoomOut = 32785;
inline constexpr int ShowAll = 32786;
inline constexpr int CursorMove = 32787;
inline constexpr int DrawPolyline = 32788;
inline constexpr int AddVertex = 32789;  ///< "Add Point" in the tree
inline constexpr int MenuZoomIn = 32790;
inline constexpr int EditVertex = 32791;  ///< "Edit Point" in the tree
inline constexpr int MenuZoomOut = 32792;
inline constexpr int MenuCenter = 32793;
inline constexpr int RemovePolyline = 32794;
inline constexpr int RemoveAllPolylines = 32795;
inline constexpr int AddPolyline = 32796;
inline constexpr int ZoomPolyline = 32797;
inline constexpr int RemoveVertex = 32798;  ///< "Remove Point" in the tree
inline constexpr int ViewRight = 32802;
inline constexpr int ViewLeft = 32803;
inline constexpr int ViewTop = 32804;
inline constexpr int ViewBottom = 32805;
inline constexpr int ViewFront = 32806;
inline constexpr int ViewRear = 32807;
inline constexpr int SelectView = 32808;  ///< placeholder of the side drop-down on the toolbar
inline constexpr int AddAnchor = 32815;
inline constexpr int RemoveAnchor = 32816;
inline constexpr int ModifyAnchor = 32817;
inline constexpr int Grid = 32818;
inline constexpr int Units = 32819;

inline constexpr int FileNew = 57600;
inline constexpr int FileOpen = 57601;
inline constexpr int FileSave = 57603;
inline constexpr int FileSaveAs = 57604;
inline constexpr int FilePrint = 57607;
inline constexpr int RecentFile = 57616;
inline constexpr int EditCopy = 57634;
inline constexpr int EditCut = 57635;
inline constexpr int EditPaste = 57637;
inline constexpr int EditUndo = 57643;
inline constexpr int EditRedo = 57644;
inline constexpr int About = 57664;
inline constexpr int Exit = 57665;
inline constexpr int NextPane = 57680;
inline constexpr int PreviousPane = 57681;
inline constexpr int ViewToolbars = 59392;  ///< placeholder of the list of toolbars and panes
inline constexpr int ViewStatusBar = 59393;
}  // namespace Command

namespace Pane {
inline constexpr int Prompt = 0;
inline constexpr int Coordinates = 61193;
inline constexpr int Units = 61194;
}  // namespace Pane

}  // namespace hullwright
