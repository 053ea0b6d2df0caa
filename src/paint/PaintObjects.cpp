#include "paint/PaintObjects.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPen>
#include <algorithm>
#include <array>
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

/// Strokes beyond this cover any picture.
constexpr float widestStroke = 100000.0F;

/// Points nearer than this to the one before them make no difference to the picture, in pixels.
constexpr double nearestPoints = 0.125;

const QColor& ColourOf(const IBrush& brush) { return static_cast<const PaintBrush&>(brush).colour; }

/// Whether a stroke of this width is painted; written so that NaN is not.
bool IsStroke(float width) { return width >= 0.0F && std::isfinite(width); }

/// Runs without the points that lie on their predecessor, as far as a picture can show.
std::vector<ScreenPoint> Thinned(const std::vector<ScreenPoint>& run)
{
  std::vector<ScreenPoint> kept = {run.front()};
  for (std::size_t i = 1; i < run.size(); ++i) {
    const bool near = std::abs(run[i].x - kept.back().x) < nearestPoints &&
                      std::abs(run[i].y - kept.back().y) < nearestPoints;
    if (!near || i + 1 == run.size()) kept.push_back(run[i]);
  }
  return kept;
}

QRectF ToQt(const PixelRect& rect)
{
  return {QPointF(rect.left, rect.top), QPointF(rect.right, rect.bottom)};
}

/// The text with each line cut after a number of units.
QString FirstColumns(const QString& text, qsizetype columns)
{
  QStringList lines = text.split(QChar(QChar::LineSeparator));
  for (QString& line : lines) line.truncate(columns);
  return lines.join(QChar(QChar::LineSeparator));
}

/// Receives the figures of a path.
class PaintPathSink : public IPathSink {
public:
  explicit PaintPathSink(PaintPath& path) : path_(path) {}
  void ForceRoundLineJoins() override { path_.roundJoins = true; }
  void BeginFigure(PixelPoint start, FigureFill) override { path_.figures.push_back({{start}}); }
  void AddLines(std::span<const PixelPoint> points) override
  {
    auto& all = path_.figures.back().points;
    all.insert(all.end(), points.begin(), points.end());
  }
  void EndFigure(FigureEnd end) override { path_.figures.back().closed = end == FigureEnd::Closed; }
  ResultCode Close() override { return 0; }

private:
  PaintPath& path_;
};

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

PaintTextFormat::PaintTextFormat(std::u16string_view family, float size)
{
  // The metric twins of the named fonts come first, so that a picture looks alike everywhere.
  const bool monospaced = family == u"Consolas";
  const QString twin =
      monospaced ? QStringLiteral("Liberation Mono") : QStringLiteral("Liberation Sans");
  // The toolkit's fonts have whole sizes; the painter makes up the rest.
  const float whole = std::ceil(std::min(size, largestFont));
  scale = size / whole;
  font.setFamilies({twin, Drawable(family)});
  font.setStyleHint(monospaced ? QFont::Monospace : QFont::SansSerif);
  font.setPixelSize(static_cast<int>(whole));
  font.setHintingPreference(QFont::PreferNoHinting);
}

bool PaintTextFormat::IsReadable() const
{
  const double size = font.pixelSize() * scale;
  return size >= smallestText && size <= largestText;
}

Created<IPathSink> PaintPath::Open() { return {0, std::make_unique<PaintPathSink>(*this)}; }

void PaintTarget::Resize(int width, int height) { surface_.Allocate(width, height); }

void PaintTarget::BeginDraw()
{
  QPaintDevice* const device = surface_.Device();
  if (device == nullptr) return;
  painter_.begin(device);
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PaintTarget::Clear(const Colour& colour)
{
  if (!painter_.isActive()) return;
  painter_.fillRect(QRectF(0.0, 0.0, surface_.Width(), surface_.Height()), ToQt(colour));
}

ResultCode PaintTarget::EndDraw()
{
  const bool wanted = surface_.Width() > 0 && surface_.Height() > 0;
  if (!painter_.isActive()) return wanted ? recreateTarget : 0;
  painter_.end();
  if (surface_.onFrame) surface_.onFrame();
  return 0;
}

std::unique_ptr<IBrush> PaintTarget::CreateSolidColourBrush(const Colour& colour)
{
  return std::make_unique<PaintBrush>(colour);
}

ClipRect PaintTarget::ClipArea(float strokeWidth) const
{
  const double margin = 2.0 + strokeWidth;
  return {-margin, -margin, surface_.Width() + margin, surface_.Height() + margin};
}

bool PaintTarget::IsVisible(const QRectF& rect, float strokeWidth) const
{
  // Written so that a bound that is not a number is not visible.
  const ClipRect area = ClipArea(strokeWidth);
  return painter_.isActive() && std::isfinite(rect.left()) && std::isfinite(rect.top()) &&
         std::isfinite(rect.right()) && std::isfinite(rect.bottom()) && rect.right() >= area.left &&
         rect.left() <= area.right && rect.bottom() >= area.top && rect.top() <= area.bottom;
}

QPen PaintTarget::PenOf(const IBrush& brush, float width) const
{
  // Up to one pixel of the picture the painter would switch to hairlines, which are too thin where
  // they slant and lack their corners. A stroke that is thinner is a paler one of that width.
  const double thinnest = 1.0001 / surface_.Ratio();
  // Drawings give a width of zero to lines that are to be seen as thin as they can be.
  const double stroke = width == 0.0F ? 1.0 : std::min(width, widestStroke);
  QColor colour = ColourOf(brush);
  const double cover = std::min(1.0, stroke * surface_.Ratio());
  colour.setAlphaF(static_cast<float>(colour.alphaF() * cover));
  return {colour, std::max(stroke, thinnest), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

void PaintTarget::StrokeRuns(std::span<const PixelPoint> points, const QPen& pen, bool roundJoins)
{
  if (!painter_.isActive()) return;
  for (const auto& run : ClipPolyline(points, ClipArea(static_cast<float>(pen.widthF())))) {
    const std::vector<ScreenPoint> kept = Thinned(run);
    // Segment by segment: stroked as one path, a long line takes the painter minutes.
    QList<QLineF> lines;
    lines.reserve(static_cast<qsizetype>(kept.size()));
    for (std::size_t i = 1; i < kept.size(); ++i) {
      lines.append(QLineF(kept[i - 1].x, kept[i - 1].y, kept[i].x, kept[i].y));
    }
    painter_.setPen(pen);
    painter_.drawLines(lines);
    if (roundJoins) FillJoins(kept, pen);
  }
}

void PaintTarget::FillJoins(const std::vector<ScreenPoint>& points, const QPen& pen)
{
  constexpr double thinnestWithJoins = 1.5;
  if (pen.widthF() * surface_.Ratio() < thinnestWithJoins) return;
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(pen.color());
  const double radius = pen.widthF() * 0.5;
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    painter_.drawEllipse(QPointF(points[i].x, points[i].y), radius, radius);
  }
}

void PaintTarget::DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width)
{
  const std::array<PixelPoint, 2> ends = {from, to};
  if (IsStroke(width)) StrokeRuns(ends, PenOf(brush, width), false);
}

void PaintTarget::DrawRectangle(const PixelRect& rect, const IBrush& brush, float width)
{
  if (!IsStroke(width) || !IsVisible(ToQt(rect), width)) return;
  painter_.setPen(PenOf(brush, width));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(ToQt(rect));
}

void PaintTarget::FillRectangle(const PixelRect& rect, const IBrush& brush)
{
  if (IsVisible(painter_.transform().mapRect(ToQt(rect)), 0.0F))
    painter_.fillRect(ToQt(rect), ColourOf(brush));
}

void PaintTarget::DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                              float width)
{
  const QRectF box(centre.x - radiusX, centre.y - radiusY, 2.0 * radiusX, 2.0 * radiusY);
  if (!IsStroke(width) || !IsVisible(box, width)) return;
  painter_.setPen(PenOf(brush, width));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawEllipse(box);
}

void PaintTarget::DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width)
{
  if (!IsStroke(width)) return;
  const auto& path = static_cast<const PaintPath&>(geometry);
  const QPen pen = PenOf(brush, width);
  for (const PaintPath::Figure& figure : path.figures) {
    StrokeRuns(figure.points, pen, path.roundJoins);
    if (!figure.closed) continue;
    const std::array<PixelPoint, 2> closing = {figure.points.back(), figure.points.front()};
    StrokeRuns(closing, pen, path.roundJoins);
  }
}

void PaintTarget::DrawText(std::u16string_view text, const ITextFormat& format,
                           const PixelRect& rect, const IBrush& brush)
{
  const QRectF box = ToQt(rect);
  const auto isFinite = [](double value) { return std::isfinite(value); };
  const std::array<double, 4> bounds = {box.left(), box.top(), box.right(), box.bottom()};
  if (!painter_.isActive() || !std::ranges::all_of(bounds, isFinite)) return;
  const auto& textFormat = static_cast<const PaintTextFormat&>(format);
  if (!textFormat.IsReadable()) return;
  const Qt::Alignment alignment =
      textFormat.centred ? Qt::Alignment(Qt::AlignCenter) : Qt::AlignLeft | Qt::AlignTop;
  const int wrapping = textFormat.wrapped ? Qt::TextWordWrap : 0;
  const int flags = static_cast<int>(alignment) | wrapping | static_cast<int>(Qt::TextDontClip);
  const double scale = textFormat.scale;
  const QRectF scaled(box.topLeft() / scale, box.size() / scale);
  QString shown = Drawable(text);
  if (!textFormat.centred && !textFormat.wrapped) {
    // From a start in the picture nothing reaches further than its diagonal; beyond some ten
    // thousand pixels the toolkit loses the whole line.
    const double size = textFormat.font.pixelSize() * scale;
    const double diagonal = std::hypot(surface_.Width(), surface_.Height());
    shown = FirstColumns(shown, static_cast<qsizetype>(4.0 * diagonal / size) + 2);
  }
  // The text may reach out of its rectangle, so it counts for what is visible.
  const QRectF ink = QFontMetricsF(textFormat.font).boundingRect(scaled, flags, shown);
  const QRectF reach(ink.topLeft() * scale, ink.size() * scale);
  if (!IsVisible(painter_.transform().mapRect(reach), 0.0F)) return;
  painter_.save();
  painter_.scale(scale, scale);
  painter_.setFont(textFormat.font);
  painter_.setPen(ColourOf(brush));
  painter_.drawText(scaled, flags, shown);
  painter_.restore();
}

void PaintTarget::SetRotation(float angleDegrees, PixelPoint centre)
{
  if (!painter_.isActive()) return;
  painter_.resetTransform();
  const bool finite =
      std::isfinite(angleDegrees) && std::isfinite(centre.x) && std::isfinite(centre.y);
  if (angleDegrees == 0.0F || !finite) return;
  painter_.translate(centre.x, centre.y);
  painter_.rotate(angleDegrees);
  painter_.translate(-centre.x, -centre.y);
}

}  // namespace hullwright
