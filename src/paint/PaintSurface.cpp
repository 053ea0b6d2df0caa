#include "paint/PaintSurface.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace hullwright {

PaintSurface::PaintSurface(int width, int height, double ratio) : ratio_(ratio)
{
  Allocate(width, height);
}

QPaintDevice* PaintSurface::Device()
{
  if (device_ != nullptr) return device_;
  return picture_.isNull() ? nullptr : &picture_;
}

void PaintSurface::Allocate(int width, int height)
{
  width_ = std::max(width, 0);
  height_ = std::max(height, 0);
  picture_ = QImage();  // the old one's memory goes first
  if (device_ != nullptr) return;
  try {
    picture_ = QImage(static_cast<int>(std::ceil(width_ * ratio_)),
                      static_cast<int>(std::ceil(height_ * ratio_)), QImage::Format_RGB32);
    picture_.setDevicePixelRatio(ratio_);
    if (!picture_.isNull()) picture_.fill(Qt::white);
  } catch (const std::bad_alloc&) {
    picture_ = QImage();  // as where its pixels alone find no room
  }
}

}  // namespace hullwright
