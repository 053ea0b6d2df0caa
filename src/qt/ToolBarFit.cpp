#include "qt/ToolBarFit.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include "base/Code.h"
#include "qt/LookStyle.h"

namespace hullwright {
namespace {

void Apply(QToolBar& bar, Density density)
{
  const bool hasLabels = density == Density::Wide || density == Density::Compact;
  const Qt::ToolButtonStyle style =
      hasLabels ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly;
  if (bar.toolButtonStyle() != style) bar.setToolButtonStyle(style);
  // These two don't follow the toolbar, or would follow it too far.
  if (auto* const side = bar.findChild<QToolButton*>(QLatin1String(sideButtonName))) {
    side->setToolButtonStyle(style);
  }
  if (auto* const customize = bar.findChild<QToolButton*>(QLatin1String(customizeButtonName))) {
    customize->setToolButtonStyle(Qt::ToolButtonIconOnly);
  }
  SetCompact(bar, density == Density::Compact || density == Density::CompactIcons);
}

}  // namespace

ToolBarFit::ToolBarFit(QMainWindow& window) : QObject(&window), window_(window)
{
  window.installEventFilter(this);
}

void ToolBarFit::SetBars(const QList<QToolBar*>& bars)
{
  bars_ = bars;
  Forget();
  for (const QToolBar* const bar : bars_) {
    connect(bar, &QToolBar::orientationChanged, this, [this] {
      Forget();
      Fit();
    });
    connect(bar, &QToolBar::topLevelChanged, this, [this] { Fit(); });
    connect(bar, &QToolBar::visibilityChanged, this, [this] { Fit(); });
  }
}

void ToolBarFit::Forget() { needed_.clear(); }

bool ToolBarFit::eventFilter(QObject* object, QEvent* event)
{
  switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
      // The toolbars get theirs in any order.
      QTimer::singleShot(0, this, [this] {
        Forget();
        Fit();
      });
      break;
    case QEvent::Resize:
    case QEvent::Show: Fit(); break;
    default: break;
  }
  return QObject::eventFilter(object, event);
}

QList<ToolBarFit::Line> ToolBarFit::Lines() const
{
  QList<Line> lines;
  for (QToolBar* const bar : bars_) {
    if (bar->isHidden() || bar->isFloating()) continue;
    const bool across = bar->orientation() == Qt::Horizontal;
    const auto isSame = [this, bar, across](const Line& line) {
      const QToolBar* const other = line.bars.constFirst();
      return window_.toolBarArea(other) == window_.toolBarArea(bar) &&
             (across ? other->y() == bar->y() : other->x() == bar->x());
    };
    auto line = std::find_if(lines.begin(), lines.end(), isSame);
    if (line == lines.end()) line = lines.insert(lines.end(), Line());
    line->bars.append(bar);
    // Toolbars that stand below each other fill their line.
    line->length = across ? window_.width() : line->length + bar->height();
  }
  return lines;
}

int ToolBarFit::Needed(QToolBar& bar, Density density)
{
  auto entry = needed_.find(&bar);
  if (entry == needed_.end()) entry = needed_.insert(&bar, {unknown, unknown, unknown, unknown});
  int& needed = entry.value().at(static_cast<std::size_t>(NumberOf(density)));
  if (needed == unknown) {
    Apply(bar, density);
    bar.layout()->invalidate();
    const QSize size = bar.sizeHint();
    needed = bar.orientation() == Qt::Horizontal ? size.width() : size.height();
  }
  return needed;
}

void ToolBarFit::FitLine(const Line& line)
{
  for (const Density density :
       {Density::Wide, Density::Compact, Density::Icons, Density::CompactIcons}) {
    int needed = 0;
    for (QToolBar* const bar : line.bars) needed += Needed(*bar, density);
    if (needed > line.length && density != Density::CompactIcons) continue;
    for (QToolBar* const bar : line.bars) Apply(*bar, density);
    return;
  }
}

void ToolBarFit::Fit()
{
  // What is not seen yet has no size that counts.
  if (!window_.isVisible()) return;
  for (const Line& line : Lines()) FitLine(line);
}

}  // namespace hullwright
