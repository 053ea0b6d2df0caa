#pragma once

#include <QScreen>
#include <QWidget>

namespace hullwright {

/// Makes a window as large as is comfortable, but no larger than nine tenths of its screen each
/// way.
inline void ResizeOnScreen(QWidget& window, QSize comfortable)
{
  constexpr double most = 0.9;
  window.resize(comfortable.boundedTo(window.screen()->availableSize() * most));
}

}  // namespace hullwright
