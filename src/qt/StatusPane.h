#pragma once

#include <QLabel>
#include <functional>

namespace hullwright {

/// A pane of the status bar. A left press runs `onPress`, where there is one.
class StatusPane : public QLabel {
  Q_OBJECT

public:
  StatusPane(const QString& text, int width, QWidget* parent);

  /// Shows a text, to the eye and to assistive technology.
  void Show(const QString& text);

  std::function<void()> onPress;

protected:
  void mousePressEvent(QMouseEvent* event) override;
};

}  // namespace hullwright
