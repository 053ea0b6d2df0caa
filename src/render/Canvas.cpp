#include "render/Canvas.h"

#include <utility>

#include "base/Numbers.h"

namespace hullwright {
namespace {

std::string Hex8(ResultCode code) { return FormatHex(static_cast<std::uint32_t>(code), 8); }

/// Error codes of automation interfaces lie in this range; the offset is the number that is shown.
constexpr std::uint32_t dispatchErrorFirst = 0x80040200U;
constexpr std::uint32_t dispatchErrorLast = 0x8004FFFFU;

}  // namespace

CCanvas::~CCanvas() { ReleaseResources(); }

bool CCanvas::Fail(std::string_view what, ResultCode code)
{
  errorText = "Failed to initialize Canvas, ";
  errorText += what;
  errorText += " 0x" + Hex8(code);
  return false;
}

bool CCanvas::Initialize(IDrawingWindow* newWindow)
{
  window = newWindow;
  if (window == nullptr || !window->IsWindow()) {
    errorText = "Failed to initialize Canvas, hWnd == nullptr or window is invalid!";
    return false;
  }
  auto draw = backEnd_.CreateDrawFactory();
  if (Failed(draw.code) || !draw.object) {
    return Fail("D2D1CreateFactory failed with error", draw.code);
  }
  const auto client = window->ClientSize();
  if (!client) return false;
  auto target = draw.object->CreateWindowTarget(*window, static_cast<int>(client->width),
                                                static_cast<int>(client->height), dpiX, dpiY);
  if (Failed(target.code)) return Fail("CreateHwndRenderTarget failed with error", target.code);
  auto write = backEnd_.CreateWriteFactory();
  if (Failed(write.code) || !write.object) {
    return Fail("DWriteCreateFactory failed with error", write.code);
  }
  auto imaging = backEnd_.CreateImagingFactory();
  if (Failed(imaging.code)) return Fail("cannot create WIC instance, error", imaging.code);

  renderTarget = std::move(target.object);
  factory = std::move(draw.object);
  writeFactory = std::move(write.object);
  imagingFactory = std::move(imaging.object);
  return true;
}

void CCanvas::ReleaseResources()
{
  renderTarget.reset();
  factory.reset();
  writeFactory.reset();
  imagingFactory.reset();
}

void CCanvas::DrawPolyline(const IBrush& brush, std::span<const PixelPoint> points,
                           float width) const
{
  if (points.data() == nullptr || points.size() < 2) return;
  const auto path = CreateGeometry();
  if (!path) return;
  const auto sink = path->Open();
  if (Failed(sink.code) || !sink.object) return;
  sink.object->ForceRoundLineJoins();
  sink.object->BeginFigure(points.front(), FigureFill::Hollow);
  sink.object->AddLines(points);  // the first point again: a first segment of length zero
  sink.object->EndFigure(FigureEnd::Open);
  sink.object->Close();
  renderTarget->DrawGeometry(*path, brush, width);
}

std::unique_ptr<ITextFormat> CCanvas::CreateFormat(std::u16string_view family, float size) const
{
  if (!writeFactory) return nullptr;
  auto format = writeFactory->CreateTextFormat(family, size);
  return Failed(format.code) ? nullptr : std::move(format.object);
}

std::unique_ptr<IPathGeometry> CCanvas::CreateGeometry() const
{
  if (!renderTarget || !factory) return nullptr;
  auto path = factory->CreatePathGeometry();
  return Failed(path.code) ? nullptr : std::move(path.object);
}

PixelSize CCanvas::MeasureText(const ITextFormat& format, std::u16string_view text) const
{
  constexpr float maxWidth = 1000.0F;
  constexpr float maxHeight = 100.0F;
  if (!writeFactory) return {};
  return writeFactory->MeasureText(format, text, maxWidth, maxHeight).value_or(PixelSize{});
}

void CCanvas::EndFrame(ResultCode code)
{
  if (code == 0) return;
  errorText = "Error 0x" + Hex8(code) + " (" + ErrorMessage(backEnd_, code) + ")";
  if (code != recreateTarget) return;
  ReleaseResources();
  Initialize(window);
}

std::string ErrorMessage(const IDrawingBackEnd& backEnd, ResultCode code)
{
  if (auto text = backEnd.SystemMessage(code)) {
    while (!text->empty() && (text->back() == '\n' || text->back() == '\r')) text->pop_back();
    return *text;
  }
  const auto value = static_cast<std::uint32_t>(code);
  if (value > dispatchErrorFirst && value <= dispatchErrorLast) {
    return "IDispatch error #" + std::to_string(value - dispatchErrorFirst);
  }
  return "Unknown error 0x" + FormatHex(value, 1);
}

}  // namespace hullwright
