#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QWheelEvent>
#include <initializer_list>
#include <memory>

#include "qt/DesignWidget.h"
#include "resources/CommandIds.h"
#include "support/ViewFixture.h"

namespace hullwright::test {

/// The widget alone, 800 by 600 client pixels of a view 200 wide, with a view that works in it.
/// Snapping and grid are off.
class DesignPaneFixture : public testing::Test {
protected:
  DesignPaneFixture()
  {
    host.viewPort = std::make_unique<CViewPortDesigner>();
    design.viewPort = host.viewPort.get();
    design.activeView = ViewSide::Right;
    host.grid.snap = 0;
    host.grid.show = 0;
    widget.Attach(view);
    widget.resize(800, 600);
    widget.show();
    QApplication::processEvents();
  }
  ~DesignPaneFixture() override { widget.Detach(); }

  /// Adds a polyline to the side in view.
  CShapePolyline& AddLine(std::initializer_list<CShapeVertex> vertices)
  {
    return test::AddLine(design, design.activeView, vertices);
  }

  void Mouse(QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held)
  {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
  }
  void Move(QPointF at, Qt::MouseButtons held = Qt::NoButton)
  {
    Mouse(QEvent::MouseMove, at, Qt::NoButton, held);
  }
  void Press(QPointF at, Qt::MouseButton button)
  {
    Mouse(QEvent::MouseButtonPress, at, button, button);
  }
  void Release(QPointF at, Qt::MouseButton button, Qt::MouseButtons held = Qt::NoButton)
  {
    Mouse(QEvent::MouseButtonRelease, at, button, held);
  }
  void Turn(QPoint angle)
  {
    QWheelEvent event(QPointF(200, 200), widget.mapToGlobal(QPointF(200, 200)), QPoint(), angle,
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
  }

  /// Begins a polyline at a pixel.
  void BeginLineAt(QPointF at)
  {
    view.OnCommand(CommandId::DrawPolyline);
    Move(at);
    Press(at, Qt::LeftButton);
    Release(at, Qt::LeftButton);
  }

  QImage Shown() { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  /// The context menu that is open; null when there is none.
  static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  KeptMessages messages;
  FakeHost host;
  DesignState design;
  DesignWidget widget;
  CHullwrightView view{design, host, {messages, widget, widget, widget}};
};

}  // namespace hullwright::test
