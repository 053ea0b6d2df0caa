#include "app/ObjectView.h"

#include <algorithm>
#include <utility>

#include "model/ShapePolyline.h"
#include "render/ViewPort.h"
#include "resources/CommandIds.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

constexpr PopupEntry addPolyline{Command::AddPolyline, u"&Add Polyline..."};
constexpr PopupEntry removeAll{Command::RemoveAllPolylines, u"&Remove All Polylines..."};
constexpr PopupEntry addAnchor{Command::AddAnchor, u"&Add Anchor..."};
constexpr PopupEntry addPoint{Command::AddVertex, u"&Add Point..."};
constexpr PopupEntry removePolyline{Command::RemovePolyline, u"&Remove Polyline..."};
constexpr PopupEntry zoomPolyline{Command::ZoomPolyline, u"&Zoom Polyline..."};
constexpr PopupEntry removeAnchor{Command::RemoveAnchor, u"&Remove Anchor..."};
constexpr PopupEntry modifyAnchor{Command::ModifyAnchor, u"&Modify Anchor..."};
constexpr PopupEntry editPoint{Command::EditVertex, u"&Edit Point..."};
constexpr PopupEntry removePoint{Command::RemoveVertex, u"&Remove Point..."};

}  // namespace

void CObjectView::BuildTree()
{
  selectedItem = {};
  control_.BeforeRebuild();
  tree_.Rebuild();
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
  constexpr int step = TreeImage::PolylineMarked - TreeImage::PolylineUnmarked;
  int image = TreeImage::PolylineUnmarked;
  for (std::size_t i = 0; i < tree_.ChildCount(sideItem); ++i) {
    const TreeItem child = tree_.Child(sideItem, i);
    const CShape* const shape = tree_.Shape(child);
    if (shape == nullptr) continue;
    if (shape->editing) image += step;
    tree_.SetImage(child, image);
  }
  control_.ImagesChanged();
}

void CObjectView::OnContextMenu(const TreeItem& item)
{
  if (!item) return;
  selectedItem = item;
  const std::vector<PopupEntry> entries = MenuOf(item);
  if (!entries.empty()) control_.ShowMenu(entries);
}

std::vector<PopupEntry> CObjectView::MenuOf(const TreeItem& item) const
{
  const TreeItem parent = tree_.Parent(item);
  if (parent == tree_.Root()) return {addPolyline, removeAll};
  if (item == tree_.Anchors()) return {addAnchor};
  // The parent of no item is asked for here, not that of the item, so that no polyline gets this
  // menu.
  if (tree_.Parent(TreeItem{}) == tree_.Root()) return {addPoint, removePolyline, zoomPolyline};
  if (parent && parent == tree_.Anchors()) return {removeAnchor, modifyAnchor};
  return {editPoint, removePoint};
}

void CObjectView::OnCommand(int id)
{
  switch (id) {
    case Command::AddPolyline: AddPolyline(); break;
    case Command::RemoveAllPolylines: RemoveAllPolylines(); break;
    case Command::AddAnchor: AddAnchor(); break;
    case Command::AddVertex: AddPoint(); break;
    case Command::RemovePolyline: RemovePolyline(); break;
    case Command::ZoomPolyline: ZoomPolyline(); break;
    case Command::EditVertex: EditPoint(); break;
    case Command::RemoveVertex: RemovePoint(); break;
    default: break;  // removing and modifying an anchor are offered and do nothing
  }
}

CShapes* CObjectView::Group() { return GetShapes(app_.shapeGroups, app_.activeView); }

void CObjectView::AddPolyline()
{
  CShapes* const group = Group();
  if (group == nullptr) return;
  group->shapes.push_back(std::make_unique<CShapePolyline>());
  app_.TellAll();
}

void CObjectView::RemoveAllPolylines()
{
  CShapes* const group = Group();
  if (group == nullptr || !app_.AskYesNo(Strings::deleteAllShapes)) return;
  group->Clear();
  app_.TellAll();
}

void CObjectView::AddAnchor()
{
  if (!app_.anchors) return;
  app_.anchors->items.push_back(app_.anchors->NewAnchor());
  app_.TellAll();
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
  app_.TellAll();
}

void CObjectView::RemovePolyline()
{
  const TreeItem item = selectedItem;
  if (tree_.Shape(item) == nullptr || Group() == nullptr) return;
  if (!app_.AskYesNo(Strings::deleteShape)) return;
  const CShape* const shape = tree_.Shape(item);
  if (shape == nullptr) return;
  std::erase_if(Group()->shapes, [shape](const auto& owned) { return owned.get() == shape; });
  app_.TellAll();
}

void CObjectView::ZoomPolyline()
{
  const CShape* const shape = tree_.Shape(selectedItem);
  if (shape == nullptr || app_.viewPort == nullptr) return;
  Extents box = emptyZoomExtents;
  shape->GetExtents(box);
  app_.viewPort->ZoomOrCenter(box);
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
  app_.TellAll();
}

void CObjectView::RemovePoint()
{
  const TreeItem item = selectedItem;
  if (tree_.Vertex(item) == nullptr || !app_.AskYesNo(Strings::deletePoint)) return;
  CShape* const shape = tree_.Shape(tree_.Parent(item));
  if (shape == nullptr) return;
  shape->RemoveVertex(tree_.Vertex(item));
  app_.TellAll();
}

}  // namespace hullwright
