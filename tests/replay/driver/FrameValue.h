#pragma once

#include <span>

#include "headless/DrawingRecorder.h"
#include "replay/driver/Value.h"

namespace hullwright::replay {

/// The last whole frame as a list of its operations; null where none has ended.
Value FrameValue(std::span<const DrawingCall> calls);

}  // namespace hullwright::replay
