#include "replay/random/Invariants.h"

#include <algorithm>
#include <set>

#include "base/Code.h"
#include "base/Numbers.h"
#include "headless/SilentWindow.h"
#include "model/ShapePolygon.h"

namespace hullwright::replay {
namespace {

std::string NotOneEditingShapeAGroup(const ReplayEditor& editor)
{
  for (const auto& group : editor.app.shapeGroups) {
    const auto isEdited = [](const auto& shape) { return shape->editing; };
    if (std::ranges::count_if(group->shapes, isEdited) > 1) return "two shapes are edited";
  }
  return {};
}

/// The addresses of all that a design owns.
class OwnedObjects {
public:
  explicit OwnedObjects(const DesignState& design)
  {
    for (const auto& group : design.shapeGroups) Add(*group);
    for (const auto& anchor : design.anchors->items) Add(anchor.get());
    for (const auto* offset : {&design.offsetGps, &design.offsetTransducer, &design.offsetPivot}) {
      Add(offset->get());
    }
  }

  bool AreOnce() const { return once_; }

private:
  void Add(const void* owned) { once_ = seen_.insert(owned).second && once_; }

  void Add(const CShapes& group)
  {
    Add(static_cast<const void*>(&group));
    for (const auto& shape : group.shapes) Add(*shape);
  }

  void Add(const CShape& shape)
  {
    Add(static_cast<const void*>(&shape));
    for (const auto& vertex : shape.vertices) Add(static_cast<const void*>(vertex.get()));
    if (shape.type != ShapeType::Polygon) return;
    for (const auto& ring : static_cast<const CShapePolygon&>(shape).rings) Add(*ring);
  }

  std::set<const void*> seen_;
  bool once_ = true;
};

std::string SomethingInTwoPlaces(const ReplayEditor& editor)
{
  return OwnedObjects(editor.app).AreOnce() ? "" : "an object stands in two places";
}

std::string TreeListsSomethingElse(ReplayEditor& editor)
{
  editor.pane.BuildTree();
  constexpr ViewSide codes[] = {ViewSide::Top,   ViewSide::Bottom, ViewSide::Right, ViewSide::Left,
                                ViewSide::Front, ViewSide::Rear,   ViewSide::All};
  CObjectTree& tree = editor.pane.Tree();
  if (tree.ChildCount(tree.Root()) != std::size(codes)) return "the tree has not its seven sides";
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
    if (listed != held) return "the tree lists other polylines in side " + std::to_string(side);
  }
  const bool allAnchors = tree.ChildCount(tree.Anchors()) == editor.app.anchors->items.size();
  return allAnchors ? "" : "the tree lists other anchors";
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

/// Whether no document can hold a name: one of characters beyond the plane is written as halves.
bool SpoilsADocument(const std::u16string& name)
{
  return std::ranges::any_of(
      name, [](char16_t unit) { return (unit >= 0xD800 && unit < 0xE000) || unit >= 0xFFFE; });
}

/// Whether a save can come back: a group's code below 1, which only a file can bring, becomes
/// another one.
bool ComesBack(const DesignState& design)
{
  const auto& groups = design.shapeGroups;
  return std::ranges::all_of(groups, [](const auto& g) { return NumberOf(g->viewCode) > 0; }) &&
         std::ranges::none_of(design.anchors->items,
                              [](const auto& a) { return SpoilsADocument(a->name); });
}

std::string SavedAsSomethingElse(ReplayEditor& editor)
{
  const std::u16string path = editor.PathOf("roundtrip.xml");
  const bool modified = editor.document.IsModified();
  editor.document.OnSaveDocument(path);
  editor.document.SetModifiedFlag(modified);
  if (!ComesBack(editor.app)) return {};
  SilentWindow window;
  KeptMessages messages;
  DesignState loaded;
  CHullwrightDoc document(loaded, window, messages);
  if (!document.OnOpenDocument(path)) return "what was saved does not open";
  return PolylinesOf(loaded) == PolylinesOf(editor.app) ? "" : "the save holds other polylines";
}

}  // namespace

std::string BrokenRule(ReplayEditor& editor)
{
  std::string broken = NotOneEditingShapeAGroup(editor);
  if (broken.empty()) broken = SomethingInTwoPlaces(editor);
  if (broken.empty()) broken = TreeListsSomethingElse(editor);
  if (broken.empty()) broken = SavedAsSomethingElse(editor);
  return broken;
}

}  // namespace hullwright::replay
