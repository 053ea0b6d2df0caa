#include "view/HullwrightView.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/MainWindowPort.h"
#include "render/Scene.h"
#include "view/ViewCommandTable.h"

namespace hullwright {

CHullwrightView::CHullwrightView(DesignState& design, IViewHost& host, const Ports& ports)
    : design_(design), host_(host), ports_(ports)
{
}

CHullwrightView::~CHullwrightView()
{
  if (viewPort) design_.viewPort = nullptr;
}

void CHullwrightView::OnCreate(IDrawingTarget* target)
{
  viewPort = host_.HandOverViewPort();
  if (viewPort == nullptr) return;
  canvas_ = std::make_unique<CCanvas>();
  viewPort->canvas = canvas_.get();
  if (!canvas_->Initialize(target)) ports_.messages.ShowMessage(WideFromUtf8(canvas_->errorText));
}

void CHullwrightView::OnSize(int cx, int cy)
{
  if (viewPort == nullptr) return;
  if (canvas_ && canvas_->Target() != nullptr) canvas_->Target()->Resize(cx, cy);
  viewPort->screenWidth = cx;
  viewPort->screenHeight = cy;
  viewPort->KeepAspect();
  Repaint();
}

void CHullwrightView::OnLButtonDown(ClientPoint point)
{
  const CursorTool tool = host_.GetCursorTool();
  if (HitVertex(point)) return;
  if (drawing) {
    const GridSettings grid = host_.LoadGridSettings();
    AddPolylineVertex(grid);
    Draw(grid);
  } else if (viewPort != nullptr) {
    switch (tool) {
      case CursorTool::ZoomIn: viewPort->ZoomIn(point.x, point.y); break;
      case CursorTool::ZoomOut: viewPort->ZoomOut(point.x, point.y); break;
      case CursorTool::Move: viewPort->CenterOn(point.x, point.y); break;
      default: return;
    }
    Repaint();
  }
}

void CHullwrightView::OnLButtonUp(ClientPoint point)
{
  if (dragging) EndDrag(point);
  ClearPick();
}

void CHullwrightView::OnRButtonDown(ClientPoint point)
{
  const CShapes* const group = GetShapes(design_.shapeGroups, design_.activeView);
  const bool hit = HitVertex(point);
  if (drawing) {
    FinishPolyline();
  } else if (group != nullptr) {
    OfferMenu(point, hit);
  }
}

void CHullwrightView::OnMouseMove(bool leftButton, ClientPoint point)
{
  const GridSettings grid = host_.LoadGridSettings();
  const WorldPoint world = SnappedWorld(point, grid);
  statusText = u"X: " + WideFromAscii(FormatSignedFixed(world.x, 2, 6)) + u" Y: " +
               WideFromAscii(FormatSignedFixed(world.y, 2, 6));
  if (leftButton && dragVertex.index() != 0) {
    dragging = true;
    DragTo(world, grid);
  }
  if (drawing) {
    MoveRubberBand(world);
  } else if (!dragging) {
    cursorPoint = {};
  }
  HitVertex(point);
}

void CHullwrightView::OnMouseWheel(int delta, ClientPoint point)
{
  if (drawing) return;
  if (viewPort != nullptr) {
    if (delta < 0) {
      viewPort->ZoomOut(point.x, point.y);
    } else {
      viewPort->ZoomIn(point.x, point.y);
    }
  }
  Repaint();
}

void CHullwrightView::OnSetCursor()
{
  ports_.cursor.SetCursor(dragging ? CursorShape::Hand : CursorShape::Cross);
}

void CHullwrightView::OnUser(Notification code)
{
  if (code == Notification::RepaintDesign) Repaint();
}

bool CHullwrightView::OnCommand(CommandId id)
{
  return RunCommand(ViewCommandTable::rows, *this, id);
}

CommandState CHullwrightView::QueryCommand(CommandId id) const
{
  return StateOf(ViewCommandTable::rows, *this, id);
}

std::u16string CHullwrightView::UnitsPaneText() { return u"Units: " + host_.GetUnitName(); }

void CHullwrightView::Repaint() { Draw(host_.LoadGridSettings()); }

void CHullwrightView::Draw(const GridSettings& grid)
{
  DrawScene(design_, viewPort.get(), newShape.get(), grid);
}

void CHullwrightView::DropReleasedItems()
{
  const auto drop = [this](PickedItem& item) {
    if (item.index() != 0 && !IsInDesign(design_, item)) item = ReleasedItem{};
  };
  drop(dragVertex);
  drop(hitVertex);
}

void CHullwrightView::ShowAllShapes()
{
  if (viewPort == nullptr) return;
  CShapes* const group = GetShapes(design_.shapeGroups, design_.activeView);
  if (group == nullptr || group->shapes.empty()) {
    if (viewPort->Recover()) Repaint();
    return;
  }
  Extents box;
  group->GetExtents(box);
  viewPort->FitOrCentre(box);
  Repaint();
}

ClientPoint CHullwrightView::PixelOf(const WorldPoint& world) const
{
  if (viewPort == nullptr) return {};
  const ScreenPoint p = viewPort->WorldToScreenFlat(world.x, world.y);
  return {TruncateToInt32(p.x), TruncateToInt32(p.y)};
}

}  // namespace hullwright
