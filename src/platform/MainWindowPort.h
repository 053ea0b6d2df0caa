#pragma once

#include "platform/Progress.h"

namespace hullwright {

/// Notifications that go to the main window, by their codes. Any other code may come and is passed
/// on.
enum class Notification : int {
  RebuildTree = 1054,
  RepaintDesign = 1124,
};

/// The program's switchboard: everything that changes the design notifies the rest through it,
/// synchronously; an import reports its progress there. `NotifyDesignChanged` is the pair repaint,
/// then tree.
class IMainWindow : public IProgress {
public:
  /// False at start-up, before there is anything to see.
  virtual bool HasWindow() const = 0;

  /// Delivers one notification before it returns.
  virtual void Notify(Notification code) = 0;

  /// Marks the active document, if there is one, as modified or not.
  virtual void SetModifiedFlag(bool modified) = 0;

  void NotifyDesignChanged()
  {
    Notify(Notification::RepaintDesign);
    Notify(Notification::RebuildTree);
  }
};

}  // namespace hullwright
