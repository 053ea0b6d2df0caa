#pragma once

#include <memory>
#include <string>

#include "model/DesignState.h"
#include "model/ShapePolyline.h"
#include "platform/Drawing.h"
#include "platform/MainWindowPort.h"
#include "platform/MessageBoxes.h"
#include "platform/Pointer.h"
#include "platform/PopupMenu.h"
#include "render/Canvas.h"
#include "render/ViewPort.h"
#include "resources/CommandHandler.h"
#include "view/PickedItem.h"
#include "view/ViewHost.h"

namespace hullwright {

/// The view of the design: mouse and wheel come in, the picture goes out on the canvas. It is idle,
/// dragging (`dragging`) or drawing a polyline (`drawing`). `OnCreate` must run before any event;
/// it takes over the design's viewport, which goes with the view. Every handler that changes the
/// picture repaints it whole before it returns.
class CHullwrightView {
public:
  /// What the view asks of the platform.
  struct Ports {
    IMessageBoxes& messages;
    ICursor& cursor;
    IRubberBand& rubberBand;
    IPopupMenu& popupMenu;
  };

  CHullwrightView(DesignState& design, IViewHost& host, const Ports& ports);
  CHullwrightView(const CHullwrightView&) = delete;
  CHullwrightView& operator=(const CHullwrightView&) = delete;
  ~CHullwrightView();

  /// Makes the canvas on the window's target, which must outlive the view. A canvas that fails is
  /// reported in a message; the view goes on without a picture.
  void OnCreate(IDrawingTarget* target);

  void OnSize(int cx, int cy);
  void OnLButtonDown(ClientPoint point);
  void OnLButtonUp(ClientPoint point);
  void OnRButtonDown(ClientPoint point);
  void OnMouseMove(bool leftButton, ClientPoint point);

  /// One step for each message whatever the size of `delta`: negative zooms out, all else in.
  void OnMouseWheel(int delta, ClientPoint point);

  /// The platform asks for the cursor over the client area.
  void OnSetCursor();

  /// A notification passed on by the main window; only the repaint is acted on.
  void OnUser(Notification code);

  /// Carries out one of the view's own commands; false for any other.
  bool OnCommand(CommandId id);

  /// How one of the view's own commands looks at the moment; disabled for any other.
  CommandState QueryCommand(CommandId id) const;

  /// A command of the context menu; any other id does nothing.
  void OnMenuCommand(CommandId id);

  /// Text of the units pane.
  std::u16string UnitsPaneText();

  /// Whether there is a rubber band to show, from `lastPoint` to `cursorPoint`.
  bool HasRubberBand() const;

  /// Draws one whole frame.
  void Repaint();

  /// Forgets picked items that are no longer in the design, so that none is written after its
  /// release.
  void DropReleasedItems();

  PickedItem dragVertex;  ///< what a drag would move
  PickedItem hitVertex;   ///< what was hit last; outlives the hover
  bool dragging = false;
  bool drawing = false;
  HitKind hitKind = HitKind::None;
  ClientPoint cursorPoint;                      ///< free end of the rubber band
  ClientPoint lastPoint;                        ///< fixed end of the rubber band
  ClientPoint menuPoint;                        ///< where the last context menu was opened
  std::unique_ptr<CViewPortDesigner> viewPort;  ///< null until the window exists
  std::unique_ptr<CShapePolyline> newShape;     ///< the polyline under construction
  std::u16string statusText;                    ///< text of the coordinates pane

private:
  friend struct ViewCommandTable;

  // Picking and dragging (VertexPicking.cpp)
  bool HitVertex(ClientPoint point);
  void ClearPick();
  void DragTo(const WorldPoint& world, const GridSettings& grid);
  void EndDrag(ClientPoint point);
  WorldPoint SnappedWorld(ClientPoint point, const GridSettings& grid) const;

  // Context menu (ContextMenu.cpp)
  void OfferMenu(ClientPoint point, bool hit);
  void ZoomByMenu(void (CViewPort::*zoom)(double, double));
  void EditItem();

  /// The polyline marked in the tree, which takes new vertices whatever is under the mouse. Null if
  /// the first marked shape is none. The side gets its group where it has none.
  CShape* FindMarkedPolyline();
  void AddVertex();
  void AddAnchor();
  void RemoveHit();

  // Polyline tool (PolylineTool.cpp)
  void BeginPolyline();
  void AddPolylineVertex(const GridSettings& grid);
  void MoveRubberBand(const WorldPoint& world);
  void FinishPolyline();

  // An event reads the grid settings once and hands them on, since each reading goes to the store;
  // a notification of the design reads them anew for the frame that it asks for.
  void Draw(const GridSettings& grid);
  void ShowAllShapes();
  ClientPoint PixelOf(const WorldPoint& world) const;

  DesignState& design_;
  IViewHost& host_;
  Ports ports_;
  std::unique_ptr<CCanvas> canvas_;
};

}  // namespace hullwright
