#pragma once

#include <functional>

#include "platform/Drawing.h"
#include "replay/driver/Value.h"

namespace hullwright::replay {

/// A drawing back end that keeps the operations of the last frame as values. A text of n units at
/// size s measures n * 0.5 * s by s, and every format can be made.
class FrameRecorder : public IDrawingBackEnd {
public:
  Created<IDrawFactory> CreateDrawFactory() override;
  Created<IWriteFactory> CreateWriteFactory() override;
  Created<IImagingFactory> CreateImagingFactory() override;
  std::optional<std::string> SystemMessage(ResultCode) const override { return std::nullopt; }

  Value frame;                    ///< null before the first frame
  Value::List operations;         ///< of the frame that is being composed
  std::function<void()> onFrame;  ///< called when a frame begins
  int strokes = 0;                ///< number of geometries drawn so far

  // The step of the initialisation that fails, by its number from 0, and its code.
  std::optional<int> failingStep;
  ResultCode failCode = -1;
  bool Fails(int step) const { return failingStep == step; }
};

/// A window without a size of its own.
class NoWindow : public IDrawingWindow {
public:
  bool IsWindow() const override { return isWindow; }
  std::optional<PixelSize> ClientSize() const override { return size; }
  bool isWindow = true;
  std::optional<PixelSize> size = PixelSize{};  ///< none where the window can't tell it
};

}  // namespace hullwright::replay
