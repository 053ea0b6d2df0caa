#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace hullwright::replay {

/// Makes an empty folder ready for an editor: units of its own, and a folder for its logs.
void MakeWorkFolder(const std::filesystem::path& work);

/// Plays the script that bytes stand for, up to 100 steps, on an editor in a work folder. Now and
/// then the bytes are those of a drawing, a design or a list of anchors, which is read next. What
/// is broken at its end, with the steps up to there; empty where nothing is. Any script's beginning
/// is one as well.
std::string PlayBytes(std::span<const std::uint8_t> bytes, const std::filesystem::path& work);

}  // namespace hullwright::replay
