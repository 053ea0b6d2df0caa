#include "replay/driver/Names.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/Code.h"
#include "base/Text.h"
#include "headless/KeptMessages.h"
#include "platform/MainWindowPort.h"
#include "platform/Trace.h"
#include "resources/Commands.h"
#include "resources/Controls.h"
#include "resources/Menus.h"
#include "resources/ViewSides.h"
#include "system/SharedLibraries.h"
#include "system/UnitDatabase.h"

namespace hullwright::replay {
namespace {

using Rows = std::vector<CodeName>;

/// A text of the tables as one word: its letters and digits, each word of it capitalised.
std::string WordOf(std::string_view text)
{
  std::string word;
  bool begins = true;
  for (const char c : text) {
    const bool small = c >= 'a' && c <= 'z';
    if (small || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) {
      word.push_back(small && begins ? static_cast<char>(c - 'a' + 'A') : c);
      begins = false;
    } else if (c == ' ' || c == '\r') {
      begins = true;
    }
  }
  return word;
}

std::string WordOf(std::u16string_view text) { return WordOf(Utf8FromWide(text)); }

void Add(Rows& rows, const std::string& menu, const std::string& word, CommandId id)
{
  if (id != CommandId::None) rows.push_back({menu + "." + word, NumberOf(id)});
}

void AddMenuBar(Rows& rows)
{
  std::vector<std::string> menus;
  for (const MenuItem& row : mainMenu) {
    switch (row.row) {
      case MenuRow::Menu: menus = {WordOf(row.title)}; break;
      case MenuRow::SubMenu: menus.push_back(WordOf(row.title)); break;
      case MenuRow::EndSubMenu: menus.pop_back(); break;
      case MenuRow::Entry: Add(rows, menus.back(), WordOf(MenuText(row.id)), row.id); break;
      case MenuRow::Separator: break;
    }
  }
}

Rows NamesInTree()
{
  Rows rows;
  for (const TreeMenu& menu : treeMenus) {
    for (const CommandId id : menu.entries) Add(rows, "Tree", WordOf(TreeMenuText(id)), id);
  }
  return rows;
}

Rows NamesOutsideTree()
{
  Rows rows;
  AddMenuBar(rows);
  for (const MenuItem& row : viewMenu) Add(rows, "View", WordOf(MenuText(row.id)), row.id);
  for (const ContextMenuRow& row : contextMenu) {
    Add(rows, "Menu", WordOf(MenuText(row.id)), row.id);
  }
  const Rows tree = NamesInTree();
  for (const CommandEntry& command : Commands()) {
    const int number = NumberOf(command.id);
    const auto isNamed = [number](const Rows& names) {
      return std::ranges::find(names, number, &CodeName::number) != names.end();
    };
    if (isNamed(rows) || isNamed(tree)) continue;
    const std::string tooltip = WordOf(TooltipText(command));
    Add(rows, tooltip.empty() ? "Key" : "Tool", tooltip.empty() ? WordOf(command.key) : tooltip,
        command.id);
  }
  return rows;
}

Rows Joined(Rows first, const Rows& second)
{
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

Rows NamesOfSides()
{
  Rows rows;
  for (const ViewSideEntry& side : viewSides) {
    rows.push_back({WordOf(MenuText(side.command)), NumberOf(side.code)});
  }
  rows.push_back({"All", NumberOf(ViewSide::All)});
  rows.push_back({"None", NumberOf(ViewSide::None)});
  return rows;
}

Rows NamesOfUnits()
{
  SharedLibraries libraries;
  KeptMessages messages;
  Rows rows;
  for (const UnitRecord& unit :
       ReadUnits(libraries, messages, WideFromUtf8(HULLWRIGHT_UNIT_DATABASE))) {
    rows.push_back({Utf8FromWide(unit.strUnit), NumberOf(unit.numId)});
  }
  return rows;
}

Rows NamesOfControls()
{
  Rows rows;
  for (const NamedControl& control : namedControls) {
    rows.push_back({std::string(control.name), NumberOf(control.id)});
  }
  return rows;
}

const NameTable& NotificationNames()
{
  static const NameTable table = {"notification",
                                  {{"RepaintDesign", NumberOf(Notification::RepaintDesign)},
                                   {"RebuildTree", NumberOf(Notification::RebuildTree)},
                                   {"ImportStart", 1046},
                                   {"ImportProgress", 1044},
                                   {"ImportEnd", 1045}}};
  return table;
}

const NameTable& ShapeTypeNames()
{
  static const NameTable table = {"type of shape",
                                  {{"Point", NumberOf(ShapeType::Point)},
                                   {"Polyline", NumberOf(ShapeType::Polyline)},
                                   {"Polygon", NumberOf(ShapeType::Polygon)},
                                   {"Text", NumberOf(ShapeType::Text)}}};
  return table;
}

const NameTable& TraceLevelNames()
{
  static const NameTable table = {"level",
                                  {{"Failure", NumberOf(TraceLevel::Failure)},
                                   {"Progress", NumberOf(TraceLevel::Progress)},
                                   {"Success", NumberOf(TraceLevel::Success)}}};
  return table;
}

const NameTable& HitNames()
{
  static const NameTable table = {"part of the window", {{"ClientArea", 1}, {"TitleBar", 2}}};
  return table;
}

const NameTable& PaneNames()
{
  static const NameTable table = {"pane", {{"Prompt", 0}, {"Position", 1}, {"Units", 2}}};
  return table;
}

const NameTable& ControlNames()
{
  static const NameTable table = {"control", NamesOfControls()};
  return table;
}

/// A member of a step that names may stand in. The header of a script has no step.
struct NamedMember {
  std::string_view step;
  std::string_view call;
  const char* place;
  const NameTable& (*names)();
};

constexpr auto namedMembers = std::to_array<NamedMember>({
    {"command", "", "/id", CommandNames},
    {"menu", "", "/id", CommandNames},
    {"treecommand", "", "/id", TreeCommandNames},
    {"statusclick", "", "/pane", PaneNames},
    {"user", "", "/wparam", NotificationNames},
    {"setcursor", "", "/hit", HitNames},
    {"putgroup", "", "/view", SideNames},
    {"putshape", "", "/view", SideNames},
    {"putshape", "", "/shape/type", ShapeTypeNames},
    {"setunit", "", "/value", UnitNames},
    {"trace", "", "/level", TraceLevelNames},
    {"call", "GetShapes", "/args/0", SideNames},
    {"call", "ToMetres", "/args/0", UnitNames},
    {"call", "FromMetres", "/args/0", UnitNames},
    {"call", "ConvertUnits", "/args/0", UnitNames},
    {"call", "ConvertUnits", "/args/1", UnitNames},
    {"", "", "/settings/ApplicationLook", CommandNames},
});

/// What a step has by the controls of its dialog.
constexpr auto membersByControl =
    std::to_array<const char*>({"/dialog/fields", "/dialog/type", "/dialog/checks"});

int NumberOfName(const NameTable& names, const std::string& name)
{
  const auto found = std::ranges::find(names.rows, name, &CodeName::name);
  if (found == names.rows.end()) {
    throw std::invalid_argument(std::string("no ") + names.what + " is called \"" + name + "\"");
  }
  return found->number;
}

/// Members with the numbers of controls in place of their names.
Json ByNumber(const Json& byName)
{
  Json byNumber = Json::object();
  for (const auto& [name, value] : byName.items()) {
    const bool isNumber = name.find_first_not_of("-0123456789") == std::string::npos;
    const std::string key = isNumber ? name : std::to_string(NumberOfName(ControlNames(), name));
    if (!byNumber.emplace(key, value).second) {
      throw std::invalid_argument("the control " + name + " stands there twice");
    }
  }
  return byNumber;
}

/// Calls `change(value, names)` for each member of a step that names may stand in.
template <class Change>
void ForEachNamed(Json& step, Change change)
{
  const std::string name = TextOf(Member(step, "do"));
  const std::string call = TextOf(Member(step, "fn"));
  for (const NamedMember& row : namedMembers) {
    if (row.step != name || row.call != call) continue;
    const Json::json_pointer place(row.place);
    if (step.contains(place)) change(step[place], row.names());
  }
}

}  // namespace

const NameTable& CommandNames()
{
  static const NameTable table = {"command", Joined(NamesOutsideTree(), NamesInTree())};
  return table;
}

const NameTable& TreeCommandNames()
{
  static const NameTable table = {"command", Joined(NamesInTree(), NamesOutsideTree())};
  return table;
}

const NameTable& SideNames()
{
  static const NameTable table = {"side", NamesOfSides()};
  return table;
}

const NameTable& UnitNames()
{
  static const NameTable table = {"unit", NamesOfUnits()};
  return table;
}

std::vector<const NameTable*> AllNames()
{
  return {&CommandNames(),      &ControlNames(), &SideNames(), &ShapeTypeNames(), &UnitNames(),
          &NotificationNames(), &HitNames(),     &PaneNames(), &TraceLevelNames()};
}

void NumbersForNames(Json& step)
{
  ForEachNamed(step, [](Json& value, const NameTable& names) {
    if (value.is_string()) value = NumberOfName(names, TextOf(value));
  });
  for (const char* const place : membersByControl) {
    const Json::json_pointer members(place);
    if (step.contains(members) && step[members].is_object())
      step[members] = ByNumber(step[members]);
  }
}

void NamesForNumbers(Json& step)
{
  ForEachNamed(step, [](Json& value, const NameTable& names) {
    if (!value.is_number_integer()) return;
    const auto found = std::ranges::find(names.rows, IntegerOf(value), &CodeName::number);
    if (found != names.rows.end()) value = found->name;
  });
}

}  // namespace hullwright::replay
