#pragma once

#include <string>

namespace hullwright {

/// A file to read; "-" stands for what comes on standard input. That, and a file whose name is not
/// UTF-8, is read from a copy.
class InputFile {
public:
  /// Reads standard input to its end where that is the file.
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

}  // namespace hullwright
