#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "headless/DrawingRecorder.h"
#include "support/DrawingLines.h"

namespace hullwright::test {

/// A recorder with what it keeps as lines of text.
class RecordedDrawing : public DrawingRecorder {
public:
  /// Everything, in order.
  std::vector<std::string> Lines() const { return LinesOf(calls); }

  /// The last frame, without "begin" and "end".
  std::vector<std::string> Frame() const { return FrameLines(calls); }

  /// Number of lines of the last frame that begin with a word.
  int Count(const std::string& word) const
  {
    return static_cast<int>(std::ranges::count_if(
        Frame(), [&](const std::string& line) { return line.starts_with(word); }));
  }

  /// Number of frames that have begun.
  int Frames() const
  {
    return static_cast<int>(std::ranges::count_if(
        calls, [](const DrawingCall& call) { return std::holds_alternative<FrameBegun>(call); }));
  }
};

}  // namespace hullwright::test
