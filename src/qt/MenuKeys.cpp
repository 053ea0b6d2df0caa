#include "qt/MenuKeys.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>

namespace hullwright {

bool OpenMenuByKey(const QMainWindow& window, const QKeyEvent& event)
{
  if (event.key() != Qt::Key_F10) return false;
  if (event.modifiers() == Qt::NoModifier) {
    window.menuBar()->setActiveAction(window.menuBar()->actions().constFirst());
    return true;
  }
  QWidget* const focus = window.focusWidget();
  if (event.modifiers() != Qt::ShiftModifier || focus == nullptr) return false;
  const QPoint middle = focus->rect().center();
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
  QApplication::sendEvent(focus, &menu);
  return true;
}

}  // namespace hullwright
