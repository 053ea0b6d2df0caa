#pragma once

#include "platform/MainWindow.h"

namespace hullwright {

/// Stands where a main window is told of changes and progress; a base for what hears a part of it.
class SilentWindow : public IMainWindow {
public:
  bool HasWindow() const override { return true; }
  void Notify(Notification, std::intptr_t) override {}
  void SetModifiedFlag(bool) override {}
};

}  // namespace hullwright
