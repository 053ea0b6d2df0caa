#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Pointer.h"
#include "platform/PopupMenu.h"

namespace hullwright {

/// A pointer without a device: keeps the cursors, the lines of the rubber band and the context
/// menu that it is given.
class KeptPointer : public ICursor, public IRubberBand, public IPopupMenu {
public:
  void SetCursor(CursorShape shape) override { shapes.push_back(shape); }
  void InvertLine(ClientPoint from, ClientPoint to) override { lines.emplace_back(from, to); }
  void Show(std::span<const PopupEntry> entries, ClientPoint at) override
  {
    offered.clear();
    for (const PopupEntry& entry : entries) offered.emplace_back(entry.id, entry.text);
    place = at;
  }

  std::vector<CursorShape> shapes;
  std::vector<std::pair<ClientPoint, ClientPoint>> lines;
  std::vector<std::pair<CommandId, std::u16string>> offered;  ///< entries of the last menu
  ClientPoint place;                                          ///< of that menu
};

}  // namespace hullwright
