#pragma once

#include "platform/MainWindowPort.h"

namespace hullwright {

/// A main window that ignores changes and progress; a base for what handles a part of them.
class SilentWindow : public IMainWindow {
public:
  bool HasWindow() const override { return true; }
  void Notify(Notification) override {}
  void SetModifiedFlag(bool) override {}
  void StartProgress(std::string_view) override {}
  void ShowProgress(int) override {}
  void EndProgress() override {}
};

}  // namespace hullwright
