#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QPainter;

namespace hullwright {

class CHullwrightApp;

/// A row of a sheet's table: a device or an anchor, and where it is.
struct SheetRow {
  QString name;
  QString x;
  QString y;
  QString z;  ///< empty for an anchor, which has none
};

/// What a sheet tells beside the pictures.
struct SheetFacts {
  QString file;
  QString unit;
  QString unitShort;
  QList<SheetRow> rows;
};

/// The facts of a design, or of the drawing that was imported into one, by the name of its file.
SheetFacts FactsOf(CHullwrightApp& design, const QString& file);

/// Where things stand on a sheet, in pixels: the heading, the sides with their captions, two beside
/// each other or three, and the table.
class SheetLayout {
public:
  /// For pictures of a size, and a table of as many rows.
  SheetLayout(QSize picture, int pictures, int tableRows);

  QSize Size() const;
  QRect Heading() const;
  QRect Picture(int i) const;
  QRect Caption(int i) const;
  QRect ScaleBar(int i) const;

  // A long table stands in several columns.
  int TableColumns() const;
  QRect TableHead(int column) const;
  QRect TableRow(int row) const;

  int Count() const { return count_; }
  int FontSize() const;

private:
  int Width() const;
  int TableTop() const;
  int MostTableColumns() const;
  int RowsPerColumn() const;
  QRect TableLine(int column, int line) const;

  QSize picture_;
  int count_;
  int tableRows_;
};

/// The longest round length, 1, 2 or 5 times a power of ten, up to a length; 0.0 where there is
/// none.
double RoundLength(double most);

// Parts of a sheet.
void PaintHeading(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts);
void PaintCaption(QPainter& sheet, const QRect& place, const QString& name);
void PaintScaleBar(QPainter& sheet, const SheetLayout& layout, int picture, double worldWidth,
                   const QString& unit);
void PaintTable(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts);

}  // namespace hullwright
