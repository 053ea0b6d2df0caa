#include "paint/PaintObjects.h"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <array>
#include <cmath>

namespace hullwright {
namespace {

/// Fonts beyond this would cost the painter its time and memory; nobody could read them.
constexpr int largestFont = 4000;

const QColor& ColourOf(const IBrush& brush) { return static_cast<const PaintBrush&>(brush).colour; }

QPen PenOf(const IBrush& brush, float width, Qt::PenJoinStyle join)
{
  return {ColourOf(brush), width, Qt::SolidLine, Qt::FlatCap, join};
}

QRectF ToQt(const PixelRect& rect)
{
  return {QPointF(rect.left, rect.top), QPointF(rect.right, rect.bottom)};
}

QString ToQt(std::u16string_view text)
{
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
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
  void EndFigure(FigureEnd end) override
  {
    path_.figures.back().closed = end == FigureEnd::Closed;
  }
  ResultCode Close() override { return 0; }

private:
  PaintPath& path_;
};

}  // namespace

void PaintBrush::SetColour(const Colour& value)
{
  colour = QColor::fromRgbF(value.red, value.green, value.blue, value.alpha);
}

PaintTextFormat::PaintTextFormat(std::u16string_view family, float size)
{
  // The metric twins of the named fonts come first, so that a picture looks alike everywhere.
  const QString twin = family == u"Consolas" ? QStringLiteral("Liberation Mono")
                                             : QStringLiteral("Liberation Sans");
  font.setFamilies({twin, ToQt(family)});
  font.setPixelSize(std::clamp(static_cast<int>(std::lround(std::clamp(
                                   size, 1.0F, static_cast<float>(largestFont)))),
                               1, largestFont));
  font.setHintingPreference(QFont::PreferNoHinting);
}

Created<IPathSink> PaintPath::Open() { return {0, std::make_unique<PaintPathSink>(*this)}; }

void PaintTarget::Resize(int width, int height) { surface_.Allocate(width, height); }

void PaintTarget::BeginDraw()
{
  if (surface_.Picture().isNull()) return;
  painter_.begin(&surface_.Picture());
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PaintTarget::Clear(const Colour& colour)
{
  if (painter_.isActive()) surface_.Picture().fill(PaintBrush(colour).colour);
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

bool PaintTarget::IsVisible(const PixelRect& rect, float strokeWidth) const
{
  // Written so that a bound that is not a number is not visible.
  const ClipRect area = ClipArea(strokeWidth);
  return painter_.isActive() && std::isfinite(rect.left) && std::isfinite(rect.top) &&
         std::isfinite(rect.right) && std::isfinite(rect.bottom) && rect.right >= area.left &&
         rect.left <= area.right && rect.bottom >= area.top && rect.top <= area.bottom;
}

void PaintTarget::StrokeRuns(std::span<const PixelPoint> points, const QPen& pen)
{
  if (!painter_.isActive()) return;
  const auto runs = ClipPolyline(points, ClipArea(static_cast<float>(pen.widthF())));
  if (runs.empty()) return;
  painter_.setPen(pen);
  painter_.setBrush(Qt::NoBrush);
  for (const auto& run : runs) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(run.size()));
    for (const ScreenPoint& p : run) polygon.append(QPointF(p.x, p.y));
    painter_.drawPolyline(polygon);
  }
}

void PaintTarget::DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width)
{
  const std::array<PixelPoint, 2> ends = {from, to};
  StrokeRuns(ends, PenOf(brush, width, Qt::MiterJoin));
}

void PaintTarget::DrawRectangle(const PixelRect& rect, const IBrush& brush, float width)
{
  if (!IsVisible(rect, width)) return;
  painter_.setPen(PenOf(brush, width, Qt::MiterJoin));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawRect(ToQt(rect));
}

void PaintTarget::FillRectangle(const PixelRect& rect, const IBrush& brush)
{
  if (IsVisible(rect, 0.0F)) painter_.fillRect(ToQt(rect), ColourOf(brush));
}

void PaintTarget::DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                              float width)
{
  const PixelRect box{centre.x - radiusX, centre.y - radiusY, centre.x + radiusX,
                      centre.y + radiusY};
  if (!IsVisible(box, width)) return;
  painter_.setPen(PenOf(brush, width, Qt::MiterJoin));
  painter_.setBrush(Qt::NoBrush);
  painter_.drawEllipse(ToQt(box));
}

void PaintTarget::DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width)
{
  const auto& path = static_cast<const PaintPath&>(geometry);
  const QPen pen = PenOf(brush, width, path.roundJoins ? Qt::RoundJoin : Qt::MiterJoin);
  for (const PaintPath::Figure& figure : path.figures) {
    StrokeRuns(figure.points, pen);
    if (!figure.closed) continue;
    const std::array<PixelPoint, 2> closing = {figure.points.back(), figure.points.front()};
    StrokeRuns(closing, pen);
  }
}

void PaintTarget::DrawText(std::u16string_view text, const ITextFormat& format,
                           const PixelRect& rect, const IBrush& brush)
{
  if (!IsVisible(rect, 0.0F)) return;
  const auto& textFormat = static_cast<const PaintTextFormat&>(format);
  const int alignment = textFormat.centred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignTop;
  const int wrapping = textFormat.wrapped ? Qt::TextWordWrap : Qt::TextDontClip;
  painter_.setFont(textFormat.font);
  painter_.setPen(ColourOf(brush));
  painter_.drawText(ToQt(rect), alignment | wrapping, ToQt(text));
}

void PaintTarget::SetRotation(float angleDegrees, PixelPoint centre)
{
  if (!painter_.isActive()) return;
  painter_.resetTransform();
  if (angleDegrees == 0.0F || !std::isfinite(centre.x) || !std::isfinite(centre.y)) return;
  painter_.translate(centre.x, centre.y);
  painter_.rotate(angleDegrees);
  painter_.translate(-centre.x, -centre.y);
}

}  // namespace hullwright
