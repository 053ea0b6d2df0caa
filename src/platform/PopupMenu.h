#pragma once

#include <span>
#include <string_view>

#include "platform/Pointer.h"
#include "resources/CommandIds.h"

namespace hullwright {

/// One row of a menu that is built at run time; without a command it is a separator.
struct PopupEntry {
  CommandId id = CommandId::None;
  std::u16string_view text;
};

/// Context menus over the design view.
class IPopupMenu {
public:
  virtual ~IPopupMenu() = default;

  /// Offers the entries at a client position; the entry chosen comes back to the view as a command.
  virtual void Show(std::span<const PopupEntry> entries, ClientPoint at) = 0;
};

}  // namespace hullwright
