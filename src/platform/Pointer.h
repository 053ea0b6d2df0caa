#pragma once

#include <cstdint>

namespace hullwright {

/// A position in client pixels.
struct ClientPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  friend bool operator==(const ClientPoint&, const ClientPoint&) = default;
};

enum class CursorShape { Cross, Hand };

/// The mouse cursor over the design view.
class ICursor {
public:
  virtual ~ICursor() = default;
  /// Shows the cursor at once.
  virtual void SetCursor(CursorShape shape) = 0;
};

/// The line that follows the mouse while a polyline is drawn.
class IRubberBand {
public:
  virtual ~IRubberBand() = default;
  /// Inverts a dashed one-pixel line over the picture; the same call again takes it away. The
  /// picture itself stays intact.
  virtual void InvertLine(ClientPoint from, ClientPoint to) = 0;
};

}  // namespace hullwright
