#pragma once

#include <cstdint>

namespace hullwright {

/// Codes of the notifications that go to the main window. Only those of an import carry a value.
namespace Notification {
inline constexpr int ImportProgress = 1044;  ///< with the percentage
inline constexpr int ImportEnd = 1045;
inline constexpr int ImportStart = 1046;  ///< with a pointer to a text that outlives the import
inline constexpr int RebuildTree = 1054;
inline constexpr int RepaintDesign = 1124;
}  // namespace Notification

/// The program's switchboard: everything that changes the design tells the rest through it,
/// synchronously. `NotifyDesignChanged` is the pair repaint, then tree.
class IMainWindow {
public:
  virtual ~IMainWindow() = default;

  /// False at start-up, before there is anything to see.
  virtual bool HasWindow() const = 0;

  /// Delivers one notification before it returns.
  virtual void Notify(int code, std::intptr_t value) = 0;

  /// Marks the active document, if there is one, as modified or not.
  virtual void SetModifiedFlag(bool modified) = 0;

  void NotifyDesignChanged()
  {
    Notify(Notification::RepaintDesign, 0);
    Notify(Notification::RebuildTree, 0);
  }
};

}  // namespace hullwright
