#pragma once

#include <string>

namespace hullwright {

/// The system's text for an `errno`, in English whatever the locale; a number that the C library
/// does not know gets one that names it.
std::string ErrorText(int error);

/// The text for a path that leads to something else than a file, which has no `errno`.
inline constexpr const char* notAFile = "It is not a file";

}  // namespace hullwright
