#include "resources/Commands.h"

#include <algorithm>
#include <array>

namespace hullwright {
namespace {

constexpr std::array commands = std::to_array<CommandEntry>({
    {Command::Customize, "customize", u"Choose the buttons of the toolbars\nCustomize..."},
    {Command::FileNew, "file-new", u"Begin a new, empty design\nNew\rDesign"},
    {Command::FileOpen, "file-open", u"Open a design file\nOpen\rDesign"},
    {Command::FileSave, "file-save", u"Save the design\nSave\rDesign"},
    {Command::FileSaveAs, "file-save-as", u"Save the design under another name\nSave As"},
    {Command::FilePrint, "print", u"Print the design\nPrint"},
    {Command::RecentFile, "", u"Open this design"},
    {Command::Exit, "", u"Quit the program; asks to save a modified design\nExit"},
    {Command::ImportDxf, "import-dxf", u"Import shape(s) from an AutoCAD DXF file\nImport\rDXF"},
    {Command::ViewStatusBar, "", u"Show or hide the status bar\nStatus Bar"},
    {Command::EditUndo, "undo", u"Undo the last action\nUndo"},
    {Command::EditRedo, "redo", u"Redo the last action undone\nRedo"},
    {Command::EditCut, "cut", u"Cut the selection\nCut"},
    {Command::EditCopy, "copy", u"Copy the selection\nCopy"},
    {Command::EditPaste, "paste", u"Paste from the clipboard\nPaste"},
    {Command::MirrorVertically, "mirror-vertical", u"Mirror design vertical\nMirror\rVert"},
    {Command::MirrorHorizontally, "mirror-horizontal", u"Mirror design horizontal\nMirror\rHorz"},
    {Command::RotateRight, "rotate-right", u"Rotate right\nRotate\rRight"},
    {Command::RotateLeft, "rotate-left", u"Rotate left\nRotate\rLeft"},
    {Command::Scale, "scale", u"Scale design\nScale\rDesign"},
    {Command::Move, "move-design", u"Move design in a specified direction\nMove\rDesign"},
    {Command::Offsets, "offsets", u"Modify offsets for devices\nModify\rOffsets"},
    {Command::Grid, "", u""},
    {Command::Units, "units", u"Switch design units\nSwitch Units"},
    {Command::ToggleGrid, "grid", u"Toggle grid\nToggle\rGrid"},
    {Command::ToggleSnap, "snap", u"Toggle snap to grid\nToggle\rSnap"},
    {Command::CursorZoomIn, "zoom-in", u"Cursor zooms in\nZoom\rIn"},
    {Command::CursorZoomOut, "zoom-out", u"Cursor zooms out\nZoom\rOut"},
    {Command::CursorMove, "cursor-move", u"Cursor moves vessel\nMove\rDesign"},
    {Command::ShowAll, "zoom-all", u"Show all shapes\nShow\rAll"},
    {Command::DrawPolyline, "draw-polyline", u"Draw new shape\nDraw\rShape"},
    {Command::SelectView, "view-top", u"Select the current view mode\nView\rMode"},
    {Command::ViewTop, "view-top", u""},
    {Command::ViewBottom, "view-bottom", u""},
    {Command::ViewRight, "view-right", u""},
    {Command::ViewLeft, "view-left", u""},
    {Command::ViewFront, "view-front", u""},
    {Command::ViewRear, "view-rear", u""},
    {Command::MenuZoomIn, "zoom-in", u""},
    {Command::MenuZoomOut, "zoom-out", u""},
    {Command::MenuCenter, "zoom-center", u""},
    {Command::AddVertex, "vertex-add", u""},
    {Command::EditVertex, "vertex-edit", u""},
    {Command::RemoveVertex, "vertex-remove", u""},
    {Command::AddPolyline, "polyline-add", u""},
    {Command::RemovePolyline, "polyline-remove", u""},
    {Command::RemoveAllPolylines, "polyline-remove-all", u""},
    {Command::ZoomPolyline, "polyline-zoom", u""},
    {Command::AddAnchor, "anchor-add", u""},
    {Command::RemoveAnchor, "anchor-remove", u""},
    {Command::ModifyAnchor, "anchor-edit", u""},
    {Command::About, "about", u"Tell the program's version and licence\nAbout"},
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

}  // namespace

std::span<const CommandEntry> Commands() { return commands; }

const CommandEntry* FindCommand(int id)
{
  const auto* const found = std::ranges::find(commands, id, &CommandEntry::id);
  return found == commands.end() ? nullptr : found;
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

}  // namespace hullwright
