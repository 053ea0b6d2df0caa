#include "cli/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "base/ErrorText.h"
#include "base/Text.h"

namespace hullwright {
namespace {

constexpr std::string_view standardStream = "-";

/// An open file; closes itself.
class Descriptor {
public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor()
  {
    if (number_ >= 0) close(number_);
  }
  int Number() const { return number_; }

private:
  int number_;
};

/// Makes an empty file with a name of its own in a folder; its path, empty where that fails.
std::string MakeTemporary(const std::filesystem::path& folder)
{
  std::string path = (folder / ".hullwright-XXXXXX").string();
  const Descriptor file(mkstemp(path.data()));
  if (file.Number() < 0) return {};
  // As a file made in the usual way would be, not for its owner alone.
  const mode_t mask = umask(0);
  umask(mask);
  fchmod(file.Number(), 0666 & ~mask);
  return path;
}

bool WriteAll(int file, std::string_view bytes)
{
  while (!bytes.empty()) {
    const ssize_t written = write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool Copy(int from, int to)
{
  std::array<char, 1U << 16U> block{};
  for (;;) {
    const ssize_t length = read(from, block.data(), block.size());
    if (length < 0 && errno == EINTR) continue;
    if (length <= 0) return length == 0;
    if (!WriteAll(to, {block.data(), static_cast<std::size_t>(length)})) return false;
  }
}

/// Where files lie that are nobody's business.
std::filesystem::path TemporaryFolder()
{
  std::error_code failed;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(failed);
  return failed ? std::filesystem::path("/tmp") : folder;
}

}  // namespace

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

InputFile::~InputFile()
{
  if (!copy_.empty()) unlink(copy_.c_str());
}

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
  if (!S_ISREG(status.st_mode)) return name_ + ": It is not a file";
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

OutputFile::OutputFile(const std::string& name) : name_(name)
{
  namespace fs = std::filesystem;
  std::error_code failed;
  struct stat before {};
  const bool exists = name != standardStream && stat(name.c_str(), &before) == 0;
  // Into devices, pipes and the standard output the finished file is copied.
  copied_ = name == standardStream || (exists && !S_ISREG(before.st_mode));
  if (exists && S_ISDIR(before.st_mode)) {
    Fail(EISDIR);
    return;
  }
  if (exists && access(name.c_str(), W_OK) != 0) {
    Fail(errno);
    return;
  }
  if (exists && !copied_) {
    // What a link points at is replaced, not the link.
    const fs::path target = fs::canonical(name, failed);
    if (!failed) name_ = target.string();
  }
  const fs::path folder = fs::path(name_).parent_path();
  path_ = MakeTemporary(copied_ ? TemporaryFolder() : folder.empty() ? fs::path(".") : folder);
  if (path_.empty()) Fail(errno);
  if (exists && !copied_) chmod(path_.c_str(), before.st_mode & 07777);
}

OutputFile::~OutputFile()
{
  if (!path_.empty()) unlink(path_.c_str());
}

bool OutputFile::Fail(int error)
{
  problem_ = (name_ == standardStream ? "standard output" : name_) + ": " + ErrorText(error);
  return false;
}

bool OutputFile::Commit()
{
  if (path_.empty()) return false;
  if (copied_) return CopyOut();
  if (rename(path_.c_str(), name_.c_str()) != 0) return Fail(errno);
  path_.clear();
  return true;
}

bool OutputFile::CopyOut()
{
  const Descriptor written(open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  // Its name goes first, so that nothing stays behind when the reader goes away.
  unlink(path_.c_str());
  path_.clear();
  if (name_ == standardStream) return Copy(written.Number(), STDOUT_FILENO) || Fail(errno);
  const Descriptor target(open(name_.c_str(), O_WRONLY | O_CLOEXEC));
  return (target.Number() >= 0 && Copy(written.Number(), target.Number())) || Fail(errno);
}

bool OutputFile::Write(std::string_view bytes)
{
  if (path_.empty()) return false;
  const Descriptor file(open(path_.c_str(), O_WRONLY | O_CLOEXEC));
  return WriteAll(file.Number(), bytes) || Fail(errno);
}

}  // namespace hullwright
