#include "system/OutputFile.h"

#include <cerrno>
#include <filesystem>

#include "base/ErrorText.h"
#include "base/Paths.h"
#include "system/Descriptors.h"
#include "system/TemporaryFiles.h"

namespace hullwright {

OutputFile::OutputFile(const std::string& name) : name_(name)
{
  namespace fs = std::filesystem;
  std::error_code failed;
  const fs::file_status before =
      name == standardStream ? fs::file_status() : fs::status(PathOf(name), failed);
  const bool exists = name != standardStream && !failed;
  // Into devices, pipes and the standard output the finished file is copied.
  copied_ = name == standardStream || (exists && !is_regular_file(before));
  if (exists && is_directory(before)) {
    Fail(EISDIR);
    return;
  }
  if (const int problem = exists ? WritingProblem(name) : 0; problem != 0) {
    Fail(problem);
    return;
  }
  if (exists && !copied_) {
    // What a link points at is replaced, not the link.
    const fs::path target = fs::canonical(PathOf(name), failed);
    if (!failed) name_ = TextOf(target);
  }
  const fs::path folder = PathOf(name_).parent_path();
  path_ = MakeTemporary(copied_ ? TemporaryFolder() : folder.empty() ? fs::path(".") : folder);
  if (path_.empty()) Fail(errno);
  if (exists && !copied_) fs::permissions(PathOf(path_), before.permissions(), failed);
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
  const Descriptor written(OpenDescriptor(path_, Access::Read));
  // Its name goes first, so that nothing stays behind when the reader goes away.
  RemoveTemporary(path_);
  path_.clear();
  if (name_ == standardStream) return Copy(written.Number(), standardOutput) || Fail(errno);
  const Descriptor target(OpenDescriptor(name_, Access::Write));
  return (target.Number() >= 0 && Copy(written.Number(), target.Number())) || Fail(errno);
}

bool OutputFile::Write(std::string_view bytes)
{
  if (path_.empty()) return false;
  const Descriptor file(OpenDescriptor(path_, Access::Write));
  return WriteAll(file.Number(), bytes) || Fail(errno);
}

}  // namespace hullwright
