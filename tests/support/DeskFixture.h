#pragma once

#include <QMouseEvent>
#include <QStatusBar>
#include <QWheelEvent>

#include "qt/Shell.h"
#include "support/ShellFixture.h"

namespace hullwright::test {

/// The whole program with the sample of a workboat in its window.
class DeskFixture : public ShellFixture {
protected:
  DeskFixture()
  {
    shell = std::make_unique<Shell>(QStringLiteral(HULLWRIGHT_SAMPLES "/workboat.xml"));
    started = shell->App().InitInstance(*shell);
    Window().resize(1280, 860);
    QApplication::processEvents();
  }

  MainWindow& Window() { return *shell->Window(); }
  ObjectTreeWidget& Tree() { return *Window().findChild<ObjectTreeWidget*>(); }
  DesignWidget& View() { return *Window().findChild<DesignWidget*>(); }

  QAction* Action(const char* text)
  {
    for (QAction* action : Window().findChildren<QAction*>()) {
      if (action->text().remove(QLatin1Char('&')) == QLatin1String(text)) return action;
    }
    return nullptr;
  }

  void Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held)
  {
    QMouseEvent event(type, at, View().mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&View(), &event);
  }
  void Move(QPoint at) { Mouse(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton); }
  void Click(QPoint at)
  {
    Move(at);
    Mouse(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  }
  void Wheel(int turn)
  {
    QWheelEvent event(QPointF(200, 200), View().mapToGlobal(QPointF(200, 200)), QPoint(),
                      QPoint(0, turn), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&View(), &event);
  }

  QString PaneText(int index)
  {
    return Window().statusBar()->findChildren<StatusPane*>().at(index)->text();
  }

  std::unique_ptr<Shell> shell;
  bool started = false;
};

}  // namespace hullwright::test
