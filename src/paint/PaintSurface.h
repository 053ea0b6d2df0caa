#pragma once

#include <QImage>
#include <functional>

namespace hullwright {

/// The picture that frames are painted on, of the client size of its window. One client pixel is
/// `ratio` pixels of the picture on each axis.
class PaintSurface {
public:
  PaintSurface(int width, int height, double ratio = 1.0);

  /// Makes the picture anew at a client size. A size of zero, or one that there is no memory for,
  /// leaves none, and so does another device that frames are painted on.
  void Allocate(int width, int height);

  /// Lets frames be painted on another device, such as a page, whose unit is the client pixel; null
  /// for the picture again, which needs an `Allocate` if there was one meanwhile.
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
