#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Paths are UTF-8 inside the program, with "/" between folders. Systems whose paths are wide get
/// them so; where they are bytes, these are passed on as they are, UTF-8 or not.
namespace hullwright {

/// The path that a text names.
std::filesystem::path PathOf(std::string_view text);
std::filesystem::path PathOf(std::u16string_view text);

/// The text of a path.
std::string TextOf(const std::filesystem::path& path);

/// The path from the root: its folder as the system finds it, behind links too, its name as the
/// user knows it. The path itself where the system does not tell.
std::u16string AbsolutePath(const std::u16string& path);

}  // namespace hullwright
