#include "app/ObjectView.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>

#include "base/Code.h"
#include "model/ShapePolyline.h"
#include "render/ViewPort.h"
#include "resources/CommandHandler.h"
#include "resources/Commands.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

/// The entries of the menus that do nothing.
constexpr std::array idle = {CommandId::RemoveAnchor, CommandId::ModifyAnchor};

}  // namespace

struct CObjectView::CommandTable {
  using View = CObjectView;

  static constexpr auto rows = std::to_array<CommandHandler<View>>({
      {CommandId::AddPolyline, [](View& view) { view.AddPolyline(); }},
      {CommandId::RemoveAllPolylines, [](View& view) { view.RemoveAllPolylines(); }},
      {CommandId::AddAnchor, [](View& view) { view.AddAnchor(); }},
      {CommandId::AddVertex, [](View& view) { view.AddPoint(); }},
      {CommandId::RemovePolyline, [](View& view) { view.RemovePolyline(); }},
      {CommandId::ZoomPolyline, [](View& view) { view.ZoomPolyline(); }},
      {CommandId::EditVertex, [](View& view) { view.EditPoint(); }},
      {CommandId::RemoveVertex, [](View& view) { view.RemovePoint(); }},
  });

  static constexpr bool IsHandled(CommandId id)
  {
    return id == CommandId::None || HasHandler(rows, id) ||
           std::ranges::find(idle, id) != idle.end();
  }
};

void CObjectView::BuildTree()
{
  selectedItem = {};
  control_.BeforeRebuild();
  try {
    tree_.Rebuild();
  } catch (const std::bad_alloc&) {
    control_.Rebuilt();  // a control waits for it
    throw;
  }
  control_.Rebuilt();
}

void CObjectView::OnClick(const TreeItem& item)
{
  const TreeItem parent = tree_.Parent(item);
  if (!parent) return;
  if (parent == tree_.Root()) sideItem = item;
  if (item == sideItem || tree_.Parent(parent) != tree_.Root()) return;
  MarkForEditing(item);
  ShowMarks();
  app_.Repaint();
}

void CObjectView::MarkForEditing(const TreeItem& polyline)
{
  const CShapes* const group = Group();
  const CShape* const clicked = tree_.Shape(polyline);
  if (group == nullptr || clicked == nullptr) return;
  Walk(group->cursor, group->shapes,
       [clicked](CShape& shape) { shape.editing = &shape == clicked && !shape.editing; });
}

void CObjectView::ShowMarks()
{
  // The value runs on from child to child: the marked polyline and all behind it show the marked
  // image.
  constexpr int step = NumberOf(TreeImage::PolylineMarked) - NumberOf(TreeImage::PolylineUnmarked);
  int image = NumberOf(TreeImage::PolylineUnmarked);
  for (std::size_t i = 0; i < tree_.ChildCount(sideItem); ++i) {
    const TreeItem child = tree_.Child(sideItem, i);
    const CShape* const shape = tree_.Shape(child);
    if (shape == nullptr) continue;
    if (shape->editing) image += step;
    tree_.SetImage(child, TreeImage{image});
  }
  control_.ImagesChanged();
}

void CObjectView::OnContextMenu(const TreeItem& item)
{
  if (!item) return;
  selectedItem = item;
  static_assert(std::ranges::all_of(treeMenus, [](const TreeMenu& menu) {
    return std::ranges::all_of(menu.entries, CommandTable::IsHandled);
  }));
  const auto* const menu = std::ranges::find(treeMenus, MenuOf(item), &TreeMenu::kind);
  std::vector<PopupEntry> entries;
  for (const CommandId id : menu->entries) {
    if (id != CommandId::None) entries.push_back({id, TreeMenuText(id)});
  }
  control_.ShowMenu(entries);
}

TreeMenuKind CObjectView::MenuOf(const TreeItem& item) const
{
  const TreeItem parent = tree_.Parent(item);
  if (parent == tree_.Root()) return TreeMenuKind::Side;
  if (item == tree_.Anchors()) return TreeMenuKind::Anchors;
  if (parent && parent == tree_.Anchors()) return TreeMenuKind::Anchor;
  // A polyline has the menu of a point: nothing offers its own.
  return TreeMenuKind::Point;
}

void CObjectView::OnCommand(CommandId id) { RunCommand(CommandTable::rows, *this, id); }

CShapes* CObjectView::Group() { return GetShapes(app_.shapeGroups, app_.activeView); }

void CObjectView::AddPolyline()
{
  CShapes* const group = Group();
  if (group == nullptr) return;
  group->shapes.push_back(std::make_unique<CShapePolyline>());
  app_.NotifyModified();
}

void CObjectView::RemoveAllPolylines()
{
  CShapes* const group = Group();
  if (group == nullptr || !app_.AskYesNo(Strings::deleteAllShapes)) return;
  group->Clear();
  app_.NotifyModified();
}

void CObjectView::AddAnchor()
{
  if (!app_.anchors) return;
  app_.anchors->items.push_back(app_.anchors->NewAnchor());
  app_.NotifyModified();
}

// A dialog or question may outlive what it is about: the design can be replaced meanwhile. Items of
// before a rebuild stand for nothing, so each command looks its item up again afterwards.

void CObjectView::AddPoint()
{
  const TreeItem item = selectedItem;
  if (tree_.Shape(item) == nullptr) return;
  auto vertex = std::make_unique<CShapeVertex>();
  if (!app_.EditVertex(*vertex)) return;
  CShape* const shape = tree_.Shape(item);
  if (shape == nullptr) return;
  shape->vertices.push_back(std::move(vertex));
  app_.NotifyModified();
}

void CObjectView::RemovePolyline()
{
  const TreeItem item = selectedItem;
  if (tree_.Shape(item) == nullptr || Group() == nullptr) return;
  if (!app_.AskYesNo(Strings::deleteShape)) return;
  const CShape* const shape = tree_.Shape(item);
  if (shape == nullptr) return;
  std::erase_if(Group()->shapes, [shape](const auto& owned) { return owned.get() == shape; });
  app_.NotifyModified();
}

void CObjectView::ZoomPolyline()
{
  const CShape* const shape = tree_.Shape(selectedItem);
  if (shape == nullptr || app_.viewPort == nullptr) return;
  Extents box = emptyZoomExtents;
  shape->GetExtents(box);
  app_.viewPort->ZoomOrCentre(box);
  app_.Repaint();
}

void CObjectView::EditPoint()
{
  const TreeItem item = selectedItem;
  const CShapeVertex* const shown = tree_.Vertex(item);
  if (shown == nullptr) return;
  CShapeVertex copy(*shown);
  if (!app_.EditVertex(copy)) return;
  CShapeVertex* const vertex = tree_.Vertex(item);
  if (vertex == nullptr) return;
  *vertex = copy;
  app_.NotifyModified();
}

void CObjectView::RemovePoint()
{
  const TreeItem item = selectedItem;
  if (tree_.Vertex(item) == nullptr || !app_.AskYesNo(Strings::deletePoint)) return;
  CShape* const shape = tree_.Shape(tree_.Parent(item));
  if (shape == nullptr) return;
  shape->RemoveVertex(tree_.Vertex(item));
  app_.NotifyModified();
}

}  // namespace hullwright
