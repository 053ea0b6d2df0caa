#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Pixels.h"

/// The drawing target: what the canvas and the drawers ask of a picture, and no more. Points and
/// texts are lent for the length of a call and all else goes in by value, so a target may gather
/// calls, leave out what can't be seen, and keep what it made of a figure. Coordinates and widths
/// are client pixels, y growing downward.
namespace hullwright {

/// Result of a drawing operation: 0 is success, negative values are failures.
using ResultCode = std::int32_t;

constexpr bool Failed(ResultCode code) { return code < 0; }

/// The code of a frame whose device was lost: the target must be made ready again.
inline constexpr ResultCode recreateTarget = static_cast<ResultCode>(0x8899000CU);

struct Stroke {
  Colour colour;
  float width = 1.0F;
};

enum class FigureKind {
  Line,    ///< open, with round joins
  Outline  ///< closed, with plain joins
};

/// Figures of one kind that share a stroke, each of which is painted by itself. The points are the
/// caller's and stand for the length of the call; each figure has at least one.
struct Figures {
  FigureKind kind = FigureKind::Line;
  std::span<const PixelPoint> points;      ///< of all figures, one after the other
  std::span<const std::size_t> pointEnds;  ///< for each figure the number of points up to its end
};

struct TextStyle {
  std::u16string_view family;
  float size = 0.0F;     ///< height of the font in pixels
  bool centred = false;  ///< on both axes of its rectangle; else it starts at the upper left
};

/// A turn about a pixel, clockwise on the screen.
struct Turn {
  float degrees = 0.0F;
  PixelPoint centre;
};

/// A text in a rectangle, never wrapped and never cut off at its edges.
struct TextBlock {
  std::u16string_view text;
  TextStyle style;
  PixelRect rect = {};
  Colour colour = {};
  std::optional<Colour> ground = std::nullopt;  ///< what the rectangle is filled with first
  std::optional<Turn> turn = std::nullopt;      ///< of text and rectangle
};

/// The steps in which a target is made ready, in their order.
enum class TargetStep {
  Window,      ///< there is a window
  Drawing,     ///< what figures are drawn with
  ClientArea,  ///< the window has a size that is known
  Picture,     ///< the picture of the window, of its client size
  Texts,       ///< what texts are measured and drawn with
  Imaging      ///< what picture files are made with
};

inline constexpr std::size_t targetSteps = 6;

struct StepResult {
  ResultCode code = 0;
  bool yielded = true;  ///< a step may succeed and still yield nothing
};

/// How a frame ended, and the platform's text for a failure where it has one.
struct FrameResult {
  ResultCode code = 0;
  std::optional<std::string> message;
};

/// The picture of one window, drawn frame by frame. Only a target whose steps were all done is
/// drawn on; a call with a value that can't be drawn, such as a width that is no number, draws
/// nothing.
class IDrawingTarget {
public:
  virtual ~IDrawingTarget() = default;

  /// Does one step. Each can be done again; the picture is then made anew.
  virtual StepResult Prepare(TargetStep step, Resolution resolution) = 0;

  /// Makes the picture anew at a client size.
  virtual void Resize(int width, int height) = 0;

  /// What a stroke of this width must come near to be seen: a line whose points all lie beyond one
  /// and the same edge of it paints nothing, and need not be drawn. Without it every line counts,
  /// as for a target that keeps its calls.
  virtual std::optional<PixelRect> SeenArea([[maybe_unused]] float strokeWidth) const
  {
    return std::nullopt;
  }

  virtual void BeginFrame(const Colour& background) = 0;
  virtual FrameResult EndFrame() = 0;

  virtual void DrawLine(PixelPoint from, PixelPoint to, const Stroke& stroke) = 0;
  virtual void DrawRectangle(const PixelRect& rect, const Stroke& stroke) = 0;
  virtual void FillRectangle(const PixelRect& rect, const Colour& colour) = 0;
  virtual void DrawEllipse(PixelPoint centre, float radiusX, float radiusY,
                           const Stroke& stroke) = 0;
  virtual void DrawFigures(const Figures& figures, const Stroke& stroke) = 0;

  /// Size of a text laid out within limits; nothing where texts can't have this style.
  virtual std::optional<PixelSize> MeasureText(std::u16string_view text, const TextStyle& style,
                                               PixelSize limits) = 0;
  virtual void DrawText(const TextBlock& block) = 0;
};

}  // namespace hullwright
