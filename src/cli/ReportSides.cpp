#include "cli/ReportSides.h"

#include <QPicture>
#include <algorithm>
#include <cmath>

#include "base/RoundNumbers.h"
#include "cli/DesignContent.h"

namespace hullwright {
namespace {

// Tenths of a millimetre.
constexpr double frameHeight = 920.0;
constexpr double captionHeight = 60.0;
constexpr double barHeight = 12.0;
constexpr double blockHeight = captionHeight + frameHeight + 200.0;
constexpr double margin = 80.0;  // of the frame, around what is drawn

/// Tenths of a millimetre for a pixel of the scene, whose symbols and lines are made for a screen.
constexpr double perPixel = 2.5;
constexpr int pixelsAcross = static_cast<int>(ReportPages::width / perPixel);
constexpr int pixelsDown = static_cast<int>(frameHeight / perPixel);

bool IsFinite(const Extents& box)
{
  return std::isfinite(box.minX) && std::isfinite(box.minY) && std::isfinite(box.maxX) &&
         std::isfinite(box.maxY) && std::isfinite(box.maxX - box.minX) &&
         std::isfinite(box.maxY - box.minY);
}

/// The denominator of the scale at which a box fits into the frame.
double ScaleFor(const Extents& box, double metresPerUnit)
{
  constexpr double tenthsPerMetre = 10000.0;
  constexpr double ofAPlace = 100.0;
  const double needed = std::max((box.maxX - box.minX) / (ReportPages::width - 2.0 * margin),
                                 (box.maxY - box.minY) / (frameHeight - 2.0 * margin)) *
                        metresPerUnit * tenthsPerMetre;
  return needed > 0.0 && std::isfinite(needed) ? RoundUp(needed) : ofAPlace;
}

QString Text(const std::string& text) { return QString::fromStdString(text); }

QString Describe(const GroupContent& content)
{
  QString text =
      QStringLiteral("%1 polylines, %2 vertices").arg(content.polylines).arg(content.vertices);
  if (!content.box.IsEmpty()) {
    text += QStringLiteral(", from ") + Text(PlaceText(content.box.minX, content.box.minY)) +
            QStringLiteral(" to ") + Text(PlaceText(content.box.maxX, content.box.maxY));
  }
  return text;
}

/// A bar of four fields, each as long as a round length, with its numbers below.
void PaintBar(QPainter& painter, double tenthsPerUnit, const QString& unit)
{
  constexpr int fields = 4;
  constexpr double longest = 800.0;
  // The largest round length that has room four times.
  double length = RoundUp(longest / fields / tenthsPerUnit);
  if (length * fields * tenthsPerUnit > longest) length = RoundUp(length * 0.39);
  const double step = length * tenthsPerUnit;
  painter.setFont(ReportPages::Font(26));
  for (int i = 0; i <= fields; ++i) {
    const double x = i * step;
    painter.setPen(QPen(Qt::black, 2.0));
    if (i < fields) {
      painter.setBrush(i % 2 == 0 ? Qt::black : Qt::white);
      painter.drawRect(QRectF(x, 0.0, step, barHeight));
    }
    const QRectF below(x - 200.0, barHeight + 6.0, 400.0, 40.0);
    const QString number = Text(RoundNumberText(length * i));
    painter.drawText(i == 0 ? below.translated(200.0, 0.0) : below,
                     i == 0 ? Qt::AlignLeft : Qt::AlignHCenter, number);
  }
  painter.drawText(QPointF(fields * step + 30.0, barHeight + 6.0), unit);
}

}  // namespace

ReportSides::ReportSides() : pictures_(pixelsAcross, pixelsDown) { Editor().ShowGrid(false); }

void ReportSides::Add(ReportPages& pages, const ViewSideEntry& side, const QString& unit)
{
  CHullwrightApp& app = Editor().App();
  const GroupContent content = ContentOf(app, side.code);
  Extents box = content.box;
  if (side.code == ViewSide::Top) WidenBySymbols(app, box);
  const QString name = Text(std::string(side.name));
  if (box.IsEmpty() || !IsFinite(box)) {
    pages.AddHeading(name);
    pages.AddLine(box.IsEmpty() ? QStringLiteral("Nothing is drawn on this side.")
                                : QStringLiteral("A number of this side is not finite."));
    return;
  }
  const double metresPerUnit = ToMetres(app.unitCode, 1.0);
  const double scale = ScaleFor(box, metresPerUnit);
  const double unitsPerTenth = scale / 10000.0 / metresPerUnit;
  const double halfWidth = ReportPages::width / 2.0 * unitsPerTenth;
  const double halfHeight = frameHeight / 2.0 * unitsPerTenth;
  const double x = (box.minX + box.maxX) / 2.0;
  const double y = (box.minY + box.maxY) / 2.0;
  QPicture picture;
  Editor().ShowSide(side.code, pixelsAcross, pixelsDown,
                    {x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight});
  pictures_.PaintOn(picture);
  const QString scaleText = QStringLiteral("scale 1:") + Text(RoundNumberText(scale));
  pages.AddBlock(blockHeight, [=, summary = Describe(content)](QPainter& painter) {
    painter.setFont(ReportPages::Font(44, true));
    painter.drawText(QRectF(0.0, 0.0, ReportPages::width, captionHeight), Qt::AlignLeft, name);
    painter.setFont(ReportPages::Font(34));
    painter.drawText(QRectF(0.0, 6.0, ReportPages::width, captionHeight), Qt::AlignRight,
                     scaleText);
    painter.translate(0.0, captionHeight);
    const QRectF frame(0.0, 0.0, ReportPages::width, frameHeight);
    painter.save();
    painter.setClipRect(frame);
    // A picture is widened by the resolution of what it is drawn on.
    const double scaling = perPixel * picture.logicalDpiX() / painter.device()->logicalDpiX();
    painter.scale(scaling, scaling);
    painter.drawPicture(QPoint(0, 0), picture);
    painter.restore();
    painter.setPen(QPen(Qt::gray, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.translate(0.0, frameHeight + 20.0);
    painter.setPen(Qt::black);
    PaintBar(painter, 1.0 / unitsPerTenth, unit);
    painter.setFont(ReportPages::Font(28));
    painter.drawText(QRectF(0.0, 70.0, ReportPages::width, 50.0), Qt::AlignLeft, summary);
  });
}

}  // namespace hullwright
