#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace hullwright::test {

/// A folder of the test's own, gone at its end.
class TempFolder {
public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder();

  const std::filesystem::path& Path() const { return path_; }

  /// Wide path of a file in the folder; the name is UTF-8.
  std::u16string File(std::string_view name) const;

  /// Writes a file, byte for byte, and gives its wide path.
  std::u16string Write(std::string_view name, std::string_view bytes) const;

  /// The bytes of a file; "(no file)" where there is none.
  std::string Read(std::string_view name) const;

private:
  std::filesystem::path path_;
};

}  // namespace hullwright::test
