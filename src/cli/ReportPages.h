#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFont>
#include <QPainter>
#include <QString>
#include <functional>
#include <vector>

namespace hullwright {

/// A column of a table.
struct ReportColumn {
  QString title;
  double width = 0.0;     ///< in tenths of a millimetre
  bool isNumber = false;  ///< at the right edge
};

using ReportRow = std::vector<QString>;

/// A document of A4 pages that fill from above. Lengths are tenths of a millimetre; the origin is
/// the upper left corner of what the margins leave.
class ReportPages {
public:
  static constexpr double width = 1700.0;
  static constexpr double height = 2470.0;  ///< without the line at the foot

  ReportPages();

  void AddTitle(const QString& text);
  void AddHeading(const QString& text);
  void AddLine(const QString& text);

  /// A word and what stands behind it.
  void AddField(const QString& name, const QString& value);

  /// A table, with its titles again on each page that it comes to. Texts that are too long for
  /// their column go on in its next line.
  void AddTable(const std::vector<ReportColumn>& columns, const std::vector<ReportRow>& rows);

  /// Something of a height that stays on one page. `paint` gets a painter whose origin is its upper
  /// left corner.
  void AddBlock(double blockHeight, std::function<void(QPainter&)> paint);

  void StartPage();

  /// The bytes of the document; `foot` stands at the foot of each page, beside its number. `made`
  /// is the date that the file states.
  QByteArray Write(const QString& title, const QString& foot, const QDateTime& made) const;

  static QFont Font(int size, bool bold = false);

private:
  using Paint = std::function<void(QPainter&)>;

  void AddText(const QString& text, const QFont& font, double above);
  double RowHeight(const std::vector<ReportColumn>& columns, const ReportRow& row,
                   const QFont& font) const;
  void AddRow(const std::vector<ReportColumn>& columns, const ReportRow& row, bool isTitle);

  std::vector<std::vector<Paint>> pages_;
  double y_ = 0.0;  ///< where the next thing goes on the last page
};

}  // namespace hullwright
