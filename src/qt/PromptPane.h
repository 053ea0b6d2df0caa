#pragma once

#include <QLabel>

namespace hullwright {

/// The pane of the status bar that shows what goes on. Of a text that is too long for it
/// both ends are shown; the whole text stands in the tooltip.
class PromptPane : public QLabel {
  Q_OBJECT

public:
  PromptPane(const QString& text, QWidget* parent);

  /// Shows a text, to the eye and to assistive technology.
  void Show(const QString& text);

  /// The whole text.
  const QString& Text() const { return text_; }

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void Elide();

  QString text_;
};

}  // namespace hullwright
