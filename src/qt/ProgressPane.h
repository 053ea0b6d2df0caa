#pragma once

#include <QLabel>
#include <QProgressBar>

namespace hullwright {

/// A text with a progress bar in the status bar, for work that keeps the program busy: what it
/// gets is on the screen at once, without the event loop.
class ProgressPane : public QWidget {
  Q_OBJECT

public:
  explicit ProgressPane(QWidget* parent);

  /// Shows the pane and the wait cursor, at 0; each start needs its end.
  void Start(const QString& text);

  /// From 0 to 100.
  void SetPercent(int percent);

  void End();

private:
  QLabel* text_;
  QProgressBar* bar_;
};

}  // namespace hullwright
