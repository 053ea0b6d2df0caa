#pragma once

#include "platform/Drawing.h"

namespace hullwright {

/// The drawing back end for windows and pictures: paints antialiased on the `PaintSurface` that the
/// target's window must be. Everything is clipped to the client area before it reaches the painter.
class PaintBackEnd : public IDrawingBackEnd {
public:
  Created<IDrawFactory> CreateDrawFactory() override;
  Created<IWriteFactory> CreateWriteFactory() override;
  Created<IImagingFactory> CreateImagingFactory() override;
  std::optional<std::string> SystemMessage(ResultCode code) const override;
};

}  // namespace hullwright
