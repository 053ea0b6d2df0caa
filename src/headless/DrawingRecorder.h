#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Drawing.h"

namespace hullwright {

struct StepTaken {
  TargetStep step;
  int width;  ///< client size of the window
  int height;
  Resolution resolution;
};

struct PictureResized {
  int width;
  int height;
};

struct FrameBegun {
  Colour background;
};

struct FrameEnded {};

struct LineDrawn {
  PixelPoint from;
  PixelPoint to;
  Stroke stroke;
};

struct RectangleDrawn {
  PixelRect rect;
  Stroke stroke;
};

struct RectangleFilled {
  PixelRect rect;
  Colour colour;
};

struct EllipseDrawn {
  PixelPoint centre;
  float radiusX;
  float radiusY;
  Stroke stroke;
};

struct FiguresDrawn {
  FigureKind kind;
  std::vector<std::vector<PixelPoint>> figures;
  Stroke stroke;
};

struct TextDrawn {
  std::u16string text;
  std::u16string family;
  float size;
  bool centred;
  PixelRect rect;
  Colour colour;
  std::optional<Colour> ground;
  std::optional<Turn> turn;
};

/// One call of a drawing target, with all its values.
using DrawingCall =
    std::variant<StepTaken, PictureResized, FrameBegun, FrameEnded, LineDrawn, RectangleDrawn,
                 RectangleFilled, EllipseDrawn, FiguresDrawn, TextDrawn>;

/// What a recorder can be made to fail at, beside the steps.
enum class DrawingFailure {
  None,
  Colour,     ///< nothing with a colour is drawn, apart from the background
  TextStyle,  ///< texts can't have any style
  Figures,    ///< no figures are drawn
  FrameEnd    ///< frames end with `failCode`
};

/// A drawing target without a picture that keeps its calls. A text of n units at size s measures
/// n * 0.5 * s by s.
class DrawingRecorder : public IDrawingTarget {
public:
  StepResult Prepare(TargetStep step, Resolution resolution) override;
  void Resize(int width, int height) override;
  void BeginFrame(const Colour& background) override;
  FrameResult EndFrame() override;
  void DrawLine(PixelPoint from, PixelPoint to, const Stroke& stroke) override;
  void DrawRectangle(const PixelRect& rect, const Stroke& stroke) override;
  void FillRectangle(const PixelRect& rect, const Colour& colour) override;
  void DrawEllipse(PixelPoint centre, float radiusX, float radiusY, const Stroke& stroke) override;
  void DrawFigures(const Figures& figures, const Stroke& stroke) override;
  std::optional<PixelSize> MeasureText(std::u16string_view text, const TextStyle& style,
                                       PixelSize limits) override;
  void DrawText(const TextBlock& block) override;

  std::vector<DrawingCall> calls;  ///< everything, in order; may be cleared at any time
  std::function<void()> onFrame;   ///< called before a frame begins
  int width = 800;                 ///< client size of the window, which `Resize` leaves alone
  int height = 600;
  PixelSize measuredWithin;  ///< the limits of the last measuring of a text

  std::optional<TargetStep> failingStep;
  DrawingFailure failing = DrawingFailure::None;
  ResultCode failCode = -1;
  bool yieldsNothing = false;              ///< the failing step succeeds, but yields nothing
  std::optional<std::string> failMessage;  ///< the platform's text for a failed frame

private:
  /// Keeps a call that has a colour.
  template <typename Call>
  void Keep(Call call)
  {
    if (failing != DrawingFailure::Colour) calls.emplace_back(std::move(call));
  }
};

/// The calls of the last frame that has begun, from its beginning to its end if it has ended. None
/// before the first frame.
std::span<const DrawingCall> LastFrame(std::span<const DrawingCall> calls);

}  // namespace hullwright
