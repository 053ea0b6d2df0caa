#include "replay/driver/Names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "app/DesignCommandTable.h"
#include "base/Code.h"
#include "resources/Commands.h"
#include "resources/Menus.h"
#include "view/ViewCommandTable.h"

// The names that a script may have for numbers.
namespace hullwright::replay {
namespace {

bool IsOfTree(const CodeName& row) { return row.name.starts_with("Tree."); }

/// The names of a command, in the menus of the tree or everywhere else.
std::vector<std::string> NamesOf(CommandId id, bool tree)
{
  std::vector<std::string> names;
  for (const CodeName& row : CommandNames().rows) {
    if (row.number == NumberOf(id) && IsOfTree(row) == tree) names.push_back(row.name);
  }
  return names;
}

bool IsInTree(CommandId id)
{
  return std::ranges::any_of(treeMenus, [id](const TreeMenu& menu) {
    return std::ranges::find(menu.entries, id) != menu.entries.end();
  });
}

bool IsInViewMenu(CommandId id)
{
  return std::ranges::find(contextMenu, id, &ContextMenuRow::id) != contextMenu.end();
}

/// A step of one sort that has one member more.
Json Step(const char* name, const char* member, const Json& value)
{
  return Json::object({{"do", name}, {member, value}});
}

/// A member of a step once its names have become numbers.
Json Read(const char* name, const char* member, const Json& value)
{
  Json step = Step(name, member, value);
  NumbersForNames(step);
  return step[member];
}

TEST(CommandNames, EveryCommandHasOneNameInTheTreeAndOneElsewhere)
{
  for (const CommandEntry& command : Commands()) {
    const bool tree = IsInTree(command.id);
    const bool elsewhere = !tree || IsInViewMenu(command.id);
    EXPECT_EQ(NamesOf(command.id, true).size(), tree ? 1 : 0) << NumberOf(command.id);
    EXPECT_EQ(NamesOf(command.id, false).size(), elsewhere ? 1 : 0) << NumberOf(command.id);
  }
}

TEST(CommandNames, EveryCommandThatIsCarriedOutHasAName)
{
  const auto expectNames = [](const auto& handlers) {
    for (const auto& handler : handlers) {
      EXPECT_EQ(NamesOf(handler.id, false).size(), 1U) << NumberOf(handler.id);
    }
  };
  expectNames(DesignCommandTable::rows);
  expectNames(ViewCommandTable::rows);
  expectNames(ViewCommandTable::menuRows);
}

TEST(Names, NoneStandsForTwoNumbersOrForNothing)
{
  for (const NameTable* const table : AllNames()) {
    std::set<std::string> names;
    for (const CodeName& row : table->rows) {
      EXPECT_TRUE(names.insert(row.name).second) << table->what << ' ' << row.name;
      EXPECT_FALSE(row.name.empty() || row.name.ends_with('.')) << table->what << ' ' << row.number;
    }
    EXPECT_FALSE(names.empty()) << table->what;
  }
}

TEST(CommandNames, AreTheMenuAndTheTextOfTheEntry)
{
  EXPECT_EQ(Read("command", "id", "File.SaveDesignAs"), NumberOf(CommandId::FileSaveAs));
  EXPECT_EQ(Read("command", "id", "Modify.MirrorVertically"), 32776);
  EXPECT_EQ(Read("command", "id", "Cursor.Move"), NumberOf(CommandId::CursorMove));
  EXPECT_EQ(Read("command", "id", "Office2007.SilverStyle"), NumberOf(Look::Silver));
  EXPECT_EQ(Read("command", "id", "ApplicationLook.OfficeXP"), NumberOf(Look::OfficeXp));
  EXPECT_EQ(Read("command", "id", "View.Top"), NumberOf(CommandId::ViewTop));
  EXPECT_EQ(Read("menu", "id", "Menu.ZoomIn"), NumberOf(CommandId::MenuZoomIn));
  EXPECT_EQ(Read("treecommand", "id", "Tree.AddPoint"), NumberOf(CommandId::AddVertex));
}

TEST(CommandNames, AreTheTooltipOrTheKeyOfWhatStandsInNoMenu)
{
  EXPECT_EQ(Read("command", "id", "Tool.ToggleGrid"), NumberOf(CommandId::ToggleGrid));
  EXPECT_EQ(Read("command", "id", "Tool.Customize"), NumberOf(CommandId::Customize));
  EXPECT_EQ(Read("command", "id", "Key.ShiftF6"), NumberOf(CommandId::PreviousPane));
}

/// A step that answers a dialog by its controls, once their names have become numbers.
Json ReadDialog(const char* member, const Json& controls)
{
  Json step = Step("command", "dialog", {{"end", "ok"}, {member, controls}});
  NumbersForNames(step);
  return step["dialog"][member];
}

TEST(ControlNames, StandForTheNumbersInWhatAnswersADialog)
{
  EXPECT_EQ(ReadDialog("fields", {{"antennaX", "2"}, {"1028", "3"}}),
            Json::parse(R"({"1027":"2","1028":"3"})"));
  EXPECT_EQ(ReadDialog("type", {{"factor", "2"}}), Json::parse(R"({"1011":"2"})"));
  EXPECT_EQ(ReadDialog("checks", {{"by180", true}}), Json::parse(R"({"1014":true})"));
  EXPECT_EQ(ReadDialog("fields", {{"-1", "2"}, {"99999999999", ""}}),
            Json::parse(R"({"-1":"2","99999999999":""})"));
}

TEST(Names, StandForCodesWhereverAStepHasThem)
{
  EXPECT_EQ(Read("putgroup", "view", "All"), NumberOf(ViewSide::All));
  EXPECT_EQ(Read("putshape", "view", "Rear"), NumberOf(ViewSide::Rear));
  EXPECT_EQ(Read("putshape", "shape", {{"type", "Polygon"}})["type"], NumberOf(ShapeType::Polygon));
  EXPECT_EQ(Read("user", "wparam", "RebuildTree"), NumberOf(Notification::RebuildTree));
  EXPECT_EQ(Read("setcursor", "hit", "ClientArea"), 1);
  EXPECT_EQ(Read("statusclick", "pane", "Units"), 2);
  EXPECT_EQ(Read("trace", "level", "Success"), NumberOf(TraceLevel::Success));
  EXPECT_EQ(Read("setunit", "value", "US survey foot"), 9003);
  Json call = Json::parse(R"({"do":"call","fn":"ConvertUnits","args":["foot","metre",1,2,3]})");
  NumbersForNames(call);
  EXPECT_EQ(call["args"], Json::parse("[9002,9001,1,2,3]"));
  Json header = Json::parse(R"({"settings":{"ApplicationLook":"Office2007.BlueStyle"}})");
  NumbersForNames(header);
  EXPECT_EQ(header["settings"]["ApplicationLook"], NumberOf(Look::Blue));
}

TEST(Names, NumbersStayWhatTheyAre)
{
  for (const int number : {32776, 0, -1, 40000}) {
    EXPECT_EQ(Read("command", "id", number), number);
  }
}

TEST(Names, AnUnknownOneIsAnErrorThatSaysSo)
{
  const auto problemOf = [](Json step) -> std::string {
    try {
      NumbersForNames(step);
    } catch (const std::exception& problem) {
      return problem.what();
    }
    return "none";
  };
  EXPECT_EQ(problemOf(Step("command", "id", "Modify.Mirror")),
            "no command is called \"Modify.Mirror\"");
  EXPECT_EQ(problemOf(Step("putgroup", "view", "top")), "no side is called \"top\"");
  EXPECT_EQ(problemOf(Step("write", "text", "top")), "none");
  EXPECT_EQ(problemOf(Step("command", "dialog", {{"fields", {{"antennaW", "1"}}}})),
            "no control is called \"antennaW\"");
  EXPECT_EQ(problemOf(Step("command", "dialog", {{"checks", {{"by90", true}, {"1013", false}}}})),
            "the control by90 stands there twice");
}

TEST(Names, APrintedStepHasThoseOfItsMenu)
{
  const auto reported = [](Json step) {
    NamesForNumbers(step);
    return step["id"];
  };
  const int vertex = NumberOf(CommandId::AddVertex);
  EXPECT_EQ(reported(Step("menu", "id", vertex)), "Menu.AddVertex");
  EXPECT_EQ(reported(Step("treecommand", "id", vertex)), "Tree.AddPoint");
  EXPECT_EQ(reported(Step("command", "id", 40000)), 40000);
}

}  // namespace
}  // namespace hullwright::replay
