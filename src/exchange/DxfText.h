#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace hullwright {

/// The text of a drawing, group by group: the code on a line, the value on the next.
class DxfText {
public:
  /// A value that is ASCII and one line.
  void Group(int code, std::string_view value);
  void Integer(int code, std::int64_t value);

  /// A finite number, with all its digits.
  void Real(int code, double value);

  /// Coordinates, of which the first has this code, the next ones codes 10 and 20 higher.
  void Place(int code, double x, double y);
  void Place(int code, double x, double y, double z);

  /// Groups as tables of records spell them: parted by '|' or a line end, each a code, a blank and
  /// the value.
  void Records(std::string_view records);

  /// Adds the text of another one.
  void Append(const DxfText& text) { bytes_ += text.bytes_; }

  const std::string& Bytes() const { return bytes_; }
  std::string Take() { return std::move(bytes_); }

private:
  std::string bytes_;
};

/// A text as drawings hold it: one line of ASCII. Other characters and backslashes, which would
/// begin a code, become "\U+XXXX", carets "^ ", and control characters blanks.
std::string EscapedText(std::u16string_view text);

/// The same, no longer than a drawing's texts may be: the rest of a longer one gives way to an
/// ellipsis, and `shortened` becomes true.
std::string EscapedText(std::u16string_view text, bool& shortened);

}  // namespace hullwright
