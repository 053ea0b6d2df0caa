#include "qt/DesignWidget.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

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
  setAccessibleName(tr("Design view"));
  setAccessibleDescription(tr("Outline of the vessel, seen from the selected side"));
  surface_.onFrame = [this] { update(); };
}

void DesignWidget::Attach(CHullwrightView& view)
{
  view_ = &view;
  view.OnCreate(&surface_);
}

void DesignWidget::SetCursor(CursorShape shape)
{
  setCursor(shape == CursorShape::Hand ? Qt::PointingHandCursor : Qt::CrossCursor);
}

void DesignWidget::InvertLine(ClientPoint from, ClientPoint to)
{
  surface_.InvertLine(from, to);
  update();
}

void DesignWidget::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  if (surface_.Picture().isNull()) {
    painter.fillRect(rect(), palette().window());
  } else {
    painter.drawImage(0, 0, surface_.Picture());
  }
}

void DesignWidget::resizeEvent(QResizeEvent*)
{
  surface_.SetRatio(devicePixelRatioF());
  if (view_ != nullptr) view_->OnSize(width(), height());
}

void DesignWidget::mousePressEvent(QMouseEvent* event)
{
  if (view_ == nullptr) return;
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
  // Fast clicks are clicks: each one adds its vertex or takes its zoom step.
  mousePressEvent(event);
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
  Q_EMIT ViewChanged();
}

void DesignWidget::wheelEvent(QWheelEvent* event)
{
  constexpr int notch = 120;
  if (view_ == nullptr) return;
  // Fine-grained wheels and touchpads send fractions of a notch; the view steps once a message.
  wheelTurn_ += event->angleDelta().y();
  for (; std::abs(wheelTurn_) >= notch; wheelTurn_ -= wheelTurn_ > 0 ? notch : -notch) {
    view_->OnMouseWheel(wheelTurn_ > 0 ? notch : -notch, PixelOf(event->position()));
  }
  event->accept();
  Q_EMIT ViewChanged();
}

void DesignWidget::contextMenuEvent(QContextMenuEvent* event)
{
  // The right button has done its work at the press.
  event->accept();
}

}  // namespace hullwright
