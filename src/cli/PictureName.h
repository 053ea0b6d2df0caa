#pragma once

#include <string>

namespace hullwright {

/// The ending of a path in small letters, with its point; that of a PNG for standard output.
std::string PictureEnding(const std::string& path);

/// Whether the ending of a path is that of a picture format.
bool IsPictureName(const std::string& path);

}  // namespace hullwright
