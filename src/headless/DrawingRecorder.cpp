#include "headless/DrawingRecorder.h"

#include <algorithm>
#include <utility>

namespace hullwright {

StepResult DrawingRecorder::Prepare(TargetStep step, Resolution resolution)
{
  calls.emplace_back(StepTaken{step, width, height, resolution});
  if (step != failingStep) return {};
  return {yieldsNothing ? 0 : failCode, false};
}

void DrawingRecorder::Resize(int newWidth, int newHeight)
{
  calls.emplace_back(PictureResized{newWidth, newHeight});
}

void DrawingRecorder::BeginFrame(const Colour& background)
{
  if (onFrame) onFrame();
  calls.emplace_back(FrameBegun{background});
}

FrameResult DrawingRecorder::EndFrame()
{
  calls.emplace_back(FrameEnded{});
  if (failing != DrawingFailure::FrameEnd) return {};
  return {failCode, failMessage};
}

void DrawingRecorder::DrawLine(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
  Keep(LineDrawn{from, to, stroke});
}

void DrawingRecorder::DrawRectangle(const PixelRect& rect, const Stroke& stroke)
{
  Keep(RectangleDrawn{rect, stroke});
}

void DrawingRecorder::FillRectangle(const PixelRect& rect, const Colour& colour)
{
  Keep(RectangleFilled{rect, colour});
}

void DrawingRecorder::DrawEllipse(PixelPoint centre, float radiusX, float radiusY,
                                  const Stroke& stroke)
{
  Keep(EllipseDrawn{centre, radiusX, radiusY, stroke});
}

void DrawingRecorder::DrawFigures(const Figures& figures, const Stroke& stroke)
{
  if (failing == DrawingFailure::Figures) return;
  FiguresDrawn call{figures.kind, {}, stroke};
  std::size_t begin = 0;
  for (const std::size_t end : figures.pointEnds) {
    const auto points = figures.points.subspan(begin, end - begin);
    call.figures.emplace_back(points.begin(), points.end());
    begin = end;
  }
  Keep(std::move(call));
}

std::optional<PixelSize> DrawingRecorder::MeasureText(std::u16string_view text,
                                                      const TextStyle& style, PixelSize limits)
{
  constexpr float advance = 0.5F;
  if (failing == DrawingFailure::TextStyle) return std::nullopt;
  measuredWithin = limits;
  return PixelSize{static_cast<float>(text.size()) * advance * style.size, style.size};
}

void DrawingRecorder::DrawText(const TextBlock& block)
{
  if (failing == DrawingFailure::TextStyle) return;
  Keep(TextDrawn{std::u16string(block.text), std::u16string(block.style.family), block.style.size,
                 block.style.centred, block.rect, block.colour, block.ground, block.turn});
}

std::span<const DrawingCall> LastFrame(std::span<const DrawingCall> calls)
{
  const auto begins = [](const DrawingCall& call) {
    return std::holds_alternative<FrameBegun>(call);
  };
  const auto ends = [](const DrawingCall& call) {
    return std::holds_alternative<FrameEnded>(call);
  };
  const auto after = std::find_if(calls.rbegin(), calls.rend(), begins).base();
  if (after == calls.begin()) return {};
  const auto last = std::find_if(after, calls.end(), ends);
  return {after - 1, last == calls.end() ? last : last + 1};
}

}  // namespace hullwright
