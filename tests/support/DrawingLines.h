#pragma once

#include <span>
#include <string>
#include <vector>

#include "headless/DrawingRecorder.h"

namespace hullwright::test {

/// Calls as lines of text, one or several for each. Numbers are printed so that they read back to
/// the same 32-bit float.
std::vector<std::string> LinesOf(std::span<const DrawingCall> calls);

/// The lines of the last frame, without "begin" and "end".
std::vector<std::string> FrameLines(std::span<const DrawingCall> calls);

/// The shortest text that reads back to the same float.
std::string Exact(float value);

/// "red green blue alpha".
std::string Exact(const Colour& colour);

}  // namespace hullwright::test
