#pragma once

#include <cstdint>

namespace hullwright {

/// Codes of the notifications that go to the main window. Only those of an import carry a value.
enum class Notification : int {
  ImportProgress = 1044,  ///< with the percentage
  ImportEnd = 1045,
  ImportStart = 1046,  ///< with a pointer to a text that outlives the import
  RebuildTree = 1054,
  RepaintDesign = 1124,
};

/// The program's switchboard: everything that changes the design notifies the rest through it,
/// synchronously. `NotifyDesignChanged` is the pair repaint, then tree.
class IMainWindow {
public:
  virtual ~IMainWindow() = default;

  /// False at start-up, before there is anything to see.
  virtual bool HasWindow() const = 0;

  /// Delivers one notification before it returns.
  virtual void Notify(Notification code, std::intptr_t value) = 0;

  /// Marks the active document, if there is one, as modified or not.
  virtual void SetModifiedFlag(bool modified) = 0;

  void NotifyDesignChanged()
  {
    Notify(Notification::RepaintDesign, 0);
    Notify(Notification::RebuildTree, 0);
  }
};

}  // namespace hullwright
