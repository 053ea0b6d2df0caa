#include "qt/SvgIconEngine.h"

#include <QApplication>
#include <QColor>
#include <QFile>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <algorithm>

namespace hullwright {
namespace {

/// A colour as the files write it.
QByteArray Written(QRgb colour) { return QColor(colour).name().toLatin1(); }

QByteArray InColours(const QString& path, const IconColours& colours)
{
  QFile file(path);
  QByteArray svg = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  for (const auto colour :
       {&IconColours::ink, &IconColours::accent, &IconColours::good, &IconColours::bad}) {
    svg.replace(Written(drawnColours.*colour), Written(colours.*colour));
  }
  return svg;
}

QPixmap Rendered(const QByteArray& svg, int side)
{
  QSvgRenderer renderer(svg);
  QPixmap pixmap(side, side);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  return pixmap;
}

/// What the style makes of an image for a mode that is not drawn from the file.
QPixmap Styled(const QPixmap& pixmap, QIcon::Mode mode)
{
  QStyleOption option(0);
  option.palette = QGuiApplication::palette();
  return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
}

}  // namespace

SvgIconEngine::SvgIconEngine(QString file, IconColours normal, std::optional<IconColours> selected)
    : file_(std::move(file)), normal_(normal), selected_(selected)
{
}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                          QIcon::State state)
{
  const QSize pixels = rect.size() * painter->device()->devicePixelRatioF();
  painter->drawPixmap(rect, pixmap(pixels, mode, state));
}

QSize SvgIconEngine::actualSize(const QSize& size, QIcon::Mode, QIcon::State)
{
  const int side = std::min(size.width(), size.height());
  return {side, side};
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
  const int side = actualSize(size, mode, state).width();
  if (side <= 0) return {};
  const bool selected = mode == QIcon::Selected && selected_;
  const QPixmap& drawn = Drawn(side, selected);
  return selected || mode == QIcon::Normal ? drawn : Styled(drawn, mode);
}

const QPixmap& SvgIconEngine::Drawn(int side, bool selected)
{
  QPixmap& pixmap = drawn_[{side, selected}];
  if (pixmap.isNull()) pixmap = Rendered(InColours(file_, selected ? *selected_ : normal_), side);
  return pixmap;
}

QList<QSize> SvgIconEngine::availableSizes(QIcon::Mode, QIcon::State)
{
  // Of title bars, lists of tasks and switchers; each larger one takes as long as all of these.
  QList<QSize> sizes;
  for (const int side : {16, 24, 32, 48, 64}) sizes.append({side, side});
  return sizes;
}

}  // namespace hullwright
