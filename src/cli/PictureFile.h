#pragma once

#include <QByteArray>
#include <QSize>
#include <deque>
#include <functional>
#include <string>

#include "system/OutputFile.h"

class QPaintDevice;

namespace hullwright {

/// Makes the toolkit ready, as often as it is asked to: fonts need it, but no display.
void StartToolkit();

/// The bytes of a picture of a size in pixels that `paint` paints on; `ending`, with its point, is
/// that of the format. Empty where there is no memory for it.
QByteArray MakePicture(const std::string& ending, QSize size,
                       const std::function<void(QPaintDevice&)>& paint);

/// "800x500 pixels".
std::string PixelsOf(QSize size);

/// Files that come to be all together, or none of them.
class PictureFiles {
public:
  /// Writes a file beside its place. Empty on success, else what went wrong; no bytes stand for a
  /// picture that there was no memory for.
  std::string Add(const std::string& path, const QByteArray& bytes);

  /// Puts the files in their places. Empty on success, else what went wrong.
  std::string Commit();

private:
  std::deque<OutputFile> files_;
};

}  // namespace hullwright
