#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The drawing back end: the operations that the canvas and the drawers need, and no more.
/// Coordinates and stroke widths are client pixels, y growing downward.
namespace hullwright {

/// Result of a drawing operation: 0 is success, negative values are failures.
using ResultCode = std::int32_t;

constexpr bool Failed(ResultCode code) { return code < 0; }

/// The code of a frame whose device was lost: the target must be made again.
inline constexpr ResultCode recreateTarget = static_cast<ResultCode>(0x8899000CU);

struct PixelPoint {
  float x = 0.0F;
  float y = 0.0F;
};

struct PixelRect {
  float left = 0.0F;
  float top = 0.0F;
  float right = 0.0F;
  float bottom = 0.0F;
};

struct PixelSize {
  float width = 0.0F;
  float height = 0.0F;
};

/// Parts from 0.0 to 1.0.
struct Colour {
  float red = 0.0F;
  float green = 0.0F;
  float blue = 0.0F;
  float alpha = 1.0F;
};

/// What a creating operation gives: a code, and the object on success.
template <class T>
struct Created {
  ResultCode code = 0;
  std::unique_ptr<T> object;
};

class IBrush {
public:
  virtual ~IBrush() = default;
  virtual void SetColour(const Colour& colour) = 0;
};

class ITextFormat {
public:
  virtual ~ITextFormat() = default;
  /// Centres the text in its rectangle on both axes; without it the text starts at the upper left.
  virtual void CentreText() = 0;
  virtual void DisableWordWrapping() = 0;
};

enum class FigureFill { Filled, Hollow };
enum class FigureEnd { Open, Closed };

/// Receives the figures of a path; `Close` ends it.
class IPathSink {
public:
  virtual ~IPathSink() = default;
  virtual void ForceRoundLineJoins() = 0;
  virtual void BeginFigure(PixelPoint start, FigureFill fill) = 0;
  virtual void AddLines(std::span<const PixelPoint> points) = 0;
  virtual void EndFigure(FigureEnd end) = 0;
  virtual ResultCode Close() = 0;
};

class IPathGeometry {
public:
  virtual ~IPathGeometry() = default;
  virtual Created<IPathSink> Open() = 0;
};

/// One picture that frames are drawn on.
class IRenderTarget {
public:
  virtual ~IRenderTarget() = default;
  virtual void Resize(int width, int height) = 0;
  virtual void BeginDraw() = 0;
  virtual void Clear(const Colour& colour) = 0;
  /// Ends the frame and tells how it went.
  virtual ResultCode EndDraw() = 0;
  virtual std::unique_ptr<IBrush> CreateSolidColourBrush(const Colour& colour) = 0;
  virtual void DrawLine(PixelPoint from, PixelPoint to, const IBrush& brush, float width) = 0;
  virtual void DrawRectangle(const PixelRect& rect, const IBrush& brush, float width) = 0;
  virtual void FillRectangle(const PixelRect& rect, const IBrush& brush) = 0;
  virtual void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const IBrush& brush,
                           float width) = 0;
  virtual void DrawGeometry(const IPathGeometry& geometry, const IBrush& brush, float width) = 0;
  virtual void DrawText(std::u16string_view text, const ITextFormat& format, const PixelRect& rect,
                        const IBrush& brush) = 0;
  /// Turns what follows by `angleDegrees`, clockwise on the screen, about a pixel; 0.0 about (0, 0)
  /// is the identity.
  virtual void SetRotation(float angleDegrees, PixelPoint centre) = 0;
};

/// The window that a target is bound to.
class IDrawingWindow {
public:
  virtual ~IDrawingWindow() = default;
  virtual bool IsWindow() const = 0;
  /// Client size in pixels; nothing when the window can't tell.
  virtual std::optional<PixelSize> ClientSize() const = 0;
};

/// Makes targets and paths.
class IDrawFactory {
public:
  virtual ~IDrawFactory() = default;
  virtual Created<IRenderTarget> CreateWindowTarget(IDrawingWindow& window, int width, int height,
                                                    float dpiX, float dpiY) = 0;
  virtual Created<IPathGeometry> CreatePathGeometry() = 0;
};

/// Makes and measures text formats.
class IWriteFactory {
public:
  virtual ~IWriteFactory() = default;
  virtual Created<ITextFormat> CreateTextFormat(std::u16string_view family, float size) = 0;
  /// Size of the text laid out within the limits.
  virtual std::optional<PixelSize> MeasureText(const ITextFormat& format, std::u16string_view text,
                                               float maxWidth, float maxHeight) = 0;
};

/// Picture files; made and kept for whoever needs one.
class IImagingFactory {
public:
  virtual ~IImagingFactory() = default;
};

/// The way into a back end.
class IDrawingBackEnd {
public:
  virtual ~IDrawingBackEnd() = default;
  virtual Created<IDrawFactory> CreateDrawFactory() = 0;
  virtual Created<IWriteFactory> CreateWriteFactory() = 0;
  virtual Created<IImagingFactory> CreateImagingFactory() = 0;
  /// The platform's text for a code; nothing when it has none.
  virtual std::optional<std::string> SystemMessage(ResultCode code) const = 0;
};

}  // namespace hullwright
