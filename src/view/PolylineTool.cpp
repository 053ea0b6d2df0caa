#include "view/HullwrightView.h"

namespace hullwright {
namespace {

/// A coordinate of 0 means unset, so a band that ends on the first pixel row or column is not
/// drawn.
bool IsSet(ClientPoint point) { return point.x != 0 && point.y != 0; }

}  // namespace

bool CHullwrightView::HasRubberBand() const
{
  return drawing && IsSet(lastPoint) && IsSet(cursorPoint);
}

void CHullwrightView::BeginPolyline()
{
  if (drawing) return;
  newShape = std::make_unique<CShapePolyline>();
  drawing = true;
}

void CHullwrightView::AddPolylineVertex(const GridSettings& grid)
{
  // The free end of the band is what the user sees and aims with, so it is taken, not the press.
  const WorldPoint world = SnappedWorld(cursorPoint, grid);
  newShape->AddVertex(world.x, world.y, 0.0);
  lastPoint = PixelOf(world);
}

void CHullwrightView::MoveRubberBand(const WorldPoint& world)
{
  if (IsSet(cursorPoint) && IsSet(lastPoint)) ports_.rubberBand.InvertLine(lastPoint, cursorPoint);
  cursorPoint = PixelOf(world);
  if (IsSet(lastPoint)) ports_.rubberBand.InvertLine(lastPoint, cursorPoint);
}

void CHullwrightView::FinishPolyline()
{
  if (CShapes* const group = GetShapes(design_.shapeGroups, design_.activeView)) {
    group->shapes.push_back(std::move(newShape));
  }
  newShape.reset();
  drawing = false;
  lastPoint = {};
  host_.NotifyDesignChanged();
}

}  // namespace hullwright
