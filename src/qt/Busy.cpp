#include "qt/Busy.h"

#include <QApplication>
#include <QTimer>

namespace hullwright {

void ShowBusy()
{
  QApplication::setOverrideCursor(Qt::WaitCursor);
  QTimer::singleShot(0, qApp, [] { QApplication::restoreOverrideCursor(); });
}

}  // namespace hullwright
