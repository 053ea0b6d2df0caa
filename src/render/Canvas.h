#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "platform/Drawing.h"

namespace hullwright {

/// The drawing surface of the design view: the render target of its window and the factories behind
/// it. It caches nothing; drawers make their brushes and formats for each repaint. Without a target
/// (before `Initialize`, after a failure, after `ReleaseResources`) drawers skip what they can't
/// draw.
class CCanvas {
public:
  explicit CCanvas(IDrawingBackEnd& backEnd) : backEnd_(backEnd) {}
  CCanvas(const CCanvas&) = delete;
  CCanvas& operator=(const CCanvas&) = delete;
  virtual ~CCanvas();

  /// Makes factories and target for a window. On the first failure `errorText` tells it, the result
  /// is false, and the objects held so far stay as they were.
  bool Initialize(IDrawingWindow* window);

  /// Lets go of target and factories; window, resolution and error text stay.
  void ReleaseResources();

  /// Draws an open line with round joins. Fewer than two points draw nothing.
  void DrawPolyline(const IBrush& brush, std::span<const PixelPoint> points, float width) const;

  /// A format of normal weight, style and stretch; `size` in pixels. Null on failure.
  std::unique_ptr<ITextFormat> CreateFormat(std::u16string_view family, float size) const;

  /// An empty path; null on failure.
  std::unique_ptr<IPathGeometry> CreateGeometry() const;

  /// Size of a text, measured as wrapped at 1000.0; zero on failure.
  PixelSize MeasureText(const ITextFormat& format, std::u16string_view text) const;

  /// Keeps the text of a failed frame, and makes the target anew when the device was lost. Success
  /// does nothing.
  void EndFrame(ResultCode code);

  std::string errorText;  ///< the last failure; empty until one occurs
  std::unique_ptr<IRenderTarget> renderTarget;
  std::unique_ptr<IDrawFactory> factory;
  std::unique_ptr<IWriteFactory> writeFactory;
  std::unique_ptr<IImagingFactory> imagingFactory;
  IDrawingWindow* window = nullptr;  ///< kept for re-creation
  float dpiX = 96.0F;                ///< 96 whatever the monitor: a pixel is a pixel
  float dpiY = 96.0F;

private:
  bool Fail(std::string_view what, ResultCode code);

  IDrawingBackEnd& backEnd_;
};

/// The text for a result code: the platform's, or one of the two general forms where it has none.
std::string ErrorMessage(const IDrawingBackEnd& backEnd, ResultCode code);

}  // namespace hullwright
