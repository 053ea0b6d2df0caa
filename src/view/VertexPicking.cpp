#include "view/HullwrightView.h"
#include "view/SnapToGrid.h"

namespace hullwright {

bool CHullwrightView::HitVertex(ClientPoint point)
{
  if (dragging) return false;
  const Pick pick = FindItemAt(design_, point.x, point.y);
  hitKind = pick.kind;
  dragVertex = pick.item;
  if (pick.kind == HitKind::None) return false;
  hitVertex = pick.item;
  ports_.cursor.SetCursor(CursorShape::Hand);
  return true;
}

void CHullwrightView::ClearPick()
{
  dragging = false;
  hitKind = HitKind::None;
  dragVertex = {};
}

void CHullwrightView::DragTo(const WorldPoint& world, const GridSettings& grid)
{
  if (hitKind == HitKind::None || dragVertex.index() == 0) return;
  if (const auto* const vertex = std::get_if<CShapeVertex*>(&dragVertex)) {
    design_.shownInTree.try_emplace(*vertex, **vertex);
  }
  MoveItem(dragVertex, world.x, world.y);
  Draw(grid);
}

void CHullwrightView::EndDrag(ClientPoint point)
{
  if (hitKind == HitKind::None || dragVertex.index() == 0) return;
  const WorldPoint world = SnappedWorld(point, host_.LoadGridSettings());
  MoveItem(dragVertex, world.x, world.y);
  host_.NotifyDesignChanged();
  host_.SetModifiedFlag(true);
}

WorldPoint CHullwrightView::SnappedWorld(ClientPoint point, const GridSettings& grid) const
{
  if (viewPort == nullptr) return {};
  WorldPoint world = viewPort->ScreenToWorld(point.x, point.y);
  SnapToGrid(grid, world.x, world.y);
  return world;
}

}  // namespace hullwright
