#pragma once

#include <QByteArray>
#include <QPainter>
#include <QSize>
#include <functional>
#include <string>
#include <vector>

namespace hullwright {

/// Several pictures of one size on a sheet, two beside each other or three, with a caption below
/// each.
class PictureSheet {
public:
  /// The size of each picture in pixels.
  PictureSheet(QSize picture, std::vector<std::string> captions);

  QSize Size() const;

  /// Why there is no sheet of this size; empty where there is.
  std::string Problem() const;

  /// The bytes of the sheet; `ending`, with its point, is that of the format. `paint` gets the
  /// number of a picture, from 0, its upper left corner, and a painter that can't leave it.
  QByteArray Make(const std::string& ending,
                  const std::function<void(std::size_t picture, QPoint corner, QPainter& painter)>&
                      paint) const;

private:
  QPoint Corner(int i) const;

  QSize picture_;
  std::vector<std::string> captions_;
  int count_;
  int columns_;
};

}  // namespace hullwright
