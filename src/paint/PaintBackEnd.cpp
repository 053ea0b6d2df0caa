#include "paint/PaintBackEnd.h"

#include <QFontMetricsF>
#include <algorithm>

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

class PaintWriteFactory : public IWriteFactory {
public:
  Created<ITextFormat> CreateTextFormat(std::u16string_view family, float size) override
  {
    return {0, std::make_unique<PaintTextFormat>(family, size)};
  }

  std::optional<PixelSize> MeasureText(const ITextFormat& format, std::u16string_view text,
                                       float maxWidth, float maxHeight) override
  {
    const QFontMetricsF metrics(static_cast<const PaintTextFormat&>(format).font);
    const QRectF box = metrics.boundingRect(
        QRectF(0.0, 0.0, maxWidth, maxHeight), Qt::TextWordWrap,
        QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size())));
    return PixelSize{static_cast<float>(box.width()), static_cast<float>(box.height())};
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
