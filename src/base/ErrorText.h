#pragma once

#include <string>

namespace hullwright {

/// The system's text for an `errno`, in English whatever the locale; a number that the C library
/// does not know gets one that names it.
std::string ErrorText(int error);

}  // namespace hullwright
