#include "cli/PictureFile.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "resources/Strings.h"

namespace hullwright {
namespace {

void MakeSvg(QBuffer& buffer, QSize size, const std::function<void(QPaintDevice&)>& paint)
{
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setTitle(QString::fromLatin1(Strings::program));
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setResolution(96);
  paint(svg);
}

void MakePdf(QBuffer& buffer, QSize size, const std::function<void(QPaintDevice&)>& paint)
{
  constexpr double pointsPerPixel = 72.0 / 96.0;
  QPdfWriter pdf(&buffer);
  pdf.setResolution(96);
  pdf.setTitle(QString::fromLatin1(Strings::program));
  pdf.setPageMargins(QMarginsF());
  pdf.setPageSize(
      QPageSize(QSizeF(size) * pointsPerPixel, QPageSize::Point, QString(), QPageSize::ExactMatch));
  paint(pdf);
}

}  // namespace

void StartToolkit()
{
  if (QCoreApplication::instance() != nullptr) return;
  // The toolkit's remarks on a machine without a desktop are nothing to the user of a command line.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static int count = 3;
  static char program[] = "hullwright-cli";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* arguments[] = {program, option, platform, nullptr};
  static const QGuiApplication toolkit(count, arguments);
}

QByteArray MakePicture(const std::string& ending, QSize size,
                       const std::function<void(QPaintDevice&)>& paint)
{
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (ending == ".svg") {
    MakeSvg(buffer, size, paint);
  } else if (ending == ".pdf") {
    MakePdf(buffer, size, paint);
  } else {
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull()) return {};
    picture.fill(Qt::white);
    paint(picture);
    // The first level of compression: two thirds of the time for a twentieth more bytes.
    constexpr int firstLevel = 80;  // of the toolkit's quality, where 100 is no compression
    picture.save(&buffer, "PNG", firstLevel);
  }
  return bytes;
}

std::string PixelsOf(QSize size)
{
  return std::to_string(size.width()) + "x" + std::to_string(size.height()) + " pixels";
}

std::string PictureFiles::Add(const std::string& path, const QByteArray& bytes)
{
  if (bytes.isEmpty()) return path + ": no memory for a picture of this size";
  OutputFile& file = files_.emplace_back(path);
  const bool written = file.Write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  return written ? std::string() : file.Problem();
}

std::string PictureFiles::Commit()
{
  for (OutputFile& file : files_) {
    if (!file.Commit()) return file.Problem();
  }
  return {};
}

}  // namespace hullwright
