#include "qt/DesignWidget.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPen>
#include <cmath>
#include <utility>

#include "qt/QtText.h"

namespace hullwright {
namespace {

ClientPoint PixelOf(const QPointF& position)
{
  return {static_cast<std::int32_t>(std::floor(position.x())),
          static_cast<std::int32_t>(std::floor(position.y()))};
}

}  // namespace

DesignWidget::DesignWidget(QWidget* parent) : QWidget(parent), surface_(0, 0)
{
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(120, 90);
  setCursor(Qt::CrossCursor);
  setAccessibleName(tr("Design view"));
  setAccessibleDescription(tr("Outline of the vessel, seen from the selected side"));
  surface_.onFrame = [this] { update(); };
}

void DesignWidget::Attach(CHullwrightView& view)
{
  view_ = &view;
  view.OnCreate(&target_);
}

void DesignWidget::SetCursor(CursorShape shape)
{
  setCursor(shape == CursorShape::Hand ? Qt::PointingHandCursor : Qt::CrossCursor);
}

void DesignWidget::InvertLine(ClientPoint from, ClientPoint to)
{
  // The band is laid over the picture at the next paint, never drawn into it.
  if (!(from == to)) update();
}

void DesignWidget::Show(std::span<const PopupEntry> entries, ClientPoint at)
{
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const PopupEntry& entry : entries) {
    if (entry.id == CommandId::None) {
      menu->addSeparator();
      continue;
    }
    QAction* const action = menu->addAction(ToQString(entry.text));
    if (iconOf) action->setIcon(iconOf(entry.id));
    connect(action, &QAction::triggered, this, [this, id = entry.id] {
      if (view_ != nullptr) view_->OnMenuCommand(id);
      Q_EMIT ViewChanged();
    });
  }
  menu->popup(mapToGlobal(QPoint(at.x, at.y)));
}

void DesignWidget::paintEvent(QPaintEvent*)
{
  if (surface_.Ratio() != devicePixelRatioF()) Resized();  // the window has gone to another monitor
  QPainter painter(this);
  if (surface_.Picture().isNull()) {
    painter.fillRect(rect(), palette().window());
  } else {
    painter.drawImage(0, 0, surface_.Picture());
    PaintRubberBand(painter);
  }
  if (hasFocus()) PaintFocusMark(painter);
}

void DesignWidget::PaintFocusMark(QPainter& painter) const
{
  painter.fillRect(0, 0, width(), 1, palette().highlight());
  painter.fillRect(0, height() - 1, width(), 1, palette().highlight());
  painter.fillRect(0, 0, 1, height(), palette().highlight());
  painter.fillRect(width() - 1, 0, 1, height(), palette().highlight());
}

void DesignWidget::PaintRubberBand(QPainter& painter) const
{
  if (view_ == nullptr || !view_->HasRubberBand()) return;
  const QPoint from(view_->lastPoint.x, view_->lastPoint.y);
  const QPoint to(view_->cursorPoint.x, view_->cursorPoint.y);
  // Inverting keeps the line visible on paper and on ink.
  QPen pen(Qt::white, 1.0);
  pen.setCosmetic(true);
  pen.setDashPattern({6.0, 4.0});
  painter.setPen(pen);
  painter.setCompositionMode(QPainter::CompositionMode_Difference);
  painter.drawLine(from, to);
}

void DesignWidget::resizeEvent(QResizeEvent*) { Resized(); }

void DesignWidget::Resized()
{
  surface_.SetRatio(devicePixelRatioF());
  if (view_ != nullptr) view_->OnSize(width(), height());
}

void DesignWidget::mousePressEvent(QMouseEvent* event)
{
  if (view_ == nullptr) return;
  Q_EMIT Pressed();
  if (event->button() == Qt::LeftButton) {
    setFocus(Qt::MouseFocusReason);
    view_->OnLButtonDown(PixelOf(event->position()));
  } else if (event->button() == Qt::RightButton) {
    view_->OnRButtonDown(PixelOf(event->position()));
  }
  Q_EMIT ViewChanged();
}

void DesignWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
  // Fast clicks are clicks: each one adds its vertex or takes its zoom step. Not so on the right,
  // where the first one has finished the polyline and the second would open a menu.
  if (event->button() == Qt::LeftButton) mousePressEvent(event);
}

void DesignWidget::mouseReleaseEvent(QMouseEvent* event)
{
  if (view_ == nullptr || event->button() != Qt::LeftButton) return;
  view_->OnLButtonUp(PixelOf(event->position()));
  Q_EMIT ViewChanged();
}

void DesignWidget::mouseMoveEvent(QMouseEvent* event)
{
  if (view_ == nullptr) return;
  view_->OnSetCursor();
  view_->OnMouseMove(event->buttons().testFlag(Qt::LeftButton), PixelOf(event->position()));
  Q_EMIT Moved();
}

void DesignWidget::wheelEvent(QWheelEvent* event)
{
  constexpr int notch = 120;
  if (view_ == nullptr) return;
  event->accept();
  // Fine-grained wheels and touchpads send fractions of a notch; those are gathered to a message. A
  // message is one step, however far the wheel was turned.
  const int turn = event->angleDelta().y();
  if (turn == 0) return;
  wheelTurn_ = (turn < 0) == (wheelTurn_ < 0) ? wheelTurn_ + turn : turn;
  if (std::abs(wheelTurn_) < notch) return;
  view_->OnMouseWheel(std::exchange(wheelTurn_, 0), PixelOf(event->position()));
  Q_EMIT ViewChanged();
}

void DesignWidget::contextMenuEvent(QContextMenuEvent* event)
{
  event->accept();
  // The mouse's right button has done its work at the press. While drawing, the key has none to do:
  // it would finish the polyline.
  if (event->reason() != QContextMenuEvent::Keyboard || view_ == nullptr || view_->drawing) return;
  view_->OnRButtonDown(PixelOf(event->pos()));
  Q_EMIT ViewChanged();
}

}  // namespace hullwright
