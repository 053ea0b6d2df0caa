#include "paint/PaintSurface.h"

#include <QPainter>
#include <QPen>
#include <algorithm>
#include <array>
#include <cmath>

#include "render/ClipPolyline.h"

namespace hullwright {

PaintSurface::PaintSurface(int width, int height, double ratio) : ratio_(ratio)
{
  Allocate(width, height);
}

std::optional<PixelSize> PaintSurface::ClientSize() const
{
  return PixelSize{static_cast<float>(width_), static_cast<float>(height_)};
}

void PaintSurface::Allocate(int width, int height)
{
  width_ = std::max(width, 0);
  height_ = std::max(height, 0);
  picture_ = QImage(static_cast<int>(std::lround(width_ * ratio_)),
                    static_cast<int>(std::lround(height_ * ratio_)), QImage::Format_RGB32);
  picture_.setDevicePixelRatio(ratio_);
  if (!picture_.isNull()) picture_.fill(Qt::white);
}

void PaintSurface::InvertLine(ClientPoint from, ClientPoint to)
{
  if (picture_.isNull()) return;
  const std::array<PixelPoint, 2> ends = {
      {{static_cast<float>(from.x), static_cast<float>(from.y)},
       {static_cast<float>(to.x), static_cast<float>(to.y)}}};
  const auto runs = ClipPolyline(ends, {-1.0, -1.0, width_ + 1.0, height_ + 1.0});
  if (runs.empty()) return;
  QPainter painter(&picture_);
  QPen pen(Qt::black, 1.0);
  pen.setDashPattern({6.0, 4.0});
  pen.setCosmetic(true);
  painter.setPen(pen);
  painter.setCompositionMode(QPainter::RasterOp_NotDestination);
  const auto& line = runs.front();
  painter.drawLine(QPointF(line.front().x, line.front().y), QPointF(line.back().x, line.back().y));
}

}  // namespace hullwright
