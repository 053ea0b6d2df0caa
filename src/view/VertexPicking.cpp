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

void CHullwrightView::DragTo(ClientPoint point)
{
  if (hitKind == HitKind::None || dragVertex.index() == 0) return;
  const WorldPoint world = SnappedWorld(point);
  if (const auto* const vertex = std::get_if<CShapeVertex*>(&dragVertex)) {
    host_.BeforeChange(**vertex);
  }
  MoveItem(dragVertex, world.x, world.y);
  Repaint();
}

void CHullwrightView::EndDrag(ClientPoint point)
{
  if (hitKind == HitKind::None || dragVertex.index() == 0) return;
  const WorldPoint world = SnappedWorld(point);
  MoveItem(dragVertex, world.x, world.y);
  host_.NotifyDesignChanged();
  host_.SetModifiedFlag(true);
}

WorldPoint CHullwrightView::SnappedWorld(ClientPoint point) const
{
  if (viewPort == nullptr) return {};
  WorldPoint world = viewPort->ScreenToWorld(point.x, point.y);
  SnapToGrid(host_.LoadGridSettings(), world.x, world.y);
  return world;
}

}  // namespace hullwright
