#include "render/Canvas.h"

#include <array>

#include "base/Numbers.h"

namespace hullwright {
namespace {

std::string Hex8(ResultCode code) { return FormatHex(static_cast<std::uint32_t>(code), 8); }

/// Error codes of automation interfaces lie in this range; the offset is the number that is shown.
constexpr std::uint32_t dispatchErrorFirst = 0x80040200U;
constexpr std::uint32_t dispatchErrorLast = 0x8004FFFFU;

/// A step of the initialisation, and what is reported where it fails.
struct StepRow {
  TargetStep step;
  std::string_view failure;  ///< nothing is reported where this is empty
  bool withCode;             ///< the failure is reported with its code
  bool held;                 ///< what the step yields is held
  bool mustYield;            ///< yielding nothing is a failure, too
};

constexpr auto steps = std::to_array<StepRow>({
    {TargetStep::Window, "hWnd == nullptr or window is invalid!", false, false, true},
    {TargetStep::Drawing, "D2D1CreateFactory failed with error", true, true, true},
    {TargetStep::ClientArea, "", false, false, true},
    {TargetStep::Picture, "CreateHwndRenderTarget failed with error", true, true, false},
    {TargetStep::Texts, "DWriteCreateFactory failed with error", true, true, true},
    {TargetStep::Imaging, "cannot create WIC instance, error", true, true, false},
});
static_assert(steps.size() == targetSteps);

std::string FailureText(const StepRow& row, ResultCode code)
{
  std::string text = "Failed to initialize Canvas, ";
  text += row.failure;
  if (row.withCode) text += " 0x" + Hex8(code);
  return text;
}

}  // namespace

bool CCanvas::Initialize(IDrawingTarget* target)
{
  window = target;
  std::bitset<targetSteps> held;
  for (const StepRow& row : steps) {
    const StepResult result =
        target == nullptr ? StepResult{-1, false} : target->Prepare(row.step, resolution);
    if (Failed(result.code) || (row.mustYield && !result.yielded)) {
      if (!row.failure.empty()) errorText = FailureText(row, result.code);
      return false;
    }
    held[static_cast<std::size_t>(row.step)] = row.held && result.yielded;
  }
  held_ = held;
  target_ = Holds(TargetStep::Picture) ? target : nullptr;
  return true;
}

void CCanvas::ReleaseResources()
{
  target_ = nullptr;
  held_.reset();
}

void CCanvas::DrawPolyline(std::span<const PixelPoint> line, const Stroke& stroke) const
{
  if (target_ == nullptr || line.size() < 2) return;
  const std::array<std::size_t, 1> end = {line.size()};
  target_->DrawFigures({FigureKind::Line, line, end}, stroke);
}

std::optional<PixelSize> CCanvas::MeasureText(std::u16string_view text,
                                              const TextStyle& style) const
{
  constexpr PixelSize limits{1000.0F, 100.0F};
  if (target_ == nullptr) return std::nullopt;
  return target_->MeasureText(text, style, limits);
}

void CCanvas::EndFrame(const FrameResult& result)
{
  if (result.code == 0) return;
  errorText = "Error 0x" + Hex8(result.code) + " (" + ErrorMessage(result) + ")";
  if (result.code != recreateTarget) return;
  ReleaseResources();
  Initialize(window);
}

std::string ErrorMessage(const FrameResult& result)
{
  if (result.message) {
    std::string text = *result.message;
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r')) text.pop_back();
    return text;
  }
  const auto value = static_cast<std::uint32_t>(result.code);
  if (value > dispatchErrorFirst && value <= dispatchErrorLast) {
    return "IDispatch error #" + std::to_string(value - dispatchErrorFirst);
  }
  return "Unknown error 0x" + FormatHex(value, 1);
}

}  // namespace hullwright
