#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <functional>
#include <string>
#include <vector>

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

/// Where things stand on a sheet, in pixels: the heading, the pictures with their captions, two
/// beside each other or three, and the table.
class SheetLayout {
public:
  /// For pictures of a size with their captions, and nothing else.
  SheetLayout(QSize picture, int pictures);

  /// For pictures of a size with a heading, scale bars, and a table of as many rows.
  SheetLayout(QSize picture, int pictures, int tableRows);

  QSize Size() const;

  /// Why there is no sheet of this size; empty where there is.
  std::string Problem() const;

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
  int Columns() const;
  int Width() const;
  int CellHeight() const;
  int TableTop() const;
  int MostTableColumns() const;
  int RowsPerColumn() const;
  QRect TableLine(int column, int line) const;

  QSize picture_;
  int count_;
  int heading_ = 0;
  int scaleBar_ = 0;
  int tableRows_ = 0;
};

/// Paints a sheet white.
void PaintGround(QPainter& sheet, const SheetLayout& layout);

/// Paints the pictures of a sheet with their captions. `paint` paints one by its number, from 0,
/// and its upper left corner, and can't leave its place.
void PaintPictures(QPainter& sheet, const SheetLayout& layout,
                   const std::vector<std::string>& captions,
                   const std::function<void(std::size_t picture, QPoint corner)>& paint);

// Other parts of a sheet.
void PaintHeading(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts);
void PaintScaleBar(QPainter& sheet, const SheetLayout& layout, int picture, double worldWidth,
                   const QString& unit);
void PaintTable(QPainter& sheet, const SheetLayout& layout, const SheetFacts& facts);

}  // namespace hullwright
