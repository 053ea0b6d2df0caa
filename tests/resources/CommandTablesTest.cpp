#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <span>

#include "base/Code.h"
#include "base/Text.h"
#include "resources/CommandHandler.h"
#include "resources/Commands.h"
#include "resources/Menus.h"
#include "resources/Strings.h"
#include "resources/ToolBarButtons.h"
#include "resources/ViewSides.h"

namespace hullwright {
namespace {

/// What a row shows: the title, or the command's text with the key set off by a tab.
std::u16string TextOf(const MenuItem& item)
{
  if (item.row == MenuRow::Separator) return u"-";
  if (item.row != MenuRow::Entry) return std::u16string(item.title);
  const CommandEntry& command = *FindCommand(item.id);
  const std::string_view key = command.shownKey.empty() ? command.key : command.shownKey;
  std::u16string text(command.text);
  return key.empty() ? text : text + u'\t' + WideFromAscii(key);
}

/// The bar's menus in words: titles, entries with their ids, "-" for a separator; a menu inside
/// ends with a row of its own.
std::vector<std::pair<int, std::u16string>> Rows(std::u16string_view menu)
{
  std::vector<std::pair<int, std::u16string>> rows;
  bool inside = false;
  for (const MenuItem& item : mainMenu) {
    if (item.row == MenuRow::Menu) inside = item.title == menu;
    if (!inside || item.row == MenuRow::Menu) continue;
    rows.emplace_back(NumberOf(item.id), TextOf(item));
  }
  return rows;
}

using MenuRows = std::vector<std::pair<int, std::u16string>>;

TEST(Menus, TheFileMenuHasItsEntriesInOrderWithTheirKeys)
{
  EXPECT_EQ(Rows(u"&File"), (MenuRows{{57600, u"&New Design\tCtrl+N"},
                                      {57601, u"&Open Design...\tCtrl+O"},
                                      {57603, u"&Save Design\tCtrl+S"},
                                      {57604, u"Save Design &As..."},
                                      {0, u"-"},
                                      {32772, u"Import DXF File..."},
                                      {0, u"-"},
                                      {57616, u"Recent File"},
                                      {0, u"-"},
                                      {57665, u"E&xit"}}));
}

TEST(Menus, EditModifyOptionsCursorAndHelpHaveTheirEntriesInOrder)
{
  EXPECT_EQ(Rows(u"Modify"), (MenuRows{{32776, u"Mirror Vertically"},
                                       {32777, u"Mirror Horizontally"},
                                       {0, u"-"},
                                       {32779, u"Rotate Right..."},
                                       {32778, u"Rotate Left..."},
                                       {0, u"-"},
                                       {32775, u"Scale..."},
                                       {0, u"-"},
                                       {32781, u"Move..."},
                                       {0, u"-"},
                                       {32780, u"Offsets..."}}));
  EXPECT_EQ(Rows(u"&Options"), (MenuRows{{32818, u"Grid..."}, {0, u"-"}, {32819, u"&Units..."}}));
  EXPECT_EQ(Rows(u"Cursor"), (MenuRows{{32784, u"Zoom &In"},
                                       {32785, u"Zoom &Out"},
                                       {0, u"-"},
                                       {32787, u"&Move"},
                                       {0, u"-"},
                                       {32788, u"Draw &Polyline"}}));
  EXPECT_EQ(Rows(u"&Edit"), (MenuRows{{57643, u"&Undo\tCtrl+Z"}, {57644, u"&Redo\tCtrl+Y"}}));
  EXPECT_EQ(Rows(u"&Help"), (MenuRows{{57664, u"&About Sondaris..."}}));
}

TEST(Menus, ViewMenuHasTheLooks)
{
  EXPECT_EQ(Rows(u"&View"), (MenuRows{{59392, u"&Toolbars and Docking Windows"},
                                      {59393, u"&Status Bar"},
                                      {0, u"&Application Look"},
                                      {205, u"Windows &2000"},
                                      {206, u"Office &XP"},
                                      {207, u"&Windows XP"},
                                      {208, u"Office 200&3"},
                                      {209, u"Visual Studio 200&5"},
                                      {210, u"Visual Studio 200&8"},
                                      {0, u"Office 200&7"},
                                      {215, u"&Blue Style"},
                                      {216, u"B&lack Style"},
                                      {217, u"&Silver Style"},
                                      {218, u"&Aqua Style"},
                                      {0, u""},
                                      {0, u""}}));
}

TEST(Menus, TheSideDropDownOffersTheSixSidesUnderATitleOfTwoLines)
{
  MenuRows rows;
  for (const MenuItem& item : viewMenu) rows.emplace_back(NumberOf(item.id), TextOf(item));
  EXPECT_EQ(rows, (MenuRows{{32804, u"Top"},
                            {32805, u"Bottom"},
                            {32806, u"Front"},
                            {32807, u"Rear"},
                            {32802, u"Right"},
                            {32803, u"Left"}}));
  EXPECT_EQ(viewButtonText, u"Select\rView");
}

TEST(Menus, EachKindOfTreeItemHasItsOwnEntries)
{
  std::map<TreeMenuKind, MenuRows> menus;
  for (const TreeMenu& menu : treeMenus) {
    for (const CommandId id : menu.entries) {
      if (id != CommandId::None) menus[menu.kind].emplace_back(NumberOf(id), TreeMenuText(id));
    }
  }
  EXPECT_EQ(
      menus,
      (std::map<TreeMenuKind, MenuRows>{
          {TreeMenuKind::Side,
           {{32796, u"&Add Polyline..."}, {32795, u"&Remove All Polylines..."}}},
          {TreeMenuKind::Anchors, {{32815, u"&Add Anchor..."}}},
          {TreeMenuKind::Polyline,
           {{32789, u"&Add Point..."},
            {32794, u"&Remove Polyline..."},
            {32797, u"&Zoom Polyline..."}}},
          {TreeMenuKind::Anchor, {{32816, u"&Remove Anchor..."}, {32817, u"&Modify Anchor..."}}},
          {TreeMenuKind::Point, {{32791, u"&Edit Point..."}, {32798, u"&Remove Point..."}}}}));
}

std::vector<int> Numbers(std::span<const CommandId> commands)
{
  std::vector<int> numbers;
  for (const CommandId command : commands) numbers.push_back(NumberOf(command));
  return numbers;
}

TEST(ToolBars, StandInTheirOrder)
{
  EXPECT_EQ(Numbers(mainToolBar),
            (std::vector<int>{57600, 57601, 57603, 0,     32772, 0,     32808, 0,     32784,
                              32785, 32786, 0,     32787, 0,     57643, 57644, 0,     32775,
                              0,     32781, 0,     32776, 32777, 0,     32778, 32779, 0,
                              32780, 0,     32782, 32783, 0,     32788}));
  EXPECT_EQ(Numbers(smallToolBar),
            (std::vector<int>{57600, 57601, 57603, 0, 57635, 57634, 57637, 0, 57607, 57664}));
}

TEST(Accelerators, EachKeyRunsItsCommandAndRedoHasNone)
{
  std::map<std::string_view, int> keys;
  for (const CommandEntry& command : Commands()) {
    for (const std::string_view key : {command.key, command.otherKey}) {
      if (!key.empty()) keys[key] = NumberOf(command.id);
    }
  }
  EXPECT_EQ(keys, (std::map<std::string_view, int>{{"Ctrl+N", 57600},
                                                   {"Ctrl+O", 57601},
                                                   {"Ctrl+S", 57603},
                                                   {"Ctrl+P", 57607},
                                                   {"Ctrl+Z", 57643},
                                                   {"Alt+Backspace", 57643},
                                                   {"Ctrl+X", 57635},
                                                   {"Shift+Del", 57635},
                                                   {"Ctrl+C", 57634},
                                                   {"Ctrl+Ins", 57634},
                                                   {"Ctrl+V", 57637},
                                                   {"Shift+Ins", 57637},
                                                   {"F6", 57680},
                                                   {"Shift+F6", 57681}}));
}

TEST(Commands, PromptsHaveAStatusTextAndATooltip)
{
  const CommandEntry* const move = FindCommand(CommandId::Move);
  ASSERT_NE(move, nullptr);
  EXPECT_EQ(StatusText(*move), u"Move design in a specified direction");
  EXPECT_EQ(TooltipText(*move), u"Move\rDesign");
  const CommandEntry* const grid = FindCommand(CommandId::Grid);
  EXPECT_EQ(StatusText(*grid), u"");
  EXPECT_EQ(TooltipText(*grid), u"");
  EXPECT_EQ(FindCommand(CommandId{1}), nullptr);
}

TEST(Commands, TheCustomisationHasTheNumber126)
{
  const CommandEntry* const customize = FindCommand(CommandId{126});
  ASSERT_NE(customize, nullptr);
  EXPECT_EQ(TooltipText(*customize), u"Customize...");
}

TEST(Commands, OfTheSidesHaveNoPrompt)
{
  for (const int id : {32802, 32803, 32804, 32805, 32806, 32807}) {
    ASSERT_NE(FindCommand(CommandId{id}), nullptr) << id;
    EXPECT_EQ(FindCommand(CommandId{id})->prompt, u"") << id;
  }
}

struct Prompt {
  int id;
  std::u16string_view text;
};

std::ostream& operator<<(std::ostream& out, const Prompt& row)
{
  return out << "command " << row.id;
}

class Prompts : public testing::TestWithParam<Prompt> {};

TEST_P(Prompts, StandWordForWord)
{
  const CommandEntry* const command = FindCommand(CommandId{GetParam().id});
  ASSERT_NE(command, nullptr);
  EXPECT_EQ(command->prompt, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, Prompts,
    testing::Values(
        Prompt{32776, u"Mirror design vertical\nMirror\rVert"},
        Prompt{32777, u"Mirror design horizontal\nMirror\rHorz"},
        Prompt{32779, u"Rotate right\nRotate\rRight"}, Prompt{32778, u"Rotate left\nRotate\rLeft"},
        Prompt{32775, u"Scale design\nScale\rDesign"},
        Prompt{32781, u"Move design in a specified direction\nMove\rDesign"},
        Prompt{32780, u"Modify offsets for devices\nModify\rOffsets"}, Prompt{32818, u""},
        Prompt{32819, u"Switch design units\nSwitch Units"},
        Prompt{32782, u"Toggle grid\nToggle\rGrid"},
        Prompt{32783, u"Toggle snap to grid\nToggle\rSnap"},
        Prompt{32784, u"Cursor zooms in\nZoom\rIn"}, Prompt{32785, u"Cursor zooms out\nZoom\rOut"},
        Prompt{32787, u"Cursor moves vessel\nMove\rDesign"},
        Prompt{32772, u"Import shape(s) from an AutoCAD DXF file\nImport\rDXF"},
        Prompt{32786, u"Show all shapes\nShow\rAll"}, Prompt{32788, u"Draw new shape\nDraw\rShape"},
        Prompt{32808, u"Select the current view mode\nView\rMode"},
        Prompt{126, u"Choose the buttons of the toolbars\nCustomize..."},
        Prompt{57600, u"Begin a new, empty design\nNew\rDesign"},
        Prompt{57601, u"Open a design file\nOpen\rDesign"},
        Prompt{57603, u"Save the design\nSave\rDesign"},
        Prompt{57604, u"Save the design under another name\nSave As"},
        Prompt{57607, u"Print the design\nPrint"}, Prompt{57616, u"Open this design"},
        Prompt{57665, u"Quit the program; asks to save a modified design\nExit"},
        Prompt{57643, u"Undo the last action\nUndo"},
        Prompt{57644, u"Redo the last action undone\nRedo"},
        Prompt{57635, u"Cut the selection\nCut"}, Prompt{57634, u"Copy the selection\nCopy"},
        Prompt{57637, u"Paste from the clipboard\nPaste"},
        Prompt{57664, u"Show the version and licence of the program\nAbout"},
        Prompt{59393, u"Show or hide the status bar\nStatus Bar"}));

TEST(Commands, NoMoreThanThese32HaveAPrompt)
{
  EXPECT_EQ(std::ranges::count_if(Commands(), [](const auto& row) { return !row.prompt.empty(); }),
            32);
}

TEST(Commands, EveryButtonOfTheToolBarHasAnIconAndALabel)
{
  for (const CommandId command : mainToolBar) {
    if (command == CommandId::None) continue;
    const CommandEntry* const entry = FindCommand(command);
    ASSERT_NE(entry, nullptr) << NumberOf(command);
    EXPECT_FALSE(entry->icon.empty()) << NumberOf(command);
    EXPECT_FALSE(TooltipText(*entry).empty()) << NumberOf(command);
  }
}

TEST(Commands, OfTheContextMenusAndOfTheSidesHaveAnIcon)
{
  for (const int id : {32798, 32789, 32791, 32790, 32792, 32793, 32794, 32795, 32796, 32797, 32815,
                       32816, 32817, 32802, 32803, 32804, 32805, 32806, 32807}) {
    const CommandEntry* const entry = FindCommand(CommandId{id});
    ASSERT_NE(entry, nullptr) << id;
    EXPECT_FALSE(entry->icon.empty()) << id;
  }
}

TEST(ViewSides, CodesAndCommandsBelongTogether)
{
  EXPECT_EQ(FindViewSide(ViewSide::Top)->command, CommandId{32804});
  EXPECT_EQ(FindViewSide(ViewSide::Bottom)->command, CommandId{32805});
  EXPECT_EQ(FindViewSide(ViewSide::Right)->command, CommandId{32802});
  EXPECT_EQ(FindViewSide(ViewSide::Left)->command, CommandId{32803});
  EXPECT_EQ(FindViewSide(ViewSide::Front)->command, CommandId{32806});
  EXPECT_EQ(FindViewSide(ViewSide::Rear)->command, CommandId{32807});
  EXPECT_EQ(FindViewSide(ViewSide::All), nullptr);
  EXPECT_EQ(FindViewSideByCommand(CommandId::ViewRight)->code, ViewSide::Right);
  EXPECT_EQ(FindViewSideByCommand(CommandId::SelectView), nullptr);
}

TEST(ViewSides, ACodeThatIsNoSidesIsCalledByItsTwoDigits)
{
  EXPECT_EQ(SideName(ViewSide::Rear, "all", "view "), "rear");
  EXPECT_EQ(SideName(ViewSide::All, "all", "view "), "all");
  EXPECT_EQ(SideName(ViewSide{5}, "all", "view "), "view 05");
}

constexpr auto handlers = std::to_array<CommandHandler<int>>({
    {CommandId::FileNew, [](int& runs) { ++runs; }},
    {CommandId::FileOpen, [](int& runs) { ++runs; }},
});

TEST(CommandHandlers, ATableHasThoseOfItsRowsAlone)
{
  EXPECT_TRUE(HasHandler(handlers, CommandId::FileNew));
  EXPECT_TRUE(HasHandler(handlers, CommandId::FileOpen));
  EXPECT_FALSE(HasHandler(handlers, CommandId::FileSave));
}

TEST(CommandHandlers, BearNoMarkWhereNothingCanBeOn)
{
  for (const CommandId id : {CommandId::FileNew, CommandId::FileSave}) {
    const CommandState state = StateOf(handlers, 0, id);
    EXPECT_EQ(state.enabled, id == CommandId::FileNew);
    EXPECT_FALSE(state.checked);
    EXPECT_FALSE(state.checkable);
  }
}

TEST(Strings, TheTextsOfPanesAndToolbarStandWordForWord)
{
  EXPECT_EQ(Strings::ready, u"Ready");
  EXPECT_EQ(Strings::paneEmpty, u"N/A");
  EXPECT_EQ(Strings::objectView, u"Object View");
  EXPECT_EQ(Strings::standardToolBar, u"Standard");
  EXPECT_EQ(Strings::customize, u"Customize...");
}

TEST(Strings, TheLibrariesMessageHasTwoBlanks)
{
  EXPECT_EQ(
      Strings::librariesFailed,
      u"OLE initialization failed.  Make sure that the OLE libraries are the correct version.");
}

}  // namespace
}  // namespace hullwright
