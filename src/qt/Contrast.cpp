#include "qt/Contrast.h"

#include <algorithm>
#include <cmath>

namespace hullwright {
namespace {

/// The share of light that a channel of a screen's colour stands for.
double Linear(double channel)
{
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& a, const QColor& b)
{
  constexpr double strayLight = 0.05;
  const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
  return (lighter + strayLight) / (darker + strayLight);
}

QColor Mix(const QColor& from, const QColor& to, double part)
{
  const auto channel = [part](int a, int b) { return a + static_cast<int>((b - a) * part); };
  return {channel(from.red(), to.red()), channel(from.green(), to.green()),
          channel(from.blue(), to.blue())};
}

QColor WithContrast(const QColor& wanted, const QColor& background, double contrast)
{
  constexpr int steps = 20;
  const bool dark = Contrast(background, Qt::white) > Contrast(background, Qt::black);
  const QColor end = dark ? Qt::white : Qt::black;
  for (int step = 0; step < steps; ++step) {
    const QColor colour = Mix(wanted, end, static_cast<double>(step) / steps);
    if (Contrast(colour, background) >= contrast) return colour;
  }
  return end;
}

}  // namespace hullwright
