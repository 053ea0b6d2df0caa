#pragma once

#include <string>
#include <string_view>

namespace hullwright {

/// A file that comes to be whole or not at all; "-" stands for standard output. What is there
/// under the name stays until the new one is complete; devices and pipes are written into.
class OutputFile {
public:
  explicit OutputFile(const std::string& name);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  ~OutputFile();

  /// Where to write; empty when nothing can be written there.
  const std::string& Path() const { return path_; }

  /// Puts what was written in its place, the last step; false with `Problem` where that fails.
  bool Commit();

  /// Writes the whole content.
  bool Write(std::string_view bytes);

  /// What went wrong, with the file's name.
  const std::string& Problem() const { return problem_; }

private:
  bool Fail(int error);
  bool CopyOut();

  std::string name_;
  std::string path_;  ///< of the file that is being written
  std::string problem_;
  bool copied_ = false;
};

}  // namespace hullwright
