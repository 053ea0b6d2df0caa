#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Drawing.h"

namespace hullwright::test {

/// Steps of the back end that a test can make fail.
enum class FailAt {
  Nothing,
  DrawFactory,
  WindowTarget,
  WriteFactory,
  ImagingFactory,
  Brush,
  TextFormat,
  PathGeometry,
  PathOpen,
  EndDraw
};

/// A drawing back end that writes down every operation as one line of text. Numbers are printed so
/// that they read back to the same 32-bit float. A text of n units at size s measures n * 0.5 * s
/// by s.
class RecordingBackEnd : public IDrawingBackEnd {
public:
  Created<IDrawFactory> CreateDrawFactory() override;
  Created<IWriteFactory> CreateWriteFactory() override;
  Created<IImagingFactory> CreateImagingFactory() override;
  std::optional<std::string> SystemMessage(ResultCode code) const override;

  /// Whether the step fails now; the code is then `failCode`.
  bool Fails(FailAt step) const { return failAt == step; }

  /// The operations of the last frame, without "begin" and "end".
  std::vector<std::string> Frame() const;

  /// Number of lines of the last frame that begin with a word.
  int Count(const std::string& word) const;

  FailAt failAt = FailAt::Nothing;
  ResultCode failCode = -1;
  bool emptyInsteadOfFailure = false;  ///< the step succeeds, but yields no object
  std::optional<std::string> systemMessage;
  std::vector<std::string> log;  ///< everything, in order
  PixelSize measuredWithin;      ///< the limits of the last measuring of a text
};

/// A window of a given client size.
class RecordingWindow : public IDrawingWindow {
public:
  bool IsWindow() const override { return isWindow; }
  std::optional<PixelSize> ClientSize() const override { return size; }

  bool isWindow = true;
  std::optional<PixelSize> size = PixelSize{800.0F, 600.0F};
};

/// The shortest text that reads back to the same float.
std::string Exact(float value);

/// "red green blue alpha".
std::string Exact(const Colour& colour);

}  // namespace hullwright::test
