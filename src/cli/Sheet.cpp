#include "cli/Sheet.h"

#include <QFont>
#include <QPainter>
#include <algorithm>

#include "app/HullwrightApp.h"
#include "base/Code.h"
#include "base/Numbers.h"
#include "base/RoundNumbers.h"
#include "cli/DesignContent.h"
#include "cli/PictureFile.h"
#include "model/OffsetPoints.h"
#include "paint/PaintText.h"

namespace hullwright {
namespace {

constexpr int gap = 24;
constexpr int heading = 40;
constexpr int caption = 40;
constexpr int scaleBar = 24;

QString ToText(std::u16string_view text)
{
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QString Coordinate(double value) { return QString::fromStdString(FormatFixed(value, 3)); }

SheetRow RowOf(std::string_view offset, const CShapeVertex& place)
{
  QString name = QString::fromLatin1(offset.data(), static_cast<qsizetype>(offset.size()));
  name[0] = name[0].toUpper();
  return {name, Coordinate(place.x), Coordinate(place.y), Coordinate(place.z)};
}

SheetRow RowOf(const CAnchor& anchor)
{
  QString name = QStringLiteral("Anchor %1").arg(anchor.id);
  if (!anchor.name.empty()) name += QStringLiteral(" (%1)").arg(ToText(anchor.name));
  return {name, Coordinate(anchor.attachmentX), Coordinate(anchor.attachmentY), {}};
}

QFont FontOf(int pixels, bool bold = false)
{
  QFont font(QString::fromLatin1(sansFace));
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

int Rounded(int value, int divisor) { return (value + divisor - 1) / divisor; }

/// A text in its place, cut where that is too narrow.
void PaintText(QPainter& sheet, const QRect& place, int alignment, const QString& text)
{
  const QString shown = sheet.fontMetrics().elidedText(text, Qt::ElideMiddle, place.width());
  sheet.drawText(place, alignment | Qt::AlignVCenter, shown);
}

void PaintRow(QPainter& sheet, const QRect& place, const SheetRow& row)
{
  // The name takes two parts of five, each coordinate one.
  const int part = place.width() / 5;
  QRect cell(place.topLeft(), QSize(2 * part, place.height()));
  PaintText(sheet, cell, Qt::AlignLeft, row.name);
  for (const QString& coordinate : {row.x, row.y, row.z}) {
    cell = QRect(cell.right() + 1, place.top(), part, place.height());
    PaintText(sheet, cell, Qt::AlignRight, coordinate);
  }
}

}  // namespace

SheetFacts FactsOf(CHullwrightApp& design, const QString& file)
{
  SheetFacts facts;
  facts.file = file;
  facts.unit = QString::fromStdString(
      UnitNameOf(design, "code " + std::to_string(NumberOf(design.unitCode))));
  std::u16string unitShort;
  design.GetUnitLabel(unitShort);
  facts.unitShort = ToText(unitShort);
  for (const OffsetPoint& point : offsetPoints) {
    const CShapeVertex* const place = (design.*point.place).get();
    if (place != nullptr) facts.rows.append(RowOf(point.name, *place));
  }
  ForEachEntry(design.anchors->items,
               [&facts](const CAnchor& anchor) { facts.rows.append(RowOf(anchor)); });
  return facts;
}

SheetLayout::SheetLayout(QSize picture, int pictures) : picture_(picture), count_(pictures) {}

SheetLayout::SheetLayout(QSize picture, int pictures, int tableRows)
    : picture_(picture),
      count_(pictures),
      heading_(heading),
      scaleBar_(scaleBar),
      tableRows_(tableRows)
{
}

std::string SheetLayout::Problem() const
{
  constexpr int largest = 32767;  // of the toolkit's pictures
  const QSize size = Size();
  if (size.width() <= largest && size.height() <= largest) return {};
  return "the sheet would have " + PixelsOf(size) + ", more than " + std::to_string(largest) +
         " one way; a smaller --size makes a smaller sheet";
}

int SheetLayout::FontSize() const
{
  constexpr int smallest = 6;
  constexpr int largest = 16;
  constexpr int perSheet = 50;
  return std::clamp(Width() / perSheet, smallest, largest);
}

int SheetLayout::Columns() const { return count_ > 4 ? 3 : std::min(count_, 2); }

int SheetLayout::Width() const { return Columns() * (picture_.width() + gap) + gap; }

int SheetLayout::CellHeight() const { return picture_.height() + caption + scaleBar_ + gap; }

int SheetLayout::TableTop() const
{
  return gap + heading_ + Rounded(count_, Columns()) * CellHeight();
}

int SheetLayout::MostTableColumns() const
{
  constexpr int columnInFonts = 36;
  return std::max(1, (Width() - 2 * gap) / (columnInFonts * FontSize()));
}

int SheetLayout::RowsPerColumn() const
{
  return std::max(1, Rounded(tableRows_, MostTableColumns()));
}

int SheetLayout::TableColumns() const { return Rounded(tableRows_, RowsPerColumn()); }

QSize SheetLayout::Size() const
{
  const int table = tableRows_ == 0 ? 0 : TableRow(RowsPerColumn() - 1).bottom() + 1 + gap;
  return {Width(), std::max(TableTop(), table)};
}

QRect SheetLayout::Heading() const { return {gap, gap, Width() - 2 * gap, heading_}; }

QRect SheetLayout::Picture(int i) const
{
  const int x = gap + i % Columns() * (picture_.width() + gap);
  const int y = gap + heading_ + i / Columns() * CellHeight();
  return {QPoint(x, y), picture_};
}

QRect SheetLayout::Caption(int i) const
{
  const QRect picture = Picture(i);
  return {picture.left(), picture.bottom() + 1, picture.width(), caption};
}

QRect SheetLayout::ScaleBar(int i) const
{
  const QRect above = Caption(i);
  return {above.left(), above.bottom() + 1, above.width(), scaleBar_};
}

QRect SheetLayout::TableLine(int column, int line) const
{
  const int height = FontSize() * 3 / 2;
  const int columns = MostTableColumns();
  const int width = (Width() - 2 * gap - (columns - 1) * gap) / columns;
  return {gap + column * (width + gap), TableTop() + line * height, width, height};
}

QRect SheetLayout::TableHead(int column) const { return TableLine(column, 0); }

QRect SheetLayout::TableRow(int row) const
{
  return TableLine(row / RowsPerColumn(), 1 + row % RowsPerColumn());
}

void PaintGround(QPainter& sheet, const SheetLayout& layout)
{
  sheet.fillRect(QRect(QPoint(0, 0), layout.Size()), Qt::white);
}

void PaintHeading(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts)
{
  const QRect place = layout.Heading();
  const int unitWidth = place.width() / 3;
  sheet.setPen(Qt::black);
  sheet.setFont(FontOf(layout.FontSize() * 5 / 4, true));
  PaintText(sheet, place.adjusted(0, 0, -unitWidth, 0), Qt::AlignLeft, facts.file);
  sheet.setFont(FontOf(layout.FontSize()));
  PaintText(sheet, place.adjusted(place.width() - unitWidth, 0, 0, 0), Qt::AlignRight,
            QStringLiteral("Unit: %1").arg(facts.unit));
}

void PaintPictures(QPainter& sheet, const SheetLayout& layout,
                   const std::vector<std::string>& captions,
                   const std::function<void(std::size_t picture, QPoint corner)>& paint)
{
  for (int i = 0; i < layout.Count(); ++i) {
    const auto number = static_cast<std::size_t>(i);
    const QRect area = layout.Picture(i);
    sheet.save();
    sheet.setClipRect(area);
    paint(number, area.topLeft());
    sheet.restore();
    sheet.setPen(Qt::black);
    sheet.setFont(FontOf(caption / 2));
    sheet.drawText(layout.Caption(i), Qt::AlignCenter, QString::fromStdString(captions[number]));
  }
}

void PaintScaleBar(QPainter& sheet, const SheetLayout& layout, int picture, double worldWidth,
                   const QString& unit)
{
  constexpr int mostOfThePicture = 3;
  constexpr int tick = 4;
  const QRect place = layout.ScaleBar(picture);
  const double length = RoundDown(worldWidth / mostOfThePicture);
  if (length <= 0.0) return;
  const double pixels = length / worldWidth * place.width();
  const QPointF start(place.left() + 0.5, place.center().y() + 0.5);
  const QPointF end = start + QPointF(pixels, 0.0);
  sheet.setPen(QPen(Qt::black, 1.0));
  sheet.drawLine(start, end);
  for (const QPointF& at : {start, end}) {
    sheet.drawLine(at - QPointF(0.0, tick), at + QPointF(0.0, tick));
  }
  sheet.setFont(FontOf(layout.FontSize()));
  const int textLeft = static_cast<int>(end.x()) + 2 * tick;
  const QString text =
      QStringLiteral("%1 %2").arg(QString::fromStdString(RoundNumberText(length)), unit);
  sheet.drawText(QRect(textLeft, place.top(), place.right() - textLeft, place.height()),
                 Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text.trimmed());
}

void PaintTable(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts)
{
  const QString unit =
      facts.unitShort.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(facts.unitShort);
  const SheetRow heads = {QStringLiteral("Offsets and anchors"), QStringLiteral("X") + unit,
                          QStringLiteral("Y") + unit, QStringLiteral("Z") + unit};
  sheet.setPen(Qt::black);
  sheet.setFont(FontOf(layout.FontSize(), true));
  for (int column = 0; column < layout.TableColumns(); ++column) {
    const QRect place = layout.TableHead(column);
    PaintRow(sheet, place, heads);
    sheet.drawLine(place.bottomLeft(), place.bottomRight());
  }
  sheet.setFont(FontOf(layout.FontSize()));
  for (int row = 0; row < facts.rows.size(); ++row) {
    PaintRow(sheet, layout.TableRow(row), facts.rows.at(row));
  }
}

}  // namespace hullwright
