#pragma once

#include <QIcon>
#include <QWidget>
#include <functional>

#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "platform/Pointer.h"
#include "view/HullwrightView.h"

class QPainter;

namespace hullwright {

/// The widget of the design view: shows the picture that the view paints, and hands the mouse to
/// the view. Positions are client pixels.
class DesignWidget : public QWidget, public ICursor, public IRubberBand, public IPopupMenu {
  Q_OBJECT

public:
  explicit DesignWidget(QWidget* parent = nullptr);

  /// Creates the view's canvas in this widget; the view must outlive the widget's events.
  void Attach(CHullwrightView& view);
  void Detach() { view_ = nullptr; }

  void SetCursor(CursorShape shape) override;
  void InvertLine(ClientPoint from, ClientPoint to) override;
  void Show(std::span<const PopupEntry> entries, ClientPoint at) override;

  /// Gives the entries of context menus their images.
  std::function<QIcon(CommandId)> iconOf;

Q_SIGNALS:
  /// A button is being pressed; the view has not seen it yet.
  void Pressed();

  /// The mouse has moved over the view, which may have changed what the panes show.
  void Moved();

  /// Any other mouse event has run through the view; commands may look different, too.
  void ViewChanged();

protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  void Resized();
  void PaintRubberBand(QPainter& painter) const;
  void PaintFocusMark(QPainter& painter) const;

  PaintSurface surface_;
  PaintTarget target_{surface_};
  CHullwrightView* view_ = nullptr;
  int wheelTurn_ = 0;  ///< turn that has not made up a notch yet
};

}  // namespace hullwright
