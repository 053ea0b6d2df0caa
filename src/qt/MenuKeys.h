#pragma once

class QKeyEvent;
class QMainWindow;

namespace hullwright {

/// Opens what the desktop's keys for menus stand for: F10 the menu bar, Shift+F10 the context menu
/// of what has the keyboard. False for any other key.
bool OpenMenuByKey(const QMainWindow& window, const QKeyEvent& event);

}  // namespace hullwright
