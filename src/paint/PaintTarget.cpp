#include "paint/PaintTarget.h"

#include <QFontMetricsF>
#include <QLineF>
#include <algorithm>
#include <array>
#include <cmath>

namespace hullwright {
namespace {

/// Strokes beyond this cover any picture.
constexpr float widestStroke = 100000.0F;

/// Points nearer than this to the one before them make no difference to the picture, in pixels.
constexpr double nearestPoints = 0.125;

/// A colour of the interface in the toolkit's terms.
QColor ToQt(const Colour& colour)
{
  return QColor::fromRgbF(colour.red, colour.green, colour.blue, colour.alpha);
}

/// A part of a colour from 0 to 255, as the toolkit rounds it.
std::uint32_t ByteOf(float part)
{
  constexpr float whole = 65535.0F;
  constexpr float half = 0.5F;
  const float kept = part > 0.0F ? std::min(part, 1.0F) : 0.0F;
  return static_cast<std::uint32_t>(kept * whole + half) >> 8U;
}

/// An opaque colour as a pixel of a picture has it. Every shape asks for one, in view or not.
std::uint32_t PixelOf(const Colour& colour)
{
  return 0xff000000U | ByteOf(colour.red) << 16U | ByteOf(colour.green) << 8U | ByteOf(colour.blue);
}

/// The pixels of a device that is a picture in memory, of a kind that lines can be stroked into.
PixelView ViewOf(QPaintDevice* device)
{
  auto* const image = dynamic_cast<QImage*>(device);
  if (image == nullptr || (image->format() != QImage::Format_RGB32 &&
                           image->format() != QImage::Format_ARGB32_Premultiplied)) {
    return {};
  }
  return {reinterpret_cast<std::uint32_t*>(image->bits()), image->bytesPerLine() / 4,
          image->width(), image->height()};
}

/// Whether a stroke of this width is painted; written so that NaN is not.
bool IsStroke(float width) { return width >= 0.0F && std::isfinite(width); }

/// The width that a stroke is painted with. Drawings give a width of zero to lines that are to be
/// seen as thin as they can be.
float LineWidth(float width) { return width == 0.0F ? 1.0F : std::min(width, widestStroke); }

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

}  // namespace

StepResult PaintTarget::Prepare(TargetStep step, Resolution)
{
  if (step == TargetStep::Picture) surface_.Allocate(surface_.Width(), surface_.Height());
  return {};
}

void PaintTarget::Resize(int width, int height) { surface_.Allocate(width, height); }

std::optional<PixelRect> PaintTarget::SeenArea(float strokeWidth) const
{
  if (!stroker_.IsActive()) return std::nullopt;
  // A pixel more than the stroker asks for, since single precision rounds the bounds.
  const ClipRect area = stroker_.ReachOf(LineWidth(strokeWidth) + 1.0F);
  return PixelRect{static_cast<float>(area.left), static_cast<float>(area.top),
                   static_cast<float>(area.right), static_cast<float>(area.bottom)};
}

void PaintTarget::BeginFrame(const Colour& background)
{
  // There may be memory for a picture by now.
  if (surface_.Device() == nullptr) surface_.Allocate(surface_.Width(), surface_.Height());
  QPaintDevice* const device = surface_.Device();
  if (device == nullptr || !painter_.begin(device)) return;
  stroker_.Begin(ViewOf(device), device->devicePixelRatioF());
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter_.fillRect(QRectF(0.0, 0.0, surface_.Width(), surface_.Height()), ToQt(background));
}

FrameResult PaintTarget::EndFrame()
{
  const bool wanted = surface_.Width() > 0 && surface_.Height() > 0;
  if (!painter_.isActive() && wanted) {
    return {recreateTarget, "There is not enough memory for the picture."};
  }
  if (!painter_.isActive()) return {};
  stroker_.End();
  painter_.end();
  if (surface_.onFrame) surface_.onFrame();
  return {};
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

QPen PaintTarget::PenOf(const Stroke& stroke) const
{
  // Up to one pixel of the picture the painter would switch to hairlines, which are too thin where
  // they slant and lack their corners. A stroke that is thinner is a paler one of that width.
  const double thinnest = 1.0001 / surface_.Ratio();
  const double width = LineWidth(stroke.width);
  QColor colour = ToQt(stroke.colour);
  const double cover = std::min(1.0, width * surface_.Ratio());
  colour.setAlphaF(static_cast<float>(colour.alphaF() * cover));
  return {colour, std::max(width, thinnest), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

void PaintTarget::PaintRuns(std::span<const PixelPoint> points, const QPen& pen, bool roundJoins)
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

void PaintTarget::PaintFigure(std::span<const PixelPoint> points, const QPen& pen, FigureKind kind)
{
  // Begun with a segment of length zero, so that a start from which none leads on in the picture is
  // still an order to the painter.
  figure_.assign(1, points.front());
  figure_.insert(figure_.end(), points.begin(), points.end());
  PaintRuns(figure_, pen, kind == FigureKind::Line);
  if (kind != FigureKind::Outline) return;
  const std::array<PixelPoint, 2> closing = {points.back(), points.front()};
  PaintRuns(closing, pen, false);
}

void PaintTarget::StrokeInMemory(const Figures& figures, const Stroke& stroke)
{
  const Colour& colour = stroke.colour;
  const float alpha = colour.alpha > 0.0F ? std::min(colour.alpha, 1.0F) : 0.0F;
  stroker_.Draw(figures, {PixelOf(colour), alpha, LineWidth(stroke.width)});
}

void PaintTarget::DrawLine(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
  const std::array<PixelPoint, 2> ends = {from, to};
  if (!IsStroke(stroke.width)) return;
  if (stroker_.IsActive()) {
    const std::array<std::size_t, 1> count = {ends.size()};
    StrokeInMemory({FigureKind::Line, ends, count}, stroke);
    return;
  }
  PaintRuns(ends, PenOf(stroke), false);
}

void PaintTarget::DrawRectangle(const PixelRect& rect, const Stroke& stroke)
{
  if (!IsStroke(stroke.width) || !IsVisible(ToQt(rect), stroke.width)) return;
  painter_.setPen(PenOf(stroke));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(ToQt(rect));
}

void PaintTarget::FillRectangle(const PixelRect& rect, const Colour& colour)
{
  if (IsVisible(painter_.transform().mapRect(ToQt(rect)), 0.0F)) {
    painter_.fillRect(ToQt(rect), ToQt(colour));
  }
}

void PaintTarget::DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const Stroke& stroke)
{
  const QRectF box(centre.x - radiusX, centre.y - radiusY, 2.0 * radiusX, 2.0 * radiusY);
  if (!IsStroke(stroke.width) || !IsVisible(box, stroke.width)) return;
  painter_.setPen(PenOf(stroke));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawEllipse(box);
}

void PaintTarget::DrawFigures(const Figures& figures, const Stroke& stroke)
{
  if (!IsStroke(stroke.width)) return;
  if (stroker_.IsActive()) {
    StrokeInMemory(figures, stroke);
    return;
  }
  const QPen pen = PenOf(stroke);
  std::size_t begin = 0;
  for (const std::size_t end : figures.pointEnds) {
    PaintFigure(figures.points.subspan(begin, end - begin), pen, figures.kind);
    begin = end;
  }
}

std::optional<PixelSize> PaintTarget::MeasureText(std::u16string_view text, const TextStyle& style,
                                                  PixelSize limits)
{
  const PaintFont* const font = fonts_.Find(style);
  if (font == nullptr) return std::nullopt;
  return font->Measure(text, limits.width);
}

void PaintTarget::DrawText(const TextBlock& block)
{
  if (!painter_.isActive()) return;
  if (block.turn) SetTurn(*block.turn);
  if (block.ground) FillRectangle(block.rect, *block.ground);
  PaintText(block);
  if (block.turn) painter_.resetTransform();
}

void PaintTarget::PaintText(const TextBlock& block)
{
  const QRectF box = ToQt(block.rect);
  const auto isFinite = [](double value) { return std::isfinite(value); };
  const std::array<double, 4> bounds = {box.left(), box.top(), box.right(), box.bottom()};
  const PaintFont* const face = fonts_.Find(block.style);
  if (face == nullptr || !face->IsReadable() || !std::ranges::all_of(bounds, isFinite)) return;
  const bool centred = block.style.centred;
  const Qt::Alignment alignment =
      centred ? Qt::Alignment(Qt::AlignCenter) : Qt::AlignLeft | Qt::AlignTop;
  const int flags = static_cast<int>(alignment) | static_cast<int>(Qt::TextDontClip);
  const double scale = face->scale;
  const QRectF scaled(box.topLeft() / scale, box.size() / scale);
  QString shown = Drawable(block.text);
  if (!centred) {
    // From a start in the picture nothing reaches further than its diagonal. The rest would take
    // time to shape, and room in a page.
    const double diagonal = std::hypot(surface_.Width(), surface_.Height());
    shown = FirstColumns(shown, static_cast<qsizetype>(4.0 * diagonal / face->Size()) + 2);
  }
  // The text may reach out of its rectangle, so it counts for what is visible.
  const QRectF ink = QFontMetricsF(face->font).boundingRect(scaled, flags, shown);
  const QRectF reach(ink.topLeft() * scale, ink.size() * scale);
  if (!IsVisible(painter_.transform().mapRect(reach), 0.0F)) return;
  painter_.save();
  painter_.scale(scale, scale);
  painter_.setFont(face->font);
  painter_.setPen(ToQt(block.colour));
  painter_.drawText(scaled, flags, shown);
  painter_.restore();
}

void PaintTarget::SetTurn(const Turn& turn)
{
  painter_.resetTransform();
  const bool finite =
      std::isfinite(turn.degrees) && std::isfinite(turn.centre.x) && std::isfinite(turn.centre.y);
  if (turn.degrees == 0.0F || !finite) return;
  painter_.translate(turn.centre.x, turn.centre.y);
  painter_.rotate(turn.degrees);
  painter_.translate(-turn.centre.x, -turn.centre.y);
}

}  // namespace hullwright
