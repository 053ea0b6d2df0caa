#include "paint/PaintText.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace hullwright {
namespace {

/// Fonts beyond this would cost the painter its time and memory; larger texts are scaled up.
constexpr float largestFont = 4000.0F;

/// Beyond these sizes, in pixels, a letter covers any picture or nothing of it.
constexpr double largestText = 65536.0;
constexpr double smallestText = 0.5;

/// Units of a text beyond this have no place in a picture at a size that can be read.
constexpr std::size_t mostUnits = 10000;

/// Size of a text that nobody reads, for nobody measures it either: letters of a monospaced face.
PixelSize RoughSize(double size, std::size_t units, float maxWidth)
{
  constexpr double advance = 0.6;
  const double width = std::min<double>(static_cast<double>(units) * advance * size, maxWidth);
  return {static_cast<float>(width), static_cast<float>(size)};
}

}  // namespace

QString Drawable(std::u16string_view text)
{
  const std::u16string_view cut = text.substr(0, mostUnits);
  QString shown = QString::fromUtf16(cut.data(), static_cast<qsizetype>(cut.size()));
  for (QChar& unit : shown) {
    // A tab would be measured as a stop and drawn as a blank, U+009C ends a text for the painter,
    // and files of vectors can't hold control characters at all.
    if (unit == QLatin1Char('\n')) {
      unit = QChar::LineSeparator;
    } else if (unit.category() == QChar::Other_Control || unit.isNonCharacter()) {
      unit = QLatin1Char(' ');
    }
  }
  return shown;
}

PaintFont::PaintFont(const TextStyle& style)
{
  // The metric twins of the named fonts come first, so that a picture looks alike everywhere.
  const bool monospaced = style.family == u"Consolas";
  const QString twin =
      monospaced ? QStringLiteral("Liberation Mono") : QString::fromLatin1(sansFace);
  // The toolkit's fonts have whole sizes; the painter makes up the rest.
  const float whole = std::ceil(std::min(style.size, largestFont));
  scale = style.size / whole;
  font.setFamilies({twin, Drawable(style.family)});
  font.setStyleHint(monospaced ? QFont::Monospace : QFont::SansSerif);
  font.setPixelSize(static_cast<int>(whole));
  font.setHintingPreference(QFont::PreferNoHinting);
}

bool PaintFont::IsPaintable(float size) { return size > 0.0F && std::isfinite(size); }

bool PaintFont::IsReadable() const { return Size() >= smallestText && Size() <= largestText; }

PixelSize PaintFont::Measure(std::u16string_view text, float maxWidth) const
{
  if (text.empty()) return {};
  if (!IsReadable()) return RoughSize(Size(), text.size(), maxWidth);
  QTextLayout layout(Drawable(text), font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  double width = 0.0;
  double height = 0.0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(maxWidth / scale);
    width = std::max(width, line.naturalTextWidth());
    height += line.height();
  }
  layout.endLayout();
  return {static_cast<float>(width * scale), static_cast<float>(height * scale)};
}

const PaintFont* PaintFonts::Find(const TextStyle& style)
{
  if (!PaintFont::IsPaintable(style.size)) return nullptr;
  if (!font_ || style.size != size_ || style.family != family_) {
    font_.reset();  // none stands for a style that memory ended for
    family_ = style.family;
    size_ = style.size;
    font_.emplace(style);
  }
  return &*font_;
}

}  // namespace hullwright
