#include "cli/PictureSheet.h"

#include <algorithm>

#include "cli/PictureFile.h"
#include "paint/PaintText.h"

namespace hullwright {
namespace {

constexpr int gap = 24;      // between the pictures, in pixels
constexpr int caption = 40;  // height of the strip below each

}  // namespace

PictureSheet::PictureSheet(QSize picture, std::vector<std::string> captions)
    : picture_(picture),
      captions_(std::move(captions)),
      count_(static_cast<int>(captions_.size())),
      columns_(count_ > 4 ? 3 : std::min(count_, 2))
{
}

QSize PictureSheet::Size() const
{
  const int rows = (count_ + columns_ - 1) / columns_;
  return {columns_ * (picture_.width() + gap) + gap,
          rows * (picture_.height() + caption + gap) + gap};
}

QPoint PictureSheet::Corner(int i) const
{
  return {gap + i % columns_ * (picture_.width() + gap),
          gap + i / columns_ * (picture_.height() + caption + gap)};
}

std::string PictureSheet::Problem() const
{
  constexpr int largest = 32767;  // of the toolkit's pictures
  const QSize size = Size();
  if (size.width() <= largest && size.height() <= largest) return {};
  return "the sheet would have " + PixelsOf(size) + ", more than " + std::to_string(largest) +
         " one way; a smaller --size makes a smaller sheet";
}

QByteArray PictureSheet::Make(
    const std::string& ending,
    const std::function<void(std::size_t picture, QPoint corner, QPainter& painter)>& paint) const
{
  const QSize size = Size();
  return MakePicture(ending, size, [&](QPaintDevice& device) {
    QPainter sheet(&device);
    sheet.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    QFont font(QString::fromLatin1(sansFace));
    font.setPixelSize(caption / 2);
    sheet.setFont(font);
    for (int i = 0; i < count_; ++i) {
      const QRect area(Corner(i), picture_);
      sheet.save();
      sheet.setClipRect(area);
      paint(static_cast<std::size_t>(i), area.topLeft(), sheet);
      sheet.restore();
      sheet.setPen(Qt::black);
      sheet.drawText(QRect(area.bottomLeft(), QSize(area.width(), caption)), Qt::AlignCenter,
                     QString::fromStdString(captions_[static_cast<std::size_t>(i)]));
    }
  });
}

}  // namespace hullwright
