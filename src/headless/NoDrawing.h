#pragma once

#include "platform/Drawing.h"

namespace hullwright {

/// Has neither a window nor anything that could draw.
class NoDrawing : public IDrawingBackEnd, public IDrawingWindow {
public:
  Created<IDrawFactory> CreateDrawFactory() override { return {-1, nullptr}; }
  Created<IWriteFactory> CreateWriteFactory() override { return {-1, nullptr}; }
  Created<IImagingFactory> CreateImagingFactory() override { return {-1, nullptr}; }
  std::optional<std::string> SystemMessage(ResultCode) const override { return std::nullopt; }
  bool IsWindow() const override { return false; }
  std::optional<PixelSize> ClientSize() const override { return std::nullopt; }
};

}  // namespace hullwright
