#pragma once

#include <QFont>
#include <QString>
#include <optional>

#include "platform/Drawing.h"

namespace hullwright {

/// The sans-serif face that comes first in pictures, which look alike wherever it is installed.
inline constexpr const char* sansFace = "Liberation Sans";

/// A text as the toolkit lays it out the same when it is measured and when it is drawn, without
/// what is too much for any picture.
QString Drawable(std::u16string_view text);

/// The toolkit's font for a style. Its fonts have whole sizes of a limited range, so what it lays
/// out is to be scaled.
struct PaintFont {
  /// The style's size must be one that `IsPaintable` takes.
  explicit PaintFont(const TextStyle& style);

  /// Whether there is a font of a size at all: a positive number.
  static bool IsPaintable(float size);

  /// Height of the font in pixels, as it is painted.
  double Size() const { return font.pixelSize() * scale; }

  /// Whether a text of this size can be read in any picture.
  bool IsReadable() const;

  /// Size of a text that is wrapped at a width.
  PixelSize Measure(std::u16string_view text, float maxWidth) const;

  QFont font;
  double scale = 1.0;  ///< from the font's whole size to the size asked for
};

/// Keeps the last font that was asked for: most texts of a frame have the style of the one before.
class PaintFonts {
public:
  /// Null for a size that there is no font of. Stands until the next call.
  const PaintFont* Find(const TextStyle& style);

private:
  std::optional<PaintFont> font_;
  std::u16string family_;
  float size_ = 0.0F;
};

}  // namespace hullwright
