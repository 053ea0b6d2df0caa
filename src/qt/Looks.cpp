#include "qt/Looks.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <algorithm>
#include <array>

#include "qt/Contrast.h"
#include "qt/LookStyle.h"

namespace hullwright {
namespace {

/// A look by its colours: the window's, and that of what is chosen. Palettes follow from the two.
struct LookColours {
  Look look;
  const char* style;
  QRgb window;
  QRgb highlight;
};

// What smoothing leaves of thin letters is paler than the colour that they are drawn in.
constexpr double smoothTextContrast = textContrast + 0.5;

constexpr const char* usualStyle = "Fusion";
constexpr QRgb plainWindow = qRgb(0xef, 0xef, 0xef);
constexpr QRgb plainHighlight = qRgb(0x20, 0x6f, 0xa8);

constexpr auto looks = std::to_array<LookColours>({
    {Look::Windows2000, "Windows", qRgb(0xd4, 0xd0, 0xc8), qRgb(0x0a, 0x24, 0x6a)},
    {Look::OfficeXp, usualStyle, qRgb(0xec, 0xe9, 0xd8), qRgb(0x31, 0x6a, 0xc5)},
    {Look::WindowsXp, usualStyle, qRgb(0xf1, 0xef, 0xe2), qRgb(0x31, 0x6a, 0xc5)},
    {Look::Office2003, usualStyle, qRgb(0xdd, 0xe8, 0xf7), qRgb(0x31, 0x6a, 0xc5)},
    {Look::VisualStudio2005, usualStyle, qRgb(0xf0, 0xee, 0xe6), qRgb(0x31, 0x6a, 0xc5)},
    {Look::VisualStudio2008, usualStyle, plainWindow, plainHighlight},
    {Look::Blue, usualStyle, qRgb(0xd6, 0xe4, 0xf5), qRgb(0x1f, 0x6f, 0xb2)},
    {Look::Black, usualStyle, qRgb(0x35, 0x37, 0x3a), qRgb(0x2a, 0x6a, 0xa3)},
    {Look::Silver, usualStyle, qRgb(0xe4, 0xe6, 0xea), qRgb(0x45, 0x5f, 0x85)},
    {Look::Aqua, usualStyle, qRgb(0xd9, 0xef, 0xee), qRgb(0x1d, 0x8a, 0x86)},
    {Look::Windows7, usualStyle, qRgb(0xf0, 0xf4, 0xfa), qRgb(0x1a, 0x6a, 0xc4)},
});

QPalette PaletteOf(const LookColours& look)
{
  QPalette palette = QPalette(QColor(look.window));
  palette.setColor(QPalette::Highlight,
                   WithContrast(QColor(look.highlight), Qt::white, smoothTextContrast));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  // What is chosen in a list that has not the keyboard.
  palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x6b, 0x70, 0x75));
  const QColor window(look.window);
  if (window.lightness() < 128) {
    palette.setColor(QPalette::Base, window.darker(130));
    palette.setColor(QPalette::AlternateBase, window.darker(115));
    palette.setColor(QPalette::ToolTipBase, window.darker(130));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6f, 0xb6, 0xf0));
    palette.setColor(QPalette::LinkVisited, QColor(0xc3, 0xa6, 0xf0));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(QPalette::Disabled, role, QColor(0x8a, 0x8d, 0x91));
    }
  }
  return palette;
}

void SetLookStyle(const QString& base)
{
  const auto* const current = qobject_cast<LookStyle*>(QApplication::style());
  if (current == nullptr || current->Base() != base) QApplication::setStyle(new LookStyle(base));
}

}  // namespace

void PrepareLooks() { SetLookStyle(QString::fromLatin1(usualStyle)); }

void ApplyLook(Look look)
{
  const auto* found = std::ranges::find(looks, look, &LookColours::look);
  if (found == looks.end()) found = std::ranges::find(looks, Look::Blue, &LookColours::look);
  // Even the same style would have every widget measured anew.
  SetLookStyle(QString::fromLatin1(found->style));
  QApplication::setPalette(PaletteOf(*found));
}

}  // namespace hullwright
