#pragma once

#include <QImage>
#include <QWidget>

#include "qt/Contrast.h"
#include "qt/Looks.h"
#include "resources/CommandIds.h"

namespace hullwright::test {

// What eyes see of a widget.

inline QImage Picture(QWidget& widget) { return widget.grab().toImage(); }

/// How many pixels of a place have at least a contrast to a background.
inline int PixelsSeen(const QImage& image, const QRect& place, const QColor& background,
                      double contrast = shapeContrast)
{
  int seen = 0;
  const QRect inside = place & image.rect();
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      seen += Contrast(image.pixelColor(x, y), background) >= contrast ? 1 : 0;
    }
  }
  return seen;
}

/// Applies every look, one after the other, and calls `check` with each.
template <class Check>
void ForEachLook(Check check)
{
  for (const int number : {205, 206, 207, 208, 209, 210, 215, 216, 217, 218, 219}) {
    ApplyLook(Look{number});
    check(number);
  }
  ApplyLook(Look::VisualStudio2008);
}

}  // namespace hullwright::test
