#include <benchmark/benchmark.h>

#include <QApplication>
#include <QStringList>
#include <QTreeWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "BenchMain.h"
#include "Checks.h"
#include "Scene.h"
#include "app/Editor.h"
#include "headless/FileAnswers.h"
#include "headless/KeptMessages.h"
#include "headless/KeptPointer.h"
#include "headless/KeptTrace.h"
#include "headless/MemorySettings.h"
#include "headless/NoDialogs.h"
#include "headless/NoWidgets.h"
#include "qt/ObjectTreeWidget.h"

/// The object tree after a change of the design: rebuilt, and the side with all its polylines
/// expanded and laid out; against a `QTreeWidget` that gets the same items.
namespace hullwright::bench {
namespace {

/// Shows a tree in a window of the object pane's size and lets it be exposed: a hidden tree puts
/// its layout off.
void ShowPane(QTreeView& tree)
{
  tree.resize(300, 800);
  tree.show();
  QApplication::processEvents();
}

/// Does the layout that a tree puts off until it is painted. The painting of a paneful of rows is
/// the toolkit's own in both trees and stays out.
void LayOut(QTreeView& tree) { tree.indexBelow(tree.model()->index(0, 0)); }

/// Whether the polylines of a side have their places in the laid-out tree.
bool ShowsPolylines(QTreeView& tree, const QModelIndex& side)
{
  return tree.viewport()->isVisible() && tree.isExpanded(side) &&
         !tree.visualRect(tree.model()->index(0, 0, side)).isEmpty();
}

class NoUnits : public IUnitDatabase {
public:
  std::vector<UnitRecord> ReadUnits() override { return {}; }
};

/// The editor with an object tree in a window.
class EditorWithTree {
public:
  explicit EditorWithTree(const Scene& scene)
  {
    Fill(*GetShapes(editor.app.shapeGroups, ViewSide::Top), scene);
    tree.Attach(editor.objects);
    ShowPane(tree);
  }

  void Rebuild()
  {
    editor.objects.BuildTree();
    tree.expand(Side());
    LayOut(tree);
  }

  QModelIndex Side() const { return tree.model()->index(0, 0, tree.model()->index(0, 0)); }

  MemorySettings settings;
  KeptMessages messages;
  NoDialogs dialogs;
  FileAnswers fileDialogs;
  NoUnits units;
  KeptTrace log;
  NoWidgets widgets;
  KeptPointer pointer;
  ObjectTreeWidget tree{nullptr};
  Editor editor{{.settings = settings,
                 .messages = messages,
                 .dialogs = dialogs,
                 .fileDialogs = fileDialogs,
                 .units = units,
                 .log = log,
                 .widgets = widgets,
                 .tree = tree,
                 .cursor = pointer,
                 .rubberBand = pointer,
                 .popupMenu = pointer}};
};

std::string TextOf(const QAbstractItemModel& model, const QModelIndex& index)
{
  return model.data(index, Qt::DisplayRole).toString().toStdString();
}

/// A hash of what a tree shows: the number of polylines below the side, and texts of the last one.
std::uint64_t HashOf(const QAbstractItemModel& model, const QModelIndex& side)
{
  Hash hash;
  const int polylines = model.rowCount(side);
  const QModelIndex last = model.index(polylines - 1, 0, side);
  hash.Add(static_cast<std::uint64_t>(polylines));
  for (int row = 0; row < model.rowCount(last); ++row) {
    hash.Add(TextOf(model, model.index(row, 0, last)));
  }
  hash.Add(TextOf(model, last));
  return hash.Sum();
}

void Rebuild(benchmark::State& state, const std::string& name, const Scene& scene)
{
  EditorWithTree editor(scene);
  editor.Rebuild();
  for ([[maybe_unused]] auto repetition : state) editor.Rebuild();
  if (!ShowsPolylines(editor.tree, editor.Side())) return Fail(state, "no polylines are shown");
  SameAsBefore(state, name, HashOf(*editor.tree.model(), editor.Side()));
  editor.tree.Detach();
  state.counters["polylines"] = static_cast<double>(scene.polylines);
}

/// The texts of the points of each polyline, as the tree shows them.
std::vector<QStringList> PointTexts(const Scene& scene)
{
  EditorWithTree editor(scene);
  editor.Rebuild();
  const QAbstractItemModel& model = *editor.tree.model();
  std::vector<QStringList> texts(scene.polylines);
  for (int row = 0; row < model.rowCount(editor.Side()); ++row) {
    const QModelIndex polyline = model.index(row, 0, editor.Side());
    for (int point = 0; point < model.rowCount(polyline); ++point) {
      texts[static_cast<std::size_t>(row)] += model.index(point, 0, polyline).data().toString();
    }
  }
  editor.tree.Detach();
  return texts;
}

/// The items of a prepared list.
QTreeWidgetItem* MakeItems(const std::vector<QStringList>& texts)
{
  auto* const root = new QTreeWidgetItem(QStringList(QStringLiteral("Vessel Design")));
  auto* const side = new QTreeWidgetItem(root, QStringList(QStringLiteral("TOP")));
  QList<QTreeWidgetItem*> polylines;
  for (const QStringList& points : texts) {
    auto* const polyline = new QTreeWidgetItem(QStringList(QStringLiteral("Polyline")));
    QList<QTreeWidgetItem*> items;
    for (const QString& point : points) items.append(new QTreeWidgetItem(QStringList(point)));
    polyline->addChildren(items);
    polylines.append(polyline);
  }
  side->addChildren(polylines);
  return root;
}

/// Releasing the items of before is not measured.
void FillTreeWidget(benchmark::State& state, const std::string& name, const Scene& scene)
{
  const std::vector<QStringList> texts = PointTexts(scene);
  QTreeWidget tree;
  tree.setHeaderHidden(true);
  tree.setUniformRowHeights(true);
  ShowPane(tree);
  for ([[maybe_unused]] auto repetition : state) {
    state.PauseTiming();
    tree.clear();
    state.ResumeTiming();
    QTreeWidgetItem* const root = MakeItems(texts);
    tree.addTopLevelItem(root);
    root->setExpanded(true);
    root->child(0)->setExpanded(true);
    LayOut(tree);
  }
  const QAbstractItemModel& model = *tree.model();
  const QModelIndex side = model.index(0, 0, model.index(0, 0));
  if (!ShowsPolylines(tree, side)) return Fail(state, "no polylines are shown");
  SameAsBefore(state, name, HashOf(model, side));
}

template <class Work>
void Add(const std::string& name, Work work, std::size_t polylines)
{
  const Scene scene{polylines, 1600.0, 1000.0};
  AddBenchmark(name, [=](auto& state, auto& own) { work(state, own, scene); });
}

void AddAll(const std::filesystem::path& inputs)
{
  const std::size_t count = PolylinesOfWindow(inputs) * 10;
  Add("tree/polylines/ours", Rebuild, count);
  Add("tree/polylines/qtreewidget", FillTreeWidget, count);
  Add("tree/polylines-10th/ours", Rebuild, count / 10);
  Add("tree/polylines-100th/ours", Rebuild, count / 100);
}

}  // namespace
}  // namespace hullwright::bench

int main(int argc, char** argv)
{
  const QApplication toolkit(argc, argv);
  return hullwright::bench::RunBenchmarks(argc, argv, hullwright::bench::AddAll);
}
