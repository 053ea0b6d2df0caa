#include "qt/Icons.h"

#include <QFile>
#include <QPalette>

#include "qt/Contrast.h"
#include "qt/QtText.h"
#include "qt/SvgIconEngine.h"

namespace hullwright {
namespace {

constexpr QRgb lightAccent = qRgb(0x6f, 0xb6, 0xf0);  ///< the accent on a dark background

QIcon FromFile(std::string_view name, const IconColours& normal,
               const std::optional<IconColours>& selected)
{
  const QString file = QStringLiteral(":/icons/") + ToQString(name) + QStringLiteral(".svg");
  return QFile::exists(file) ? QIcon(new SvgIconEngine(file, normal, selected)) : QIcon();
}

}  // namespace

QIcon ThemedIcon(std::string_view name, const QPalette& palette)
{
  const QColor window = palette.color(QPalette::Window);
  const auto seen = [window](QRgb colour) { return WithContrast(QColor(colour), window).rgb(); };
  const IconColours normal = {palette.color(QPalette::WindowText).rgb(),
                              window.lightness() < 128 ? lightAccent : drawnColours.accent,
                              seen(drawnColours.good), seen(drawnColours.bad)};
  // In a chosen row the background is the highlight colour, which the accent resembles.
  const QRgb chosen = palette.color(QPalette::HighlightedText).rgb();
  return FromFile(name, normal, IconColours{chosen, chosen, chosen, chosen});
}

QIcon ApplicationIcon() { return FromFile("app", drawnColours, std::nullopt); }

}  // namespace hullwright
