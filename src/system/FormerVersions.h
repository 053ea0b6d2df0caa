#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/FormerVersions.h"

namespace hullwright {

/// Former versions of files as copies in a folder, the last five of each path. A copy is named
/// after its file, a hash of the path and the time of the copying in UTC, so that the copies of a
/// path sort by age: "boat.0123456789abcdef.2026-05-04T09-30-00.125Z.xml".
class FormerVersions : public IFormerVersions {
public:
  /// `folder` is made when the first copy is written.
  explicit FormerVersions(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::u16string Keep(std::u16string_view path) override;
  bool PutBack() override;

private:
  std::filesystem::path WriteCopy() const;

  std::filesystem::path folder_;
  std::filesystem::path file_;        ///< kept last
  std::optional<std::string> bytes_;  ///< of that file; nothing where there was none
};

/// The program's folder in the user's state folder, by the desktop's base folder rules; empty for a
/// user without a home.
std::filesystem::path StateFolder();

}  // namespace hullwright
