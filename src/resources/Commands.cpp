#include "resources/Commands.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "resources/Menus.h"
#include "resources/ToolBars.h"

namespace hullwright {
namespace {

constexpr std::array commands = std::to_array<CommandEntry>({
    {.id = CommandId::Customize,
     .prompt = u"Choose the buttons of the toolbars\nCustomize...",
     .icon = "customize"},
    {.id = CommandId::FileNew,
     .text = u"&New Design",
     .prompt = u"Begin a new, empty design\nNew\rDesign",
     .icon = "file-new",
     .key = "Ctrl+N"},
    {.id = CommandId::FileOpen,
     .text = u"&Open Design...",
     .prompt = u"Open a design file\nOpen\rDesign",
     .icon = "file-open",
     .key = "Ctrl+O"},
    {.id = CommandId::FileSave,
     .text = u"&Save Design",
     .prompt = u"Save the design\nSave\rDesign",
     .icon = "file-save",
     .key = "Ctrl+S"},
    {.id = CommandId::FileSaveAs,
     .text = u"Save Design &As...",
     .prompt = u"Save the design under another name\nSave As",
     .icon = "file-save-as"},
    {.id = CommandId::FilePrint,
     .prompt = u"Print the design\nPrint",
     .icon = "print",
     .key = "Ctrl+P"},
    {.id = CommandId::RecentFile, .text = u"Recent File", .prompt = u"Open this design"},
    {.id = CommandId::Exit,
     .text = u"E&xit",
     .prompt = u"Quit the program; asks to save a modified design\nExit"},
    {.id = CommandId::ImportDxf,
     .text = u"Import DXF File...",
     .prompt = u"Import shape(s) from an AutoCAD DXF file\nImport\rDXF",
     .icon = "import-dxf"},
    {.id = CommandId::ViewStatusBar,
     .text = u"&Status Bar",
     .prompt = u"Show or hide the status bar\nStatus Bar"},
    {.id = CommandId::EditUndo,
     .text = u"&Undo",
     .prompt = u"Undo the last action\nUndo",
     .icon = "undo",
     .key = "Ctrl+Z",
     .otherKey = "Alt+Backspace"},
    {.id = CommandId::EditRedo,
     .text = u"&Redo",
     .prompt = u"Redo the last action undone\nRedo",
     .icon = "redo",
     .shownKey = "Ctrl+Y"},
    {.id = CommandId::EditCut,
     .prompt = u"Cut the selection\nCut",
     .icon = "cut",
     .key = "Ctrl+X",
     .otherKey = "Shift+Del"},
    {.id = CommandId::EditCopy,
     .prompt = u"Copy the selection\nCopy",
     .icon = "copy",
     .key = "Ctrl+C",
     .otherKey = "Ctrl+Ins"},
    {.id = CommandId::EditPaste,
     .prompt = u"Paste from the clipboard\nPaste",
     .icon = "paste",
     .key = "Ctrl+V",
     .otherKey = "Shift+Ins"},
    {.id = CommandId::MirrorVertically,
     .text = u"Mirror Vertically",
     .prompt = u"Mirror design vertical\nMirror\rVert",
     .icon = "mirror-vertical"},
    {.id = CommandId::MirrorHorizontally,
     .text = u"Mirror Horizontally",
     .prompt = u"Mirror design horizontal\nMirror\rHorz",
     .icon = "mirror-horizontal"},
    {.id = CommandId::RotateRight,
     .text = u"Rotate Right...",
     .prompt = u"Rotate right\nRotate\rRight",
     .icon = "rotate-right"},
    {.id = CommandId::RotateLeft,
     .text = u"Rotate Left...",
     .prompt = u"Rotate left\nRotate\rLeft",
     .icon = "rotate-left"},
    {.id = CommandId::Scale,
     .text = u"Scale...",
     .prompt = u"Scale design\nScale\rDesign",
     .icon = "scale"},
    {.id = CommandId::Move,
     .text = u"Move...",
     .prompt = u"Move design in a specified direction\nMove\rDesign",
     .icon = "move-design"},
    {.id = CommandId::Offsets,
     .text = u"Offsets...",
     .prompt = u"Modify offsets for devices\nModify\rOffsets",
     .icon = "offsets"},
    {.id = CommandId::Grid, .text = u"Grid..."},
    {.id = CommandId::Units,
     .text = u"&Units...",
     .prompt = u"Switch design units\nSwitch Units",
     .icon = "units"},
    {.id = CommandId::ToggleGrid, .prompt = u"Toggle grid\nToggle\rGrid", .icon = "grid"},
    {.id = CommandId::ToggleSnap, .prompt = u"Toggle snap to grid\nToggle\rSnap", .icon = "snap"},
    {.id = CommandId::CursorZoomIn,
     .text = u"Zoom &In",
     .prompt = u"Cursor zooms in\nZoom\rIn",
     .icon = "zoom-in"},
    {.id = CommandId::CursorZoomOut,
     .text = u"Zoom &Out",
     .prompt = u"Cursor zooms out\nZoom\rOut",
     .icon = "zoom-out"},
    {.id = CommandId::CursorMove,
     .text = u"&Move",
     .prompt = u"Cursor moves vessel\nMove\rDesign",
     .icon = "cursor-move"},
    {.id = CommandId::ShowAll, .prompt = u"Show all shapes\nShow\rAll", .icon = "zoom-all"},
    {.id = CommandId::DrawPolyline,
     .text = u"Draw &Polyline",
     .prompt = u"Draw new shape\nDraw\rShape",
     .icon = "draw-polyline"},
    {.id = CommandId::SelectView,
     .prompt = u"Select the current view mode\nView\rMode",
     .icon = "view-top"},
    {.id = CommandId::ViewTop, .text = u"Top", .icon = "view-top"},
    {.id = CommandId::ViewBottom, .text = u"Bottom", .icon = "view-bottom"},
    {.id = CommandId::ViewRight, .text = u"Right", .icon = "view-right"},
    {.id = CommandId::ViewLeft, .text = u"Left", .icon = "view-left"},
    {.id = CommandId::ViewFront, .text = u"Front", .icon = "view-front"},
    {.id = CommandId::ViewRear, .text = u"Rear", .icon = "view-rear"},
    {.id = CommandId::MenuZoomIn, .text = u"Zoom &In", .icon = "zoom-in"},
    {.id = CommandId::MenuZoomOut, .text = u"Zoom &Out", .icon = "zoom-out"},
    {.id = CommandId::MenuCenter, .text = u"Ce&nter", .icon = "zoom-center"},
    {.id = CommandId::AddVertex,
     .text = u"&Add Vertex...",
     .icon = "vertex-add",
     .treeText = u"&Add Point..."},
    {.id = CommandId::EditVertex,
     .text = u"&Edit Vertex...",
     .icon = "vertex-edit",
     .treeText = u"&Edit Point..."},
    {.id = CommandId::RemoveVertex,
     .text = u"&Remove Vertex...",
     .icon = "vertex-remove",
     .treeText = u"&Remove Point..."},
    {.id = CommandId::AddPolyline, .text = u"&Add Polyline...", .icon = "polyline-add"},
    {.id = CommandId::RemovePolyline, .text = u"&Remove Polyline...", .icon = "polyline-remove"},
    {.id = CommandId::RemoveAllPolylines,
     .text = u"&Remove All Polylines...",
     .icon = "polyline-remove-all"},
    {.id = CommandId::ZoomPolyline, .text = u"&Zoom Polyline...", .icon = "polyline-zoom"},
    {.id = CommandId::AddAnchor,
     .text = u"&Add Anchor",
     .icon = "anchor-add",
     .treeText = u"&Add Anchor..."},
    {.id = CommandId::RemoveAnchor, .text = u"&Remove Anchor...", .icon = "anchor-remove"},
    {.id = CommandId::ModifyAnchor, .text = u"&Modify Anchor...", .icon = "anchor-edit"},
    {.id = CommandId::About,
     .text = u"&About Sondaris...",
     .prompt = u"Tell the program's version and licence\nAbout",
     .icon = "about"},
    {.id = CommandId::ViewToolbars, .text = u"&Toolbars and Docking Windows"},
    {.id = CommandId::NextPane, .key = "F6"},
    {.id = CommandId::PreviousPane, .key = "Shift+F6"},
    {.id = CommandOf(Look::Windows2000), .text = u"Windows &2000"},
    {.id = CommandOf(Look::OfficeXp), .text = u"Office &XP"},
    {.id = CommandOf(Look::WindowsXp), .text = u"&Windows XP"},
    {.id = CommandOf(Look::Office2003), .text = u"Office 200&3"},
    {.id = CommandOf(Look::VisualStudio2005), .text = u"Visual Studio 200&5"},
    {.id = CommandOf(Look::VisualStudio2008), .text = u"Visual Studio 200&8"},
    {.id = CommandOf(Look::Blue), .text = u"&Blue Style"},
    {.id = CommandOf(Look::Black), .text = u"B&lack Style"},
    {.id = CommandOf(Look::Silver), .text = u"&Silver Style"},
    {.id = CommandOf(Look::Aqua), .text = u"&Aqua Style"},
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
