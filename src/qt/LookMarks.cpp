#include "qt/LookMarks.h"

#include <QPainter>
#include <QStyleOption>
#include <cmath>

#include "qt/Contrast.h"

namespace hullwright {
namespace {

constexpr double disabledPart = 0.6;  ///< of the way to the background

bool IsEnabled(const QStyleOption& option) { return option.state.testFlag(QStyle::State_Enabled); }

/// A colour for a shape on a background; paler where the option is disabled.
QColor ShapeColour(const QStyleOption& option, const QColor& wanted, const QColor& background)
{
  const QColor seen = WithContrast(wanted, background);
  return IsEnabled(option) ? seen : Mix(seen, background, disabledPart);
}

/// The largest square in the middle of a rectangle, on the middles of pixels.
QRectF Square(const QRect& rect)
{
  const double side = qMin(rect.width(), rect.height()) - 1;
  const QPointF corner = QRectF(rect).center() - QPointF(side / 2, side / 2);
  return {std::floor(corner.x()) + 0.5, std::floor(corner.y()) + 0.5, side, side};
}

/// The edge of a box or circle: it stands on the window and holds the colour of fields.
QPen Edge(const QStyleOption& option)
{
  const QColor window = option.palette.color(QPalette::Window);
  // Darker than it must be: what smoothing leaves of a thin line at its edges is paler.
  const QColor grey = Mix(option.palette.color(QPalette::WindowText), window, 0.25);
  return {ShapeColour(option, grey, window), 1.2};
}

QColor MarkColour(const QStyleOption& option)
{
  return ShapeColour(option, option.palette.color(QPalette::Highlight),
                     option.palette.color(QPalette::Base));
}

}  // namespace

void DrawDownButton(QPainter& painter, const QStyleOption& option)
{
  constexpr double tint = 0.25;
  constexpr double roundness = 2.0;
  const QColor window = option.palette.color(QPalette::Window);
  const QColor highlight = option.palette.color(QPalette::Active, QPalette::Highlight);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ShapeColour(option, highlight, window), 1.0));
  painter.setBrush(Mix(window, highlight, tint));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), roundness, roundness);
  painter.restore();
}

void DrawRadioButton(QPainter& painter, const QStyleOption& option)
{
  const QRectF circle = Square(option.rect);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Edge(option));
  painter.setBrush(option.palette.color(QPalette::Base));
  painter.drawEllipse(circle);
  if (option.state.testFlag(QStyle::State_On)) {
    const double inset = circle.width() / 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(MarkColour(option));
    painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
  }
  painter.restore();
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option)
{
  const QRectF box = Square(option.rect);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Edge(option));
  painter.setBrush(option.palette.color(QPalette::Base));
  painter.drawRect(box);
  const double side = box.width();
  painter.setPen(QPen(MarkColour(option), side / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  if (option.state.testFlag(QStyle::State_On)) {
    painter.translate(box.topLeft());
    painter.drawPolyline(QPolygonF(
        {{0.22 * side, 0.52 * side}, {0.42 * side, 0.74 * side}, {0.78 * side, 0.26 * side}}));
  }
  painter.restore();
}

void DrawFieldEdge(QPainter& painter, const QStyleOption& option)
{
  constexpr double roundness = 2.0;
  const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus);
  const QColor window = option.palette.color(QPalette::Window);
  const QColor wanted = hasFocus ? option.palette.color(QPalette::Highlight)
                                 : Mix(window, option.palette.color(QPalette::WindowText), 0.35);
  const double width = hasFocus ? 2.0 : 1.0;
  const double inset = width / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ShapeColour(option, wanted, window), width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), roundness,
                          roundness);
  painter.restore();
}

void DrawSlider(QPainter& painter, const QStyleOption& option, const QRect& place)
{
  constexpr double inset = 2.5;
  constexpr double roundness = 4.0;
  // The groove is nearer to it than the window.
  constexpr double contrast = shapeContrast * 1.2;
  const QColor window = option.palette.color(QPalette::Window);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(WithContrast(Mix(window, option.palette.color(QPalette::WindowText), 0.45),
                                window, contrast));
  painter.drawRoundedRect(QRectF(place).adjusted(inset, inset, -inset, -inset), roundness,
                          roundness);
  painter.restore();
}

void DrawBranch(QPainter& painter, const QStyleOption& option)
{
  constexpr int boxSide = 9;
  const QColor base = option.palette.color(QPalette::Base);
  const QColor text = option.palette.color(QPalette::Text);
  const QRect& place = option.rect;
  const QPoint middle = place.center();
  const bool isItem = option.state.testFlag(QStyle::State_Item);
  painter.save();
  painter.setPen(Mix(text, base, 0.5));
  if (isItem || option.state.testFlag(QStyle::State_Sibling)) {
    const bool goesOn = option.state.testFlag(QStyle::State_Sibling);
    painter.drawLine(middle.x(), place.top(), middle.x(), goesOn ? place.bottom() : middle.y());
  }
  if (isItem) painter.drawLine(middle.x(), middle.y(), place.right(), middle.y());
  if (option.state.testFlag(QStyle::State_Children)) {
    const QRect box(middle.x() - boxSide / 2, middle.y() - boxSide / 2, boxSide - 1, boxSide - 1);
    painter.setPen(ShapeColour(option, Mix(text, base, 0.4), base));
    painter.setBrush(base);
    painter.drawRect(box);
    painter.setPen(text);
    constexpr int arm = boxSide / 2 - 2;
    painter.drawLine(middle.x() - arm, middle.y(), middle.x() + arm, middle.y());
    if (!option.state.testFlag(QStyle::State_Open)) {
      painter.drawLine(middle.x(), middle.y() - arm, middle.x(), middle.y() + arm);
    }
  }
  painter.restore();
}

}  // namespace hullwright
