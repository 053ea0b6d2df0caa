#pragma once

#include <bitset>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"

namespace hullwright {

/// The drawing surface of the design view: makes the target of its window ready, and draws what is
/// more than one call of it. It keeps nothing from one frame to the next. Without a target (before
/// `Initialize`, after a failure, after `ReleaseResources`) drawers skip what they can't draw.
class CCanvas {
public:
  CCanvas() = default;
  CCanvas(const CCanvas&) = delete;
  CCanvas& operator=(const CCanvas&) = delete;
  virtual ~CCanvas() = default;

  /// Makes a target ready, which must outlive the canvas. On the first failure `errorText` states
  /// it, the result is false, and what was held so far stays.
  bool Initialize(IDrawingTarget* target);

  /// Lets go of the target; window, resolution and error text stay.
  void ReleaseResources();

  /// What can be drawn on; null without it.
  IDrawingTarget* Target() const { return target_; }

  /// Whether a step of the last successful `Initialize` yielded something that is still held. The
  /// window and its client area are never held.
  bool Holds(TargetStep step) const { return held_[static_cast<std::size_t>(step)]; }

  /// Draws an open line with round joins. Fewer than two points draw nothing.
  void DrawPolyline(std::span<const PixelPoint> line, const Stroke& stroke) const;

  /// Whether texts can be drawn in a style.
  bool CanWrite(const TextStyle& style) const { return MeasureText({}, style).has_value(); }

  /// Size of a text, measured as wrapped at 1000.0; nothing where texts can't have this style.
  std::optional<PixelSize> MeasureText(std::u16string_view text, const TextStyle& style) const;

  /// Keeps the text of a failed frame, and makes the target ready again when the device was lost.
  /// Success does nothing.
  void EndFrame(const FrameResult& result);

  std::string errorText;             ///< the last failure; empty until one occurs
  IDrawingTarget* window = nullptr;  ///< the target of the last `Initialize`, for the next one
  std::vector<PixelPoint> points;    ///< room for the points of the shape that is being drawn
  Resolution resolution;             ///< 96 whatever the monitor: a pixel is a pixel

private:
  IDrawingTarget* target_ = nullptr;
  std::bitset<targetSteps> held_;
};

/// The text for a failed frame: the platform's, or one of the two general forms where it has none.
std::string ErrorMessage(const FrameResult& result);

}  // namespace hullwright
