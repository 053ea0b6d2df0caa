#include "cli/ReportPages.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPdfWriter>
#include <QStringList>
#include <algorithm>

#include "paint/PaintText.h"
#include "resources/Strings.h"

namespace hullwright {
namespace {

constexpr int dotsPerInch = 254;  // a tenth of a millimetre each

// Sizes of fonts and distances, in tenths of a millimetre.
constexpr int titleSize = 64;
constexpr int headingSize = 44;
constexpr int textSize = 34;
constexpr double cellPadding = 12.0;
constexpr double fieldNameWidth = 330.0;

/// How a text goes on in the next line at a width: between words, or anywhere where a word is
/// wider.
int WrappingOf(const QString& text, const QFont& font, double textWidth)
{
  const QFontMetricsF metrics(font);
  const QStringList words = text.split(QLatin1Char(' '));
  const bool fits = std::all_of(words.begin(), words.end(), [&](const QString& word) {
    return metrics.horizontalAdvance(word) <= textWidth;
  });
  return Qt::AlignTop | (fits ? Qt::TextWordWrap : Qt::TextWrapAnywhere);
}

/// Height of a text that goes on in the next line at a width.
double HeightOf(const QString& text, const QFont& font, double textWidth)
{
  constexpr double highest = 1e5;
  const QFontMetricsF metrics(font);
  const QRectF box = metrics.boundingRect(QRectF(0.0, 0.0, textWidth, highest),
                                          WrappingOf(text, font, textWidth), text);
  return std::max(box.height(), metrics.height());
}

void PaintWrapped(QPainter& painter, const QRectF& area, const QString& text, bool atRight = false)
{
  const int wrapping = WrappingOf(text, painter.font(), area.width());
  painter.drawText(area, wrapping | (atRight ? Qt::AlignRight : Qt::AlignLeft), text);
}

/// Puts a date in the place of the one that the toolkit writes, which is that of the clock.
void SetDate(QByteArray& pdf, const QDateTime& made)
{
  const QByteArray key("/CreationDate (D:");
  const qsizetype at = pdf.indexOf(key);
  const qsizetype end = pdf.indexOf(')', at);
  if (at < 0 || end < 0) return;
  const qsizetype begin = at + key.size();
  QByteArray date = made.toUTC().toString(QStringLiteral("yyyyMMddHHmmss")).toLatin1();
  date += "Z00'00'";
  // Everything behind it keeps its place, which the file's table of places needs.
  pdf.replace(begin, end - begin, date.leftJustified(end - begin, ' ', true));
}

}  // namespace

ReportPages::ReportPages() { StartPage(); }

QFont ReportPages::Font(int size, bool bold)
{
  QFont font(QString::fromLatin1(sansFace));
  font.setPixelSize(size);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

void ReportPages::StartPage()
{
  pages_.emplace_back();
  y_ = 0.0;
}

void ReportPages::AddBlock(double blockHeight, Paint paint)
{
  if (y_ > 0.0 && y_ + blockHeight > height) StartPage();
  pages_.back().emplace_back([y = y_, paint = std::move(paint)](QPainter& painter) {
    painter.save();
    painter.translate(0.0, y);
    paint(painter);
    painter.restore();
  });
  y_ += blockHeight;
}

void ReportPages::AddText(const QString& text, const QFont& font, double above)
{
  const double textHeight = HeightOf(text, font, width);
  const double space = y_ > 0.0 ? above : 0.0;
  AddBlock(space + textHeight * 1.25, [=](QPainter& painter) {
    painter.setFont(font);
    PaintWrapped(painter, {0.0, space, width, textHeight + 1.0}, text);
  });
}

void ReportPages::AddTitle(const QString& text) { AddText(text, Font(titleSize, true), 0.0); }
void ReportPages::AddLine(const QString& text) { AddText(text, Font(textSize), 0.0); }

void ReportPages::AddHeading(const QString& text)
{
  // A heading never stands alone at the foot of a page.
  constexpr double below = 200.0;
  if (y_ + below > height) StartPage();
  AddText(text, Font(headingSize, true), 50.0);
}

void ReportPages::AddField(const QString& name, const QString& value)
{
  const QFont font = Font(textSize);
  constexpr double valueWidth = width - fieldNameWidth;
  const double textHeight = HeightOf(value, font, valueWidth);
  AddBlock(textHeight * 1.2, [=](QPainter& painter) {
    painter.setFont(Font(textSize, true));
    PaintWrapped(painter, {0.0, 0.0, fieldNameWidth, textHeight + 1.0}, name);
    painter.setFont(font);
    PaintWrapped(painter, {fieldNameWidth, 0.0, valueWidth, textHeight + 1.0}, value);
  });
}

double ReportPages::RowHeight(const std::vector<ReportColumn>& columns, const ReportRow& row,
                              const QFont& font) const
{
  double highest = 0.0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    highest = std::max(highest, HeightOf(row[i], font, columns[i].width - 2.0 * cellPadding));
  }
  return highest + cellPadding;
}

void ReportPages::AddRow(const std::vector<ReportColumn>& columns, const ReportRow& row,
                         bool isTitle)
{
  const QFont font = Font(textSize, isTitle);
  const double rowHeight = RowHeight(columns, row, font);
  AddBlock(rowHeight, [=](QPainter& painter) {
    painter.setFont(font);
    double x = 0.0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      const double textWidth = columns[i].width - 2.0 * cellPadding;
      PaintWrapped(painter, {x + cellPadding, cellPadding / 2.0, textWidth, rowHeight}, row[i],
                   columns[i].isNumber);
      x += columns[i].width;
    }
    painter.setPen(QPen(isTitle ? QColor(Qt::black) : QColor(Qt::lightGray), isTitle ? 3.0 : 1.0));
    painter.drawLine(QPointF(0.0, rowHeight), QPointF(x, rowHeight));
  });
}

void ReportPages::AddTable(const std::vector<ReportColumn>& columns,
                           const std::vector<ReportRow>& rows)
{
  ReportRow titles;
  for (const ReportColumn& column : columns) titles.push_back(column.title);
  const auto highest = [&](const ReportRow& row, bool isTitle) {
    return RowHeight(columns, row, Font(textSize, isTitle));
  };
  bool needsTitles = true;
  for (const ReportRow& row : rows) {
    const double needed = highest(row, false) + (needsTitles ? highest(titles, true) : 0.0);
    if (y_ > 0.0 && y_ + needed > height) {
      StartPage();
      needsTitles = true;
    }
    if (needsTitles) AddRow(columns, titles, true);
    needsTitles = false;
    AddRow(columns, row, false);
  }
}

QByteArray ReportPages::Write(const QString& title, const QString& foot,
                              const QDateTime& made) const
{
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setResolution(dotsPerInch);
  pdf.setPageSize(QPageSize(QPageSize::A4));
  pdf.setPageMargins(QMarginsF(20.0, 20.0, 20.0, 15.0), QPageLayout::Millimeter);
  pdf.setTitle(title);
  pdf.setCreator(QString::fromLatin1(Strings::program) + QStringLiteral(" " HULLWRIGHT_VERSION));
  {
    QPainter painter(&pdf);
    const QRectF footArea(0.0, height + 50.0, width, 50.0);
    for (std::size_t i = 0; i < pages_.size(); ++i) {
      if (i > 0) pdf.newPage();
      for (const Paint& paint : pages_[i]) paint(painter);
      painter.setPen(Qt::black);
      painter.setFont(Font(28));
      const QString place = QStringLiteral("page %1 of %2").arg(i + 1).arg(pages_.size());
      const double room = width - QFontMetricsF(painter.font()).horizontalAdvance(place) - 50.0;
      painter.drawText(footArea, Qt::AlignLeft | Qt::AlignVCenter,
                       QFontMetricsF(painter.font()).elidedText(foot, Qt::ElideMiddle, room));
      painter.drawText(footArea, Qt::AlignRight | Qt::AlignVCenter, place);
    }
  }
  buffer.close();
  SetDate(bytes, made);
  return bytes;
}

}  // namespace hullwright
