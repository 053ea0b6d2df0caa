#pragma once

#include <QApplication>
#include <QPaintEvent>
#include <QWidget>

namespace hullwright::test {

/// Counts the paints that a widget gets from the toolkit's own loop; a picture that a test grabs is
/// painted without being asked for.
class PaintCounter : public QObject {
public:
  /// What was asked for before doesn't count.
  explicit PaintCounter(QWidget& widget)
  {
    widget.installEventFilter(this);
    Settle();
    count = 0;
    painted = {};
  }

  /// Lets what was asked for be painted, and what that asks for.
  void Settle()
  {
    int before = 0;
    do {
      before = count;
      QApplication::processEvents();
    } while (count != before);
  }

  int count = 0;
  QRegion painted;  ///< what all of them covered

  bool eventFilter(QObject*, QEvent* event) override
  {
    if (event->type() != QEvent::Paint) return false;
    ++count;
    painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

}  // namespace hullwright::test
