#pragma once

#include <array>
#include <string_view>

#include "resources/CommandIds.h"

namespace hullwright {

/// A key and the command that it runs.
struct Accelerator {
  std::string_view key;
  int command;
};

inline constexpr auto accelerators = std::to_array<Accelerator>({
    {"Ctrl+N", Command::FileNew},
    {"Ctrl+O", Command::FileOpen},
    {"Ctrl+S", Command::FileSave},
    {"Ctrl+P", Command::FilePrint},
    {"Ctrl+Z", Command::EditUndo},
    {"Alt+Backspace", Command::EditUndo},
    {"Ctrl+X", Command::EditCut},
    {"Shift+Del", Command::EditCut},
    {"Ctrl+C", Command::EditCopy},
    {"Ctrl+Ins", Command::EditCopy},
    {"Ctrl+V", Command::EditPaste},
    {"Shift+Ins", Command::EditPaste},
    {"F6", Command::NextPane},
    {"Shift+F6", Command::PreviousPane},
});

namespace detail {
constexpr bool EachKeyOnce()
{
  for (std::size_t i = 0; i < accelerators.size(); ++i) {
    for (std::size_t j = i + 1; j < accelerators.size(); ++j) {
      if (accelerators[i].key == accelerators[j].key) return false;
    }
  }
  return true;
}
}  // namespace detail
static_assert(detail::EachKeyOnce());

}  // namespace hullwright
