#include <gtest/gtest.h>

#include <new>

#include "base/Code.h"
#include "model/ShapePolyline.h"
#include "replay/driver/ReplayEditor.h"
#include "replay/random/ByteScript.h"
#include "replay/random/Invariants.h"
#include "resources/CommandIds.h"
#include "support/FailingNew.h"
#include "support/TempFolder.h"

// Every event of the editor, once with each of its allocations failing: the design is what it was
// before or what it is behind the whole event, and the editor goes on.
namespace hullwright::replay {
namespace {

/// An event with what comes before it, for which there is memory.
struct Event {
  const char* name;
  std::function<void(ReplayEditor&)> run;
  std::function<void(ReplayEditor&)> prepare = {};
  DialogScript dialog = {};
};

std::unique_ptr<CShape> Line(double at)
{
  auto line = std::make_unique<CShapePolyline>();
  for (int i = 0; i < 4; ++i) line->AddVertex(at + i, 2.0 * i, 1.0);
  return line;
}

/// A design with a marked polyline, one more, and one of another side.
void Reset(ReplayEditor& editor)
{
  editor.view.OnLButtonUp({});
  editor.document.OnNewDocument();
  CHullwrightApp& app = editor.app;
  auto& groups = app.shapeGroups;
  groups.push_back(std::make_unique<CShapes>(ViewSide::Top));
  groups.back()->shapes.push_back(Line(-4.0));
  groups.back()->shapes.push_back(Line(4.0));
  groups.back()->shapes.front()->editing = true;
  groups.push_back(std::make_unique<CShapes>(ViewSide::Right));
  groups.back()->shapes.push_back(Line(0.0));
  app.anchors->items.push_back(app.anchors->NewAnchor());
  app.anchors->items.back()->attachmentY = -10.0;
  *app.offsetGps = {10.0, 0.0, 5.0};
  *app.offsetTransducer = {-10.0, 0.0, 0.0};
  *app.offsetPivot = {0.0, 10.0, 0.0};
  app.unitCode = UnitCode::Metre;
  app.activeView = ViewSide::Top;
  editor.view.drawing = false;
  editor.view.newShape.reset();
  CViewPort& viewPort = *editor.view.viewPort;
  viewPort.left = -40.0;
  viewPort.right = 40.0;
  viewPort.bottom = -30.0;
  viewPort.top = 30.0;
  viewPort.width = 80.0;
  viewPort.height = 60.0;
  editor.view.OnSize(800, 600);
  editor.pane.BuildTree();
  editor.messages.shown.clear();
  editor.dialogs.reports.clear();
  editor.settings.values.clear();
  editor.settings.values["Grid/Snap"] = 0;
}

ClientPoint PixelOf(const ReplayEditor& editor, double x, double y)
{
  const ScreenPoint p = editor.view.viewPort->WorldToScreenFlat(x, y);
  return {static_cast<std::int32_t>(p.x), static_cast<std::int32_t>(p.y)};
}

/// Where the first vertex of the second polyline is, and where there is nothing.
ClientPoint Vertex(const ReplayEditor& editor) { return PixelOf(editor, 4.0, 0.0); }
ClientPoint Nothing(const ReplayEditor& editor) { return PixelOf(editor, 1.0, -5.0); }

void Grab(ReplayEditor& editor)
{
  editor.view.OnMouseMove(false, Vertex(editor));
  editor.view.OnLButtonDown(Vertex(editor));
}

void Drag(ReplayEditor& editor)
{
  Grab(editor);
  editor.view.OnMouseMove(true, Nothing(editor));
}

void BeginLine(ReplayEditor& editor)
{
  editor.frame.OnCommand(CommandId::DrawPolyline);
  editor.view.OnMouseMove(false, Nothing(editor));
}

void AddToLine(ReplayEditor& editor)
{
  BeginLine(editor);
  editor.view.OnLButtonDown(Nothing(editor));
}

void OpenMenu(ReplayEditor& editor) { editor.view.OnRButtonDown(Vertex(editor)); }
void OpenMenuOfAnchor(ReplayEditor& editor)
{
  editor.Answer({true});
  editor.view.OnRButtonDown(PixelOf(editor, 0.0, -10.0));
}

auto Command(CommandId id)
{
  return [id](ReplayEditor& editor) { editor.frame.OnCommand(id); };
}

auto Menu(CommandId id)
{
  return [id](ReplayEditor& editor) { editor.view.OnMenuCommand(id); };
}

auto Tree(CommandId id)
{
  return [id](ReplayEditor& editor) { editor.pane.OnCommand(id); };
}

auto Select(const std::vector<std::size_t>& path)
{
  return [path](ReplayEditor& editor) {
    editor.Answer({true, true});
    editor.pane.selectedItem = editor.ItemAt(path);
  };
}

void SayYes(ReplayEditor& editor) { editor.Answer({true}); }

/// A dialog whose fields, of all dialogs, get a number with a fraction.
DialogScript Ok()
{
  DialogScript script{.ok = true};
  for (int id = 1000; id < 1040; ++id) script.fields[ControlId{id}] = u"2.25";
  return script;
}

DialogScript OtherUnit()
{
  DialogScript script{.ok = true};
  script.select = 1;
  return script;
}

std::vector<Event> Events()
{
  const std::vector<std::size_t> polyline = {0, 0, 1};
  const std::vector<std::size_t> point = {0, 0, 1, 2};
  std::vector<Event> events = {
      {"size", [](ReplayEditor& e) { e.view.OnSize(500, 400); }},
      {"repaint", [](ReplayEditor& e) { e.frame.Notify(Notification::RepaintDesign); }},
      {"rebuild", [](ReplayEditor& e) { e.frame.Notify(Notification::RebuildTree); }},
      {"wheel",
       [](ReplayEditor& e) {
         e.view.OnMouseWheel(120, {1, 1});
       }},
      {"move", [](ReplayEditor& e) { e.view.OnMouseMove(false, Vertex(e)); }},
      {"drag", [](ReplayEditor& e) { e.view.OnMouseMove(true, Nothing(e)); }, Grab},
      {"drop", [](ReplayEditor& e) { e.view.OnLButtonUp(Nothing(e)); }, Drag},
      {"menu", [](ReplayEditor& e) { e.view.OnRButtonDown(Vertex(e)); }},
      {"add to a line", [](ReplayEditor& e) { e.view.OnLButtonDown(Nothing(e)); }, BeginLine},
      {"finish a line", [](ReplayEditor& e) { e.view.OnRButtonDown(Nothing(e)); }, AddToLine},
      {"mark",
       [](ReplayEditor& e) {
         e.pane.OnClick(e.ItemAt({0, 0, 1}));
       },
       [](ReplayEditor& e) {
         e.pane.OnClick(e.ItemAt({0, 0}));
       }},
      {"tree menu",
       [](ReplayEditor& e) {
         e.pane.OnContextMenu(e.ItemAt({0, 0, 1}));
       }},
      {"units", Command(CommandId::Units), SayYes, OtherUnit()},
      {"edit a vertex", Menu(CommandId::EditVertex), OpenMenu, Ok()},
      {"add a vertex", Menu(CommandId::AddVertex), OpenMenu, Ok()},
      {"remove a vertex", Menu(CommandId::RemoveVertex), OpenMenu},
      {"add an anchor", Menu(CommandId::AddAnchor), OpenMenu},
      {"edit an anchor", Menu(CommandId::EditVertex), OpenMenuOfAnchor, Ok()},
      {"remove an anchor", Menu(CommandId::RemoveAnchor), OpenMenuOfAnchor},
      {"center", Menu(CommandId::MenuCenter), OpenMenu},
      {"zoom out", Menu(CommandId::MenuZoomOut), OpenMenu},
      {"tree: add a polyline", Tree(CommandId::AddPolyline), Select({0, 0})},
      {"tree: remove all", Tree(CommandId::RemoveAllPolylines), Select({0, 0})},
      {"tree: add an anchor", Tree(CommandId::AddAnchor), Select({1})},
      {"tree: add a vertex", Tree(CommandId::AddVertex), Select(polyline), Ok()},
      {"tree: remove a polyline", Tree(CommandId::RemovePolyline), Select(polyline)},
      {"tree: zoom", Tree(CommandId::ZoomPolyline), Select(polyline)},
      {"tree: edit a vertex", Tree(CommandId::EditVertex), Select(point), Ok()},
      {"tree: remove a vertex", Tree(CommandId::RemoveVertex), Select(point)},
      {"look", Command(CommandOf(Look::Silver))}};
  for (const CommandId id : {CommandId::Scale,
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
                             CommandId::CursorMove,
                             CommandId::ShowAll,
                             CommandId::DrawPolyline,
                             CommandId::SelectView,
                             CommandId::ViewTop,
                             CommandId::ViewBottom,
                             CommandId::ViewRight,
                             CommandId::ViewLeft,
                             CommandId::ViewFront,
                             CommandId::ViewRear,
                             CommandId::Grid,
                             CommandId::About,
                             CommandId::MenuZoomIn,
                             CommandId::ViewStatusBar}) {
    events.push_back({"command", Command(id), {}, Ok()});
  }
  return events;
}

class EventsShortOfMemory : public testing::Test {
protected:
  EventsShortOfMemory()
  {
    MakeWorkFolder(work.Path());
    std::filesystem::remove_all(work.Path() / "Sondaris" / "Tracing");  // logs have their own test
    editor = std::make_unique<ReplayEditor>(work.Path());
    editor->Start({});
  }

  /// Runs an event with the allocation of that number failing; whether there was one.
  bool Run(const Event& event, std::size_t which)
  {
    Reset(*editor);
    editor->Answer({});
    editor->dialogs.script = event.dialog;
    if (event.prepare) event.prepare(*editor);
    before = editor->document.Fingerprint();
    const test::FailingNew memory(which);
    try {
      event.run(*editor);
    } catch (const std::bad_alloc&) {
      editor->editor.Recover();
    }
    const bool failed = test::FailingNew::Stop();
    after = editor->document.Fingerprint();
    return failed;
  }

  test::TempFolder work;
  std::unique_ptr<ReplayEditor> editor;
  std::optional<std::size_t> before;
  std::optional<std::size_t> after;
};

TEST_F(EventsShortOfMemory, ChangeTheDesignWhollyOrNotAtAll)
{
  int failures = 0;
  int changes = 0;
  for (const Event& event : Events()) {
    Run(event, 0);
    const auto whole = after;
    changes += before == after ? 0 : 1;
    for (std::size_t which = 1; Run(event, which); ++which) {
      SCOPED_TRACE(std::string(event.name) + ", allocation " + std::to_string(which));
      EXPECT_TRUE(after == before || after == whole);
      EXPECT_FALSE(editor->view.dragging);
      EXPECT_EQ(BrokenRule(*editor), "");
      ++failures;
    }
    EXPECT_EQ(after, whole) << event.name;
  }
  EXPECT_GT(changes, 22);
  EXPECT_GT(failures, 500);
}

TEST_F(EventsShortOfMemory, LeaveOutOfAnImportWhatTheyCannotKeep)
{
  const Event import = {"import", Command(CommandId::ImportDxf),
                        [](ReplayEditor& e) { e.fileDialogs.answer = e.PathOf("hull.dxf"); }};
  work.Write("hull.dxf",
             "0\nSECTION\n2\nENTITIES\n0\nLINE\n10\n1\n11\n9\n0\nLINE\n10\n2\n11\n8\n"
             "0\nTEXT\n1\nCrane\n40\n2\n0\nENDSEC\n0\nEOF\n");
  const auto shapes = [this] {
    return FindViewGroup(editor->app.shapeGroups, ViewSide::Top)->shapes.size();
  };
  std::size_t which = 1;
  for (; Run(import, which); ++which) {
    SCOPED_TRACE(which);
    EXPECT_GE(shapes(), 2U);
    EXPECT_LE(shapes(), 5U);
    EXPECT_EQ(BrokenRule(*editor), "");
  }
  EXPECT_EQ(shapes(), 5U);
  EXPECT_GT(which, 50U);
}

}  // namespace
}  // namespace hullwright::replay
