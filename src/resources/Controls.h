#pragma once

#include <array>
#include <string_view>

#include "resources/DialogIds.h"

namespace hullwright {

// The controls of each dialog, as in `ScaleControls::factor`.
// clang-format off
#define CONTROL(dialog, name, number) \
  namespace dialog##Controls { inline constexpr ControlId name{number}; }
// clang-format on
#include "resources/Controls.def"

/// A control as scripts call it.
struct NamedControl {
  DialogId dialog;
  ControlId id;
  std::string_view name;
};

inline constexpr auto namedControls = std::to_array<NamedControl>({
#define CONTROL(dialog, name, number) {DialogId::dialog, dialog##Controls::name, #name},
#include "resources/Controls.def"
});

}  // namespace hullwright
