#pragma once

#include <type_traits>

namespace hullwright {

/// The number behind a scoped code, for files, settings, databases and scripts.
template <typename Code>
requires std::is_enum_v<Code>
constexpr auto NumberOf(Code code) { return static_cast<std::underlying_type_t<Code>>(code); }

}  // namespace hullwright
