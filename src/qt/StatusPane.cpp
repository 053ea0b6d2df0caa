#include "qt/StatusPane.h"

#include <QMouseEvent>

namespace hullwright {

StatusPane::StatusPane(const QString& text, int width, QWidget* parent) : QLabel(parent)
{
  setFixedWidth(width);
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setMargin(2);
  setTextFormat(Qt::PlainText);
  Show(text);
}

void StatusPane::Show(const QString& shown)
{
  if (shown == text()) return;
  setText(shown);
  setAccessibleName(shown);
}

void StatusPane::mousePressEvent(QMouseEvent* event)
{
  if (event->button() == Qt::LeftButton && onPress) onPress();
  QLabel::mousePressEvent(event);
}

}  // namespace hullwright
