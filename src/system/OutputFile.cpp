#include "system/OutputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "base/ErrorText.h"
#include "system/Descriptors.h"
#include "system/TemporaryFiles.h"

namespace hullwright {

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

OutputFile::~OutputFile() { RemoveTemporary(path_); }

bool OutputFile::Fail(int error)
{
  problem_ = (name_ == standardStream ? "standard output" : name_) + ": " + ErrorText(error);
  return false;
}

bool OutputFile::Commit()
{
  if (path_.empty()) return false;
  if (copied_) return CopyOut();
  if (!KeepTemporary(path_, name_)) return Fail(errno);
  path_.clear();
  return true;
}

bool OutputFile::CopyOut()
{
  const Descriptor written(open(path_.c_str(), O_RDONLY | O_CLOEXEC));
  // Its name goes first, so that nothing stays behind when the reader goes away.
  RemoveTemporary(path_);
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
