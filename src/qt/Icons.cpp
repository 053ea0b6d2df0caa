#include "qt/Icons.h"

#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include "qt/QtText.h"

namespace hullwright {
namespace {

// The two colours that every icon is drawn in.
constexpr const char* ink = "#303438";
constexpr const char* accent = "#1f6fb2";
constexpr const char* lightAccent = "#6fb6f0";  ///< in its place on a dark background

QByteArray ReadIcon(std::string_view name)
{
  QFile file(QStringLiteral(":/icons/") + ToQString(name) + QStringLiteral(".svg"));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray InColours(QByteArray svg, const QColor& inkColour, const QColor& accentColour)
{
  svg.replace(ink, inkColour.name().toLatin1());
  svg.replace(accent, accentColour.name().toLatin1());
  return svg;
}

QPixmap Rendered(const QByteArray& svg, int size)
{
  QSvgRenderer renderer(svg);
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  return pixmap;
}

void AddSizes(QIcon& icon, const QByteArray& svg, QIcon::Mode mode)
{
  if (svg.isEmpty()) return;
  for (const int size : {16, 20, 24, 32, 48, 64, 128, 256}) {
    icon.addPixmap(Rendered(svg, size), mode);
  }
}

}  // namespace

QIcon ThemedIcon(std::string_view name, const QPalette& palette)
{
  const QByteArray svg = ReadIcon(name);
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  QIcon icon;
  AddSizes(icon,
           InColours(svg, palette.color(QPalette::WindowText), QColor(dark ? lightAccent : accent)),
           QIcon::Normal);
  // In a chosen row the background is the highlight colour, which the accent resembles.
  const QColor chosen = palette.color(QPalette::HighlightedText);
  AddSizes(icon, InColours(svg, chosen, chosen), QIcon::Selected);
  return icon;
}

QIcon ApplicationIcon()
{
  QIcon icon;
  AddSizes(icon, ReadIcon("app"), QIcon::Normal);
  return icon;
}

}  // namespace hullwright
