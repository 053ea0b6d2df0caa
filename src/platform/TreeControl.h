#pragma once

#include <span>

#include "platform/PopupMenu.h"

namespace hullwright {

/// The widget that shows the object tree.
class ITreeControl {
public:
  virtual ~ITreeControl() = default;

  /// The tree is about to be rebuilt; nothing of it may be read until it is.
  virtual void BeforeRebuild() = 0;

  /// The tree has been rebuilt: both roots are shown expanded, everything below collapsed, and
  /// nothing is selected.
  virtual void Rebuilt() = 0;

  /// Images of nodes have changed.
  virtual void ImagesChanged() = 0;

  /// Offers a context menu where the mouse is; the entry chosen comes back as a command.
  virtual void ShowMenu(std::span<const PopupEntry> entries) = 0;
};

}  // namespace hullwright
