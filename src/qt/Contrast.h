#pragma once

#include <QColor>

namespace hullwright {

/// What eyes need to tell a shape from its background, and to read a text on it.
inline constexpr double shapeContrast = 3.0;
inline constexpr double textContrast = 4.5;

/// The contrast of two opaque colours: the ratio of their luminances, from 1.0 for equal ones to
/// 21.0 for black and white.
double Contrast(const QColor& a, const QColor& b);

/// A mix of two colours, `part` of the way from the first to the second.
QColor Mix(const QColor& from, const QColor& to, double part);

/// The colour next to `wanted` that has at least this contrast to a background, darker on a light
/// one and lighter on a dark one; black or white where none has it.
QColor WithContrast(const QColor& wanted, const QColor& background,
                    double contrast = shapeContrast);

}  // namespace hullwright
