#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <string>

#include "BenchMain.h"
#include "Checks.h"
#include "Scene.h"
#include "app/MainFrame.h"
#include "cli/HeadlessEditor.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "peers/PainterFrame.h"

/// Frames of the design view, whole ones and those of a drag or a turn of the wheel, against
/// `QPainter::drawPolyline`; and the search under the mouse, against a walk over all vertices.
namespace hullwright::bench {
namespace {

constexpr int pixelsAcross = 1600;
constexpr int pixelsDown = 1000;

/// What of a scene is in view.
struct Shot {
  Scene scene;
  double part = 1.0;  ///< of the scene's width and height
};

/// The editor with a scene on the top side, without grid and devices, on a picture in memory.
class DrawnScene {
public:
  explicit DrawnScene(const Shot& shot) : view(StretchOf(shot.scene, shot.part))
  {
    editor.RemoveSymbols();
    GridSettings grid = editor.App().LoadGridSettings();
    grid.show = 0;
    grid.snap = 0;
    editor.App().SaveGridSettings(grid);
    Fill(Group(), shot.scene);
    Show();
  }

  CShapes& Group() { return *GetShapes(editor.App().shapeGroups, ViewSide::Top); }
  CHullwrightView& View() { return *editor.App().mainFrame->view; }

  /// Shows the scene as a window does: every event that changes the picture repaints it.
  void Show()
  {
    editor.ShowSide(ViewSide::Top, pixelsAcross, pixelsDown, view);
    View().viewPort->canvas->Initialize(&target);
    target.Resize(pixelsAcross, pixelsDown);
  }

  const Extents view;
  PaintSurface surface{pixelsAcross, pixelsDown};
  PaintTarget target{surface};
  HeadlessEditor editor{target};
};

/// A hash of a picture, and how much of it is drawn on: the sum of what its pixels lack in green.
struct PictureSum {
  std::uint64_t hash = 0;
  double ink = 0.0;
};

PictureSum SumUp(const QImage& picture)
{
  Hash hash;
  double ink = 0.0;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    for (int x = 0; x < picture.width(); ++x) {
      hash.Add(std::uint64_t{line[x]});
      ink += (255 - qGreen(line[x])) / 255.0;
    }
  }
  return {hash.Sum(), ink};
}

/// Takes the picture that a benchmark ended with.
void CheckPicture(benchmark::State& state, const std::string& name, const QImage& picture)
{
  const PictureSum sum = SumUp(picture);
  SameAsBefore(state, name, sum.ink > 0.0 ? sum.hash : 0);
  state.counters["ink"] = sum.ink;
}

void Frame(benchmark::State& state, const std::string& name, const Shot& shot)
{
  DrawnScene drawn(shot);
  for ([[maybe_unused]] auto repetition : state) drawn.View().Repaint();
  CheckPicture(state, name, drawn.surface.Picture());
  state.counters["polylines"] = static_cast<double>(shot.scene.polylines);
}

void PeerFrame(benchmark::State& state, const std::string& name, const Shot& shot)
{
  CShapes group;
  Fill(group, shot.scene);
  PainterFrame frame(group, pixelsAcross, pixelsDown);
  for ([[maybe_unused]] auto repetition : state) {
    frame.Draw(StretchOf(shot.scene, shot.part), shot.scene.lineWidth);
  }
  CheckPicture(state, name, frame.Picture());
}

/// One step of a drag: the mouse moves with a vertex in its hand, to and fro.
void Drag(benchmark::State& state, const std::string& name, const Shot& shot)
{
  DrawnScene drawn(shot);
  CHullwrightView& view = drawn.View();
  const CShapeVertex& vertex = *drawn.Group().shapes.front()->vertices.front();
  const ScreenPoint at = view.viewPort->WorldToScreen(vertex.x, vertex.y);
  const ClientPoint start{static_cast<std::int32_t>(at.x), static_cast<std::int32_t>(at.y)};
  const ClientPoint aside{start.x + 30, start.y + 20};
  view.OnLButtonDown(start);
  bool away = false;
  for ([[maybe_unused]] auto repetition : state) {
    away = !away;
    view.OnMouseMove(true, away ? aside : start);
  }
  if (!view.dragging) return Fail(state, "nothing is dragged");
  view.OnMouseMove(true, aside);
  CheckPicture(state, name, drawn.surface.Picture());
}

/// A notch of the wheel out and one in again, two frames.
void Wheel(benchmark::State& state, const std::string& name, const Shot& shot)
{
  constexpr int notch = 120;
  constexpr ClientPoint centre{pixelsAcross / 2, pixelsDown / 2};
  DrawnScene drawn(shot);
  for ([[maybe_unused]] auto repetition : state) {
    drawn.View().OnMouseWheel(-notch, centre);
    drawn.View().OnMouseWheel(notch, centre);
  }
  drawn.Show();  // zooming to and fro may change the last bits of the view
  drawn.View().OnMouseWheel(-notch, centre);
  CheckPicture(state, name, drawn.surface.Picture());
}

void PeerTwoFrames(benchmark::State& state, const std::string& name, const Shot& shot)
{
  CShapes group;
  Fill(group, shot.scene);
  PainterFrame frame(group, pixelsAcross, pixelsDown);
  for ([[maybe_unused]] auto repetition : state) {
    frame.Draw(StretchOf(shot.scene, shot.part), shot.scene.lineWidth);
    frame.Draw(StretchOf(shot.scene, shot.part * 4.0 / 3.0), shot.scene.lineWidth);
  }
  CheckPicture(state, name, frame.Picture());
}

/// A place of the window with no vertex near it.
ClientPoint EmptyPlace(CHullwrightView& view)
{
  for (std::int32_t x = 7; x < pixelsAcross; x += 11) {
    view.OnMouseMove(false, {x, pixelsDown / 2});
    if (view.hitKind == HitKind::None) return {x, pixelsDown / 2};
  }
  return {};
}

/// The mouse moves where nothing is, so that all is searched.
void Hover(benchmark::State& state, const std::string& name, const Shot& shot)
{
  DrawnScene drawn(shot);
  CHullwrightView& view = drawn.View();
  const ClientPoint place = EmptyPlace(view);
  for ([[maybe_unused]] auto repetition : state) view.OnMouseMove(false, place);
  if (view.hitKind != HitKind::None) return Fail(state, "there is something under the mouse");
  Hash hash;
  hash.Add(view.statusText);
  SameAsBefore(state, name, hash.Sum());
}

/// One walk over all vertices that compares each with a box.
void Pass(benchmark::State& state, const std::string& name, const Shot& shot)
{
  CShapes group;
  Fill(group, shot.scene);
  constexpr double reach = 5.0;
  std::size_t seen = 0;
  std::size_t inside = 0;
  for ([[maybe_unused]] auto repetition : state) {
    seen = inside = 0;
    ForEachEntry(group.shapes, [&](const CShape& shape) {
      ForEachEntry(shape.vertices, [&](const CShapeVertex& v) {
        ++seen;
        if (v.x > -reach && v.x < reach && v.y > -reach && v.y < reach) ++inside;
      });
    });
    benchmark::DoNotOptimize(inside);
  }
  SameAsBefore(state, name, seen + inside);
}

template <class Work>
void Add(const std::string& name, Work work, const Shot& shot)
{
  AddBenchmark(name, [=](auto& state, auto& own) { work(state, own, shot); });
}

void AddFrames(const std::string& name, Shot shot)
{
  for (const int width : {1, 2}) {
    shot.scene.lineWidth = static_cast<float>(width);
    const std::string full = "frame/" + name + "-" + std::to_string(width);
    Add(full + "/ours", Frame, shot);
    Add(full + "/qpainter", PeerFrame, shot);
  }
}

void AddAll(const std::filesystem::path& inputs)
{
  const std::size_t count = PolylinesOfWindow(inputs);
  const Scene window{count, pixelsAcross, pixelsDown};
  const Scene field{count * 10, pixelsAcross * 10.0, pixelsDown * 10.0};
  const Scene crowd{count * 10, pixelsAcross, pixelsDown};
  const Scene few{count / 10, pixelsAcross, pixelsDown};
  AddFrames("window", {window});
  AddFrames("outside", {field, 0.1});
  AddFrames("zoomed-out", {field});
  Add("frame/few-1/ours", Frame, {few});
  Add("frame/crowd-1/ours", Frame, {crowd});
  Add("drag/window-1/ours", Drag, {window});
  Add("wheel/window-1/ours", Wheel, {window});
  Add("wheel/window-1/qpainter", PeerTwoFrames, {window});
  Add("hover/outside/ours", Hover, {field, 0.1});
  Add("hover/outside/pass", Pass, {field});
}

}  // namespace
}  // namespace hullwright::bench

int main(int argc, char** argv)
{
  const QGuiApplication toolkit(argc, argv);
  return hullwright::bench::RunBenchmarks(argc, argv, hullwright::bench::AddAll);
}
