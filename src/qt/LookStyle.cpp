#include "qt/LookStyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDockWidget>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>
#include <QToolBar>

#include "qt/LookMarks.h"

namespace hullwright {
namespace {

constexpr const char* compactProperty = "compact";

bool IsCompact(const QWidget* widget)
{
  if (widget == nullptr) return false;
  const QWidget* const bar =
      qobject_cast<const QToolBar*>(widget) != nullptr ? widget : widget->parentWidget();
  return bar != nullptr && bar->property(compactProperty).toBool();
}

/// A sign on the button of a pane, drawn in the colour that the palette has at the time.
class PaneSign : public QIconEngine {
public:
  explicit PaneSign(bool isCross) : isCross_(isCross) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
  {
    const QPalette palette = QApplication::palette();
    const double side = qMin(rect.width(), rect.height());
    const double inset = side / 5;
    const QRectF sign =
        QRectF(rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2, side, side)
            .adjusted(inset, inset, -inset, -inset);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        QPen(palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                           QPalette::WindowText),
             qMax(1.0, side / 10)));
    if (isCross_) {
      painter->drawLine(sign.topLeft(), sign.bottomRight());
      painter->drawLine(sign.topRight(), sign.bottomLeft());
    } else {
      painter->drawRect(sign);
      painter->drawLine(sign.topLeft() + QPointF(0, 1), sign.topRight() + QPointF(0, 1));
    }
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
  {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new PaneSign(*this); }

private:
  bool isCross_;
};

bool IsDown(const QStyleOption& option)
{
  return (option.state & (QStyle::State_On | QStyle::State_Sunken)) != 0;
}

}  // namespace

LookStyle::LookStyle(const QString& base) : QProxyStyle(base), base_(base) {}

bool LookStyle::Is3d() const { return base_ == QLatin1String("Windows"); }

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
  switch (element) {
    case PE_IndicatorRadioButton: return DrawRadioButton(*painter, *option);
    case PE_IndicatorCheckBox: return DrawCheckBox(*painter, *option);
    case PE_IndicatorBranch: return DrawBranch(*painter, *option);
    case PE_FrameLineEdit:
      if (!Is3d()) return DrawFieldEdge(*painter, *option);
      break;
    case PE_PanelButtonTool:
      if (IsDown(*option)) return DrawDownButton(*painter, *option);
      break;
    default: break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
  const auto* const entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  const QStyle::State chosen = State_Selected | State_Enabled;
  if (element != CE_MenuItem || entry == nullptr || entry->icon.isNull() ||
      (entry->state & chosen) != chosen) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  // The styles draw the image of a chosen entry as that of any other.
  QStyleOptionMenuItem changed = *entry;
  const int side = proxy()->pixelMetric(PM_SmallIconSize, option, widget);
  const double ratio = widget != nullptr ? widget->devicePixelRatioF() : 1.0;
  changed.icon = QIcon(entry->icon.pixmap(QSize(side, side), ratio, QIcon::Selected));
  QProxyStyle::drawControl(element, &changed, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
  const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control != CC_ScrollBar || bar == nullptr || Is3d() || bar->minimum == bar->maximum) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  QStyleOptionSlider rest = *bar;
  rest.subControls &= ~SC_ScrollBarSlider;
  QProxyStyle::drawComplexControl(control, &rest, painter, widget);
  DrawSlider(*painter, *bar, proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget));
}

QIcon LookStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                              const QWidget* widget) const
{
  if (qobject_cast<const QDockWidget*>(widget) != nullptr) {
    if (icon == SP_TitleBarCloseButton) return QIcon(new PaneSign(true));
    if (icon == SP_TitleBarNormalButton) return QIcon(new PaneSign(false));
  }
  return QProxyStyle::standardIcon(icon, option, widget);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
  constexpr int compactSeparator = 4;
  const int own = QProxyStyle::pixelMetric(metric, option, widget);
  if (!IsCompact(widget)) return own;
  switch (metric) {
    case PM_ToolBarSeparatorExtent: return qMin(own, compactSeparator);
    case PM_ToolBarItemSpacing: return 0;
    default: return own;
  }
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const
{
  constexpr int compactMargin = 2;
  const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type != CT_ToolButton || !IsCompact(widget)) return own;
  return {qMin(own.width(), size.width() + compactMargin), own.height()};
}

void SetCompact(QWidget& toolBar, bool compact)
{
  if (toolBar.property(compactProperty).toBool() == compact) return;
  toolBar.setProperty(compactProperty, compact);
  // Buttons and layout keep what they have measured until the style is another.
  for (auto* const button : toolBar.findChildren<QAbstractButton*>()) {
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(button, &change);
  }
  QEvent change(QEvent::StyleChange);
  QApplication::sendEvent(&toolBar, &change);
}

}  // namespace hullwright
