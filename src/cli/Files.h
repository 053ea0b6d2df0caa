#pragma once

#include <string>
#include <string_view>

namespace hullwright {

/// What a file is told not to be that should be a design.
inline constexpr const char* notADesign = "not a design: it does not begin as XML does";

/// A file to read; "-" stands for what comes on standard input. That, and a file whose name is not
/// UTF-8, is read from a copy.
class InputFile {
public:
  /// Reads standard input to its end where that is asked for.
  explicit InputFile(const std::string& name);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile();

  /// Where the file lies.
  const std::string& Path() const { return path_; }

  /// What messages call it.
  const std::string& Name() const { return name_; }

  /// Why the file can't be read; empty when it can.
  std::string Problem() const;

  /// Whether it begins as XML does, and so is a design; anything else is taken for a drawing.
  bool IsDesign() const;

private:
  void CopyFrom(int file);

  std::string name_;
  std::string path_;
  std::string copy_;     ///< path of the copy, where there is one
  std::string problem_;  ///< of the copying
};

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
