#include "system/InputFile.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <string_view>

#include "base/ErrorText.h"
#include "base/Paths.h"
#include "base/Text.h"
#include "system/Descriptors.h"
#include "system/TemporaryFiles.h"

namespace hullwright {

InputFile::InputFile(const std::string& name) : name_(name), path_(name)
{
  if (name == standardStream) {
    name_ = "standard input";
    CopyFrom(standardInput);
  } else if (!IsUtf8(name)) {
    // The editor knows files by Unicode names only.
    const Descriptor file(OpenDescriptor(name, Access::Read));
    CopyFrom(file.Number());
  }
}

InputFile::~InputFile() { RemoveTemporary(copy_); }

void InputFile::CopyFrom(int file)
{
  if (file >= 0) copy_ = MakeTemporary(TemporaryFolder());
  const Descriptor copy(copy_.empty() ? -1 : OpenDescriptor(copy_, Access::Write));
  if (copy.Number() < 0 || !Copy(file, copy.Number())) problem_ = ErrorText(errno);
  path_ = copy_;
}

std::string InputFile::Problem() const
{
  if (!problem_.empty()) return name_ + ": " + problem_;
  std::error_code failed;
  const std::filesystem::file_status status = std::filesystem::status(PathOf(path_), failed);
  if (failed) return name_ + ": " + ErrorText(failed.value());
  if (is_directory(status)) return name_ + ": " + ErrorText(EISDIR);
  if (!is_regular_file(status)) return name_ + ": " + notAFile;
  const Descriptor file(OpenDescriptor(path_, Access::Read));
  return file.Number() < 0 ? name_ + ": " + ErrorText(errno) : std::string();
}

bool InputFile::IsDesign() const
{
  // The bytes of the byte-order marks, and of white space in one byte or two.
  static constexpr std::string_view leading("\xEF\xBB\xBF\xFE\xFF \t\r\n\0", 10);
  const Descriptor file(OpenDescriptor(path_, Access::Read));
  std::array<char, 4096> block{};
  for (;;) {
    const std::ptrdiff_t length = ReadSome(file.Number(), block.data(), block.size());
    if (length <= 0) return false;
    const std::string_view text(block.data(), static_cast<std::size_t>(length));
    const std::size_t first = text.find_first_not_of(leading);
    if (first != std::string_view::npos) return text[first] == '<';
  }
}

}  // namespace hullwright
