#include "qt/PromptPane.h"

namespace hullwright {

PromptPane::PromptPane(const QString& text, QWidget* parent) : QLabel(parent)
{
  setMargin(2);
  setTextFormat(Qt::PlainText);
  // A long text must not make the window wider.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  Show(text);
}

void PromptPane::Show(const QString& text)
{
  if (text == text_) return;
  text_ = text;
  setAccessibleName(text);
  Elide();
}

void PromptPane::resizeEvent(QResizeEvent* event)
{
  QLabel::resizeEvent(event);
  Elide();
}

void PromptPane::Elide()
{
  const QString shown = fontMetrics().elidedText(text_, Qt::ElideMiddle, width() - 2 * margin());
  setText(shown);
  // Escaped: a tooltip takes a name such as "<b>.xml" for rich text.
  setToolTip(shown == text_ ? QString() : text_.toHtmlEscaped());
}

}  // namespace hullwright
