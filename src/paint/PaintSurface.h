#pragma once

#include <QImage>
#include <functional>

#include "platform/Drawing.h"

namespace hullwright {

/// The picture that frames are painted on, and the window that the canvas is bound to. One client
/// pixel is `ratio` pixels of the picture on each axis.
class PaintSurface : public IDrawingWindow {
public:
  PaintSurface(int width, int height, double ratio = 1.0);

  bool IsWindow() const override { return true; }
  std::optional<PixelSize> ClientSize() const override;

  /// Makes the picture anew at a client size. A size of zero, or one that there is no memory for,
  /// leaves none.
  void Allocate(int width, int height);

  /// Lets frames be painted on another device, such as a page, whose unit is the client pixel; null
  /// for the picture again.
  void SetDevice(QPaintDevice* device) { device_ = device; }

  /// What frames are painted on; null when there is nothing.
  QPaintDevice* Device();

  /// Pixels of the monitor for one client pixel; counts from the next `Allocate`.
  void SetRatio(double ratio) { ratio_ = ratio; }
  double Ratio() const { return ratio_; }

  QImage& Picture() { return picture_; }
  int Width() const { return width_; }
  int Height() const { return height_; }

  std::function<void()> onFrame;  ///< called when a frame is complete

private:
  int width_ = 0;
  int height_ = 0;
  double ratio_;
  QImage picture_;
  QPaintDevice* device_ = nullptr;
};

}  // namespace hullwright
