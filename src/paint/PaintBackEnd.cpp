#include "paint/PaintBackEnd.h"

#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "paint/PaintObjects.h"

namespace hullwright {
namespace {

class PaintDrawFactory : public IDrawFactory {
public:
  Created<IRenderTarget> CreateWindowTarget(IDrawingWindow& window, int width, int height, float,
                                            float) override
  {
    auto target = std::make_unique<PaintTarget>(static_cast<PaintSurface&>(window));
    target->Resize(width, height);
    return {0, std::move(target)};
  }

  Created<IPathGeometry> CreatePathGeometry() override
  {
    return {0, std::make_unique<PaintPath>()};
  }
};

/// Size of a text that nobody reads, for nobody measures it either: letters of a monospaced face.
PixelSize RoughSize(const PaintTextFormat& format, std::size_t units, float maxWidth)
{
  constexpr double advance = 0.6;
  const double size = format.font.pixelSize() * format.scale;
  const double width = std::min<double>(static_cast<double>(units) * advance * size, maxWidth);
  return {static_cast<float>(width), static_cast<float>(size)};
}

class PaintWriteFactory : public IWriteFactory {
public:
  Created<ITextFormat> CreateTextFormat(std::u16string_view family, float size) override
  {
    constexpr auto invalidArgument = static_cast<ResultCode>(0x80070057U);
    if (!(size > 0.0F) || !std::isfinite(size)) return {invalidArgument, nullptr};
    return {0, std::make_unique<PaintTextFormat>(family, size)};
  }

  std::optional<PixelSize> MeasureText(const ITextFormat& format, std::u16string_view text,
                                       float maxWidth, float) override
  {
    const auto& textFormat = static_cast<const PaintTextFormat&>(format);
    if (!textFormat.IsReadable()) return RoughSize(textFormat, text.size(), maxWidth);
    QTextLayout layout(Drawable(text), textFormat.font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double width = 0.0;
    double height = 0.0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(maxWidth / textFormat.scale);
      width = std::max(width, line.naturalTextWidth());
      height += line.height();
    }
    layout.endLayout();
    return PixelSize{static_cast<float>(width * textFormat.scale),
                     static_cast<float>(height * textFormat.scale)};
  }
};

}  // namespace

Created<IDrawFactory> PaintBackEnd::CreateDrawFactory()
{
  return {0, std::make_unique<PaintDrawFactory>()};
}

Created<IWriteFactory> PaintBackEnd::CreateWriteFactory()
{
  return {0, std::make_unique<PaintWriteFactory>()};
}

Created<IImagingFactory> PaintBackEnd::CreateImagingFactory()
{
  return {0, std::make_unique<IImagingFactory>()};
}

std::optional<std::string> PaintBackEnd::SystemMessage(ResultCode code) const
{
  if (code == recreateTarget) return "There is not enough memory for the picture.";
  return std::nullopt;
}

}  // namespace hullwright
