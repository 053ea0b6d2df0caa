#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "platform/FormerVersionsPort.h"

namespace hullwright {

/// Former versions of files as copies in a folder, the last five of each path. A copy is named
/// after its file, a hash of the path, a count that goes on from copy to copy, whatever the clock
/// says, and the time in UTC: "boat.0123456789ABCDEF.000007.2026-05-04T09-30-00.125Z.xml".
class FormerVersions : public IFormerVersions {
public:
  /// `folder` is made when the first copy is written.
  explicit FormerVersions(std::filesystem::path folder) : folder_(std::move(folder)) {}

  std::u16string Keep(std::u16string_view path) override;
  void Release() override;
  Restored PutBack() override;

private:
  std::filesystem::path WriteCopy() const;

  std::filesystem::path folder_;
  std::filesystem::path file_;        ///< kept last
  std::optional<std::string> bytes_;  ///< of that file; nothing where it could not be read
  std::filesystem::path copy_;        ///< of that file
  bool wasAbsent_ = false;            ///< there was no such file
  bool isDamaged_ = false;            ///< its bytes could not be put back
};

/// The program's folder in the user's state folder, by the XDG base directories; empty for a user
/// without a home.
std::filesystem::path StateFolder();

}  // namespace hullwright
