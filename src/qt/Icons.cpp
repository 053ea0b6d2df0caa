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

QByteArray ReadIcon(std::string_view name)
{
  QFile file(QStringLiteral(":/icons/") + ToQString(name) + QStringLiteral(".svg"));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

QIcon FromSvg(const QByteArray& svg)
{
  QIcon icon;
  if (svg.isEmpty()) return icon;
  for (const int size : {16, 20, 24, 32, 48, 64, 128, 256}) icon.addPixmap(Rendered(svg, size));
  return icon;
}

}  // namespace

QIcon ThemedIcon(std::string_view name, const QPalette& palette)
{
  QByteArray svg = ReadIcon(name);
  const QColor text = palette.color(QPalette::WindowText);
  const bool dark = palette.color(QPalette::Window).lightness() < 128;
  svg.replace(ink, text.name().toLatin1());
  if (dark) svg.replace(accent, "#6fb6f0");
  return FromSvg(svg);
}

QIcon ApplicationIcon() { return FromSvg(ReadIcon("app")); }

}  // namespace hullwright
