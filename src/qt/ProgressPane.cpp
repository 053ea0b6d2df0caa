#include "qt/ProgressPane.h"

#include <QApplication>
#include <QHBoxLayout>

namespace hullwright {

ProgressPane::ProgressPane(QWidget* parent)
    : QWidget(parent), text_(new QLabel(this)), bar_(new QProgressBar(this))
{
  constexpr int barWidth = 160;
  constexpr int all = 100;
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(2, 0, 2, 0);
  text_->setTextFormat(Qt::PlainText);
  row->addWidget(text_);
  bar_->setFixedWidth(barWidth);
  bar_->setRange(0, all);
  row->addWidget(bar_);
  row->addStretch(1);
  hide();
}

void ProgressPane::Start(const QString& text)
{
  QApplication::setOverrideCursor(Qt::WaitCursor);
  text_->setText(text);
  bar_->setAccessibleName(text);
  bar_->setValue(0);
  show();
  // Places are given and painted here, because no event is handled before the work is done.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  window()->repaint();
}

void ProgressPane::SetPercent(int percent)
{
  bar_->setValue(percent);
  bar_->repaint();
}

void ProgressPane::End()
{
  hide();
  QApplication::restoreOverrideCursor();
}

}  // namespace hullwright
