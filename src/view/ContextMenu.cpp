#include <algorithm>
#include <vector>

#include "resources/Commands.h"
#include "resources/Menus.h"
#include "view/ViewCommandTable.h"

namespace hullwright {
namespace {

bool IsOffered(Offered offered, bool hit, HitKind kind)
{
  switch (offered) {
    case Offered::Always: return true;
    case Offered::OnHit: return hit;
    case Offered::OnNoHitOrVertex: return !hit || kind == HitKind::Vertex;
    case Offered::OnVertex: return hit && kind == HitKind::Vertex;
    case Offered::OnNoHit: return !hit;
    case Offered::OnAnchor: return hit && kind == HitKind::Anchor;
  }
  return false;
}

static_assert(std::ranges::all_of(contextMenu, [](const ContextMenuRow& row) {
  return row.id == CommandId::None || HasHandler(ViewCommandTable::menuRows, row.id);
}));

}  // namespace

void CHullwrightView::OfferMenu(ClientPoint point, bool hit)
{
  std::vector<PopupEntry> entries;
  for (const ContextMenuRow& row : contextMenu) {
    if (!IsOffered(row.offered, hit, hitKind)) continue;
    entries.push_back({row.id, row.id == CommandId::None ? u"-" : MenuText(row.id)});
  }
  menuPoint = point;
  ports_.popupMenu.Show(entries, point);
}

void CHullwrightView::OnMenuCommand(CommandId id)
{
  RunCommand(ViewCommandTable::menuRows, *this, id);
}

void CHullwrightView::ZoomByMenu(void (CViewPort::*zoom)(double, double))
{
  if (viewPort == nullptr) return;
  (viewPort.get()->*zoom)(menuPoint.x, menuPoint.y);
  Repaint();
}

void CHullwrightView::EditItem()
{
  if (dragging) return;
  const Pick pick = FindItemAt(design_, menuPoint.x, menuPoint.y);
  bool accepted = false;
  if (pick.kind == HitKind::None) {
    ClearPick();
  } else if (const auto* const anchor = std::get_if<CAnchor*>(&pick.item)) {
    CShapeVertex place((*anchor)->attachmentX, (*anchor)->attachmentY, 0.0);
    accepted = host_.EditVertex(place);
    if (accepted && IsInDesign(design_, pick.item)) MoveItem(pick.item, place.x, place.y);
  } else if (pick.kind == HitKind::Vertex) {
    // A copy is edited: the design may be another one by the time that the dialog closes.
    CShapeVertex* const vertex = std::get<CShapeVertex*>(pick.item);
    CShapeVertex copy(*vertex);
    accepted = host_.EditVertex(copy);
    if (accepted && IsInDesign(design_, pick.item)) {
      design_.shownInTree.try_emplace(vertex, *vertex);
      *vertex = copy;
    }
  } else {
    accepted = host_.EditOffsets(pick.kind);
  }
  if (accepted) Repaint();
}

CShape* CHullwrightView::FindMarkedPolyline()
{
  const CShapes* const group = GetShapes(design_.shapeGroups, design_.activeView);
  if (group == nullptr) return nullptr;
  CShape* const marked =
      WalkTo(group->cursor, group->shapes, [](const CShape& shape) { return shape.editing; });
  return marked != nullptr && marked->type == ShapeType::Polyline ? marked : nullptr;
}

void CHullwrightView::AddVertex()
{
  if (FindMarkedPolyline() == nullptr) return;
  const WorldPoint world = SnappedWorld(menuPoint, host_.LoadGridSettings());
  auto vertex = std::make_unique<CShapeVertex>(world.x, world.y, 0.0);
  if (!host_.EditVertex(*vertex)) return;
  // Looked up once more, for the dialog may have outlived the polyline.
  CShape* const marked = FindMarkedPolyline();
  if (marked == nullptr) return;
  host_.SetModifiedFlag(true);
  marked->vertices.push_back(std::move(vertex));
  Repaint();  // with the grid that is stored now
}

void CHullwrightView::AddAnchor()
{
  if (!design_.anchors) return;
  auto anchor = design_.anchors->NewAnchor();
  const GridSettings grid = host_.LoadGridSettings();
  const WorldPoint world = SnappedWorld(menuPoint, grid);
  anchor->attachmentX = world.x;
  anchor->attachmentY = world.y;
  design_.anchors->items.push_back(std::move(anchor));
  host_.SetModifiedFlag(true);
  Draw(grid);
}

void CHullwrightView::RemoveHit()
{
  if (hitKind == HitKind::None || hitVertex.index() == 0 || !design_.anchors) return;
  CShapes* const group = GetShapes(design_.shapeGroups, design_.activeView);
  if (group == nullptr) return;
  const auto* const vertex = std::get_if<CShapeVertex*>(&hitVertex);
  if (hitKind == HitKind::Vertex && vertex != nullptr) {
    // Only the shape that holds it: rings release any vertex that they get for removal.
    CShape* const holder = FindEntry(
        group->shapes, [&](const CShape& shape) { return HoldsEntry(shape.vertices, *vertex); });
    if (holder != nullptr) holder->RemoveVertex(*vertex);
  }
  const auto* const anchor = std::get_if<CAnchor*>(&hitVertex);
  if (hitKind == HitKind::Anchor && anchor != nullptr) {
    std::erase_if(design_.anchors->items, [&](const auto& item) { return item.get() == *anchor; });
  }
  host_.NotifyDesignChanged();
  ClearPick();
}

}  // namespace hullwright
