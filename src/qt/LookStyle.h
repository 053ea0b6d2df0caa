#pragma once

#include <QProxyStyle>

namespace hullwright {

/// A style of the toolkit's with marks that can be seen in every look: buttons that are down, check
/// boxes and radio buttons, edges of edit fields, sliders of scroll bars, lines and boxes of trees,
/// the buttons of panes, images of chosen menu entries.
class LookStyle : public QProxyStyle {
  Q_OBJECT

public:
  /// Over a style by the toolkit's name for it.
  explicit LookStyle(const QString& base);

  const QString& Base() const { return base_; }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;

private:
  /// Whether the style draws fields and sliders with dark edges of its own.
  bool Is3d() const;

  QString base_;
};

/// Makes the contents of a toolbar compact, or gives them the style's own distances back.
void SetCompact(QWidget& toolBar, bool compact);

}  // namespace hullwright
