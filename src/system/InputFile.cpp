#include "system/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>

#include "base/ErrorText.h"
#include "base/Text.h"
#include "system/Descriptors.h"
#include "system/TemporaryFiles.h"

namespace hullwright {

InputFile::InputFile(const std::string& name) : name_(name), path_(name)
{
  if (name == standardStream) {
    name_ = "standard input";
    CopyFrom(STDIN_FILENO);
  } else if (!IsUtf8(name)) {
    // The editor knows files by Unicode names only.
    const Descriptor file(open(name.c_str(), O_RDONLY | O_CLOEXEC));
    CopyFrom(file.Number());
  }
}

InputFile::~InputFile() { RemoveTemporary(copy_); }

void InputFile::CopyFrom(int file)
{
  if (file >= 0) copy_ = MakeTemporary(TemporaryFolder());
  const Descriptor copy(copy_.empty() ? -1 : open(copy_.c_str(), O_WRONLY | O_CLOEXEC));
  if (copy.Number() < 0 || !Copy(file, copy.Number())) problem_ = ErrorText(errno);
  path_ = copy_;
}

std::string InputFile::Problem() const
{
  if (!problem_.empty()) return name_ + ": " + problem_;
  struct stat status {};
  if (stat(path_.c_str(), &status) != 0) return name_ + ": " + ErrorText(errno);
  if (S_ISDIR(status.st_mode)) return name_ + ": " + ErrorText(EISDIR);
  if (!S_ISREG(status.st_mode)) return name_ + ": " + notAFile;
  const Descriptor file(open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  return file.Number() < 0 ? name_ + ": " + ErrorText(errno) : std::string();
}

bool InputFile::IsDesign() const
{
  // The bytes of the byte-order marks, and of white space in one byte or two.
  static constexpr std::string_view leading("\xEF\xBB\xBF\xFE\xFF \t\r\n\0", 10);
  const Descriptor file(open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  std::array<char, 4096> block{};
  for (;;) {
    const ssize_t length = read(file.Number(), block.data(), block.size());
    if (length < 0 && errno == EINTR) continue;
    if (length <= 0) return false;
    const std::string_view text(block.data(), static_cast<std::size_t>(length));
    const std::size_t first = text.find_first_not_of(leading);
    if (first != std::string_view::npos) return text[first] == '<';
  }
}

}  // namespace hullwright
