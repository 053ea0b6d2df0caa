#include <gtest/gtest.h>

#include <cstdlib>
#include <locale>
#include <random>
#include <set>
#include <sstream>

#include "base/Numbers.h"
#include "headless/KeptMessages.h"
#include "model/ShapePolygon.h"
#include "replay/driver/Names.h"
#include "replay/driver/Player.h"
#include "resources/CommandIds.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

// Random scripts on the whole editor: whatever the user does, in whatever order, certain things
// hold after each step.
namespace hullwright::replay {
namespace {

constexpr int stepsOfScript = 200;

/// Number of scripts, the most where the sanitizers look on; HULLWRIGHT_SCRIPTS sets another one.
int Scripts()
{
#ifdef HULLWRIGHT_SANITIZE
  constexpr int usual = 1000;
#else
  constexpr int usual = 100;
#endif
  const char* const asked = std::getenv("HULLWRIGHT_SCRIPTS");
  return asked == nullptr ? usual : ParseInt32(std::string_view(asked), 10);
}

/// Makes steps, mostly sensible ones.
class StepMaker {
private:
  static constexpr CommandId commands[] = {CommandId::Scale,
                                           CommandId::MirrorVertically,
                                           CommandId::MirrorHorizontally,
                                           CommandId::RotateLeft,
                                           CommandId::RotateRight,
                                           CommandId::Offsets,
                                           CommandId::Move,
                                           CommandId::ToggleGrid,
                                           CommandId::ToggleSnap,
                                           CommandId::CursorZoomIn,
                                           CommandId::CursorZoomOut,
                                           CommandId::ShowAll,
                                           CommandId::CursorMove,
                                           CommandId::DrawPolyline,
                                           CommandId::DrawPolyline,
                                           CommandId::ViewRight,
                                           CommandId::ViewTop,
                                           CommandId::ViewTop,
                                           CommandId::Grid,
                                           CommandId::Units,
                                           CommandId::About,
                                           CommandOf(Look::Silver)};
  static constexpr CommandId treeCommands[] = {
      CommandId::AddPolyline,  CommandId::RemoveAllPolylines, CommandId::AddAnchor,
      CommandId::RemoveAnchor, CommandId::AddVertex,          CommandId::RemovePolyline,
      CommandId::ZoomPolyline, CommandId::EditVertex,         CommandId::RemoveVertex};
  static constexpr const char* keys[] = {"Show", "Snap", "SpacingShowX", "SpacingSnapY"};

  static constexpr int types[] = {1, 2, 2, 2, 3, 8};
  static constexpr int views[] = {1, 1, 1, 2, 4, 63};

  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  template <class List>
  auto AnyOf(const List& list)
  {
    return list[Below(static_cast<int>(std::size(list)))];
  }

public:
  explicit StepMaker(unsigned seed) : random_(seed) {}

  Json Next()
  {
    switch (Below(20)) {
      case 0:
        return Json::object(
            {{"do", "size"}, {"cx", Below(3) ? Below(1200) : 0}, {"cy", Below(900)}});
      case 1:
      case 2:
      case 3: return At("mousemove", Json::object({{"left", Below(2) == 0}}));
      case 4: return At("lbuttondown");
      case 5: return At("lbuttonup");
      case 6: return At("rbuttondown");
      case 7: return At("wheel", {{"delta", Below(2) ? 120 : -120}});
      case 8:
      case 9:
        return WithAnswers(Json::object({{"do", "command"}, {"id", NumberOf(AnyOf(commands))}}));
      case 10: return WithAnswers(Json::object({{"do", "menu"}, {"id", 32789 + Below(28)}}));
      case 11: return Json::object({{"do", "treeclick"}, {"path", Path()}});
      case 12: return Json::object({{"do", "treemenu"}, {"path", Path()}});
      case 13:
        return WithAnswers(Json::object(
            {{"do", "treecommand"}, {"id", NumberOf(AnyOf(treeCommands))}, {"select", Path()}}));
      case 14: return PutShape();
      case 15: return Json::object({{"do", "putanchor"}, {"anchor", Anchor()}});
      case 16: return Json::object({{"do", Below(2) ? "save" : "open"}, {"path", "boat.xml"}});
      case 17: return Import();
      case 18: return Rare();
      default:
        return Json::object(
            {{"do", "setting"}, {"key", AnyOf(keys)}, {"value", Below(3) ? Below(500) : -1}});
    }
  }

private:
  double Coordinate() { return (Below(4001) - 2000) / 16.0; }

  /// A number as a person types it.
  static std::string ShortText(double value)
  {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value;
    return text.str();
  }

  Json At(const char* name, Json step = Json::object())
  {
    // Often on the devices and the origin, where there is something to hit.
    step["do"] = name;
    step["x"] = Below(2) ? 400 + 4 * Below(50) - 100 : Below(1000);
    step["y"] = Below(2) ? 300 : Below(800);
    return step;
  }

  Json WithAnswers(Json step)
  {
    Json fields = Json::object();
    for (const char* const id : {"1000", "1003", "1008", "1009", "1011", "1017", "1024", "1027"}) {
      if (Below(3) == 0) fields[id] = Below(5) ? ShortText(Coordinate()) : "nonsense";
    }
    if (fields.contains("1011") && Below(3)) fields["1011"] = "0.75";
    const std::string side = std::to_string(1013 + Below(4));
    step["dialog"] = Json::object({{"end", Below(4) ? "ok" : "cancel"},
                                   {"fields", fields},
                                   {"checks", Json::object({{side, true}})},
                                   {"select", Below(6)}});
    step["answers"] = Json::array({Below(4) ? "yes" : "no"});
    return step;
  }

  Json Path()
  {
    Json path = Json::array({Below(5) ? 0 : 1});
    for (int depth = Below(4); depth > 0; --depth) path.push_back(Below(4));
    return path;
  }

  Json PutShape()
  {
    Json vertices = Json::array();
    for (int i = Below(6); i > 0; --i) {
      vertices.push_back(Json::array({Coordinate(), Coordinate(), 0.5}));
    }
    const Json shape = Json::object({{"type", AnyOf(types)},
                                     {"vertices", vertices},
                                     {"text", "Winch \\L"},
                                     {"height", 3},
                                     {"angle", 30},
                                     {"position", Json::array({1, 2, 3})},
                                     {"rings", Json::array({vertices})}});
    return Json::object({{"do", "putshape"}, {"view", AnyOf(views)}, {"shape", shape}});
  }

  Json Anchor()
  {
    return Json::object({{"id", Below(9)},
                         {"name", "Bow"},
                         {"attachmentX", Coordinate()},
                         {"attachmentY", Coordinate()}});
  }

  Json Import()
  {
    static constexpr const char* drawing =
        "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n2\nB\n0\nLINE\n10\n1\n11\n9\n0\nENDBLK\n0\nENDSEC\n"
        "0\nSECTION\n2\nENTITIES\n0\nSOLID\n11\n5\n12\n5\n22\n5\n0\nTEXT\n1\nCrane\n40\n2\n"
        "0\nINSERT\n2\nB\n50\n30\n0\nPOINT\n10\n3\n0\nCIRCLE\n40\n4\n0\nENDSEC\n0\nEOF\n";
    if (Below(4) == 0)
      return Json::object({{"do", "write"}, {"path", "hull.dxf"}, {"text", drawing}});
    return Json::object(
        {{"do", "command"}, {"id", NumberOf(CommandId::ImportDxf)}, {"file", "hull.dxf"}});
  }

  Json Rare()
  {
    switch (Below(8)) {
      case 0: return Json::object({{"do", "new"}});
      case 1: return Json::object({{"do", "user"}, {"wparam", Below(2) ? 1054 : 1124}});
      case 2: return Json::object({{"do", "statusclick"}, {"pane", Below(3)}});
      case 3: return Json::object({{"do", "setrotation"}, {"value", Coordinate()}});
      case 4:
        return Json::object(
            {{"do", "write"}, {"path", "boat.xml"}, {"text", "<vessel><shapes view=\"01\">"}});
      case 5: return Json::object({{"do", "setcursor"}, {"hit", Below(3)}});
      case 6: return Json::object({{"do", "setunit"}, {"value", Below(2) ? 9001 : 9002}});
      default: return Json::object({{"do", "putgroup"}, {"view", 4}});
    }
  }

  std::mt19937 random_;
};

// ---------------------------------------------------------------------------------------------------
// What holds

void ExpectOneEditingShapeAGroup(const DesignState& design)
{
  for (const auto& group : design.shapeGroups) {
    int editing = 0;
    for (const auto& shape : group->shapes) editing += shape->editing ? 1 : 0;
    EXPECT_LE(editing, 1);
  }
}

void ExpectNothingInTwoPlaces(const DesignState& design)
{
  std::set<const void*> seen;
  const auto expectNew = [&seen](const void* owned) { EXPECT_TRUE(seen.insert(owned).second); };
  for (const auto& group : design.shapeGroups) {
    expectNew(group.get());
    for (const auto& shape : group->shapes) {
      expectNew(shape.get());
      for (const auto& vertex : shape->vertices) expectNew(vertex.get());
      if (shape->type == ShapeType::Polygon) {
        for (const auto& ring : static_cast<const CShapePolygon&>(*shape).rings) {
          expectNew(ring.get());
          for (const auto& vertex : ring->vertices) expectNew(vertex.get());
        }
      }
    }
  }
  for (const auto& anchor : design.anchors->items) expectNew(anchor.get());
  for (const auto* offset : {&design.offsetGps, &design.offsetTransducer, &design.offsetPivot}) {
    expectNew(offset->get());
  }
}

void ExpectTreeListsTheDesign(ReplayEditor& editor)
{
  editor.pane.BuildTree();
  constexpr ViewSide codes[] = {ViewSide::Top,   ViewSide::Bottom, ViewSide::Right, ViewSide::Left,
                                ViewSide::Front, ViewSide::Rear,   ViewSide::All};
  CObjectTree& tree = editor.pane.Tree();
  ASSERT_EQ(tree.ChildCount(tree.Root()), std::size(codes));
  for (std::size_t side = 0; side < std::size(codes); ++side) {
    const TreeItem node = tree.Child(tree.Root(), side);
    std::vector<std::size_t> listed;
    for (std::size_t i = 0; i < tree.ChildCount(node); ++i) {
      listed.push_back(tree.ChildCount(tree.Child(node, i)));
    }
    std::vector<std::size_t> held;
    if (const CShapes* const group = FindViewGroup(editor.app.shapeGroups, codes[side])) {
      for (const auto& shape : group->shapes) {
        if (shape->type == ShapeType::Polyline) held.push_back(shape->vertices.size());
      }
    }
    EXPECT_EQ(listed, held);
  }
  EXPECT_EQ(tree.ChildCount(tree.Anchors()), editor.app.anchors->items.size());
}

/// The polylines of a design, to three decimals, by group.
std::vector<std::string> PolylinesOf(const DesignState& design)
{
  std::vector<std::string> lines;
  for (const auto& group : design.shapeGroups) {
    lines.push_back("group " + FormatHex(static_cast<std::uint32_t>(group->viewCode), 2));
    for (const auto& shape : group->shapes) {
      if (shape->type != ShapeType::Polyline) continue;
      std::string line = "line";
      for (const auto& v : shape->vertices) {
        for (const double coordinate : {v->x, v->y, v->z}) {
          line += ' ';
          AppendFixed3(line, coordinate);
        }
      }
      lines.push_back(std::move(line));
    }
  }
  return lines;
}

void ExpectSavedAsItIs(ReplayEditor& editor)
{
  const std::u16string path = editor.PathOf("roundtrip.xml");
  const bool modified = editor.document.IsModified();
  editor.document.OnSaveDocument(path);
  editor.document.SetModifiedFlag(modified);
  test::RecordedNotifications window;
  KeptMessages messages;
  DesignState loaded;
  CHullwrightDoc document(loaded, window, messages);
  ASSERT_TRUE(document.OnOpenDocument(path));
  EXPECT_EQ(PolylinesOf(loaded), PolylinesOf(editor.app));
}

void PlayScript(unsigned seed)
{
  const test::TempFolder work;
  std::filesystem::create_directories(work.Path() / "Sondaris" / "Database");
  std::filesystem::create_directories(work.Path() / "Sondaris" / "Tracing");
  std::filesystem::copy_file(HULLWRIGHT_UNIT_DATABASE, work.Path() / "Sondaris/Database/geo.db");
  ReplayEditor editor(work.Path());
  editor.Start({});
  Player player(editor);
  StepMaker maker(seed);
  player.Play(Json::object({{"do", "size"}, {"cx", 800}, {"cy", 600}}), Detail::Events);
  for (int step = 0; step < stepsOfScript; ++step) {
    const Json made = maker.Next();
    Json reported = made;
    NamesForNumbers(reported);
    SCOPED_TRACE("script " + std::to_string(seed) + ", step " + std::to_string(step) + ": " +
                 reported.dump());
    player.Play(made, Detail::Events);
    ExpectOneEditingShapeAGroup(editor.app);
    ExpectNothingInTwoPlaces(editor.app);
    ExpectTreeListsTheDesign(editor);
    ExpectSavedAsItIs(editor);
    if (testing::Test::HasFailure()) return;
  }
}

/// Plays every other script from the given one on: halves that run side by side.
void PlayEveryOtherScript(int first)
{
  for (int seed = first; seed <= Scripts() && !testing::Test::HasFailure(); seed += 2) {
    PlayScript(static_cast<unsigned>(seed));
  }
}

TEST(RandomScripts, OfOddSeedsKeepTheDesignWhole) { PlayEveryOtherScript(1); }

TEST(RandomScripts, OfEvenSeedsKeepTheDesignWhole) { PlayEveryOtherScript(2); }

}  // namespace
}  // namespace hullwright::replay
