#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "base/Numbers.h"
#include "dxf/DxfCode.h"
#include "platform/Progress.h"

namespace hullwright {

/// The lines of a drawing in memory, read once and forward, and the pairs of lines that its records
/// are made of. Lines are views of the text; they end at a NUL, if there is one in them. The text
/// must outlive this object, and both must outlive the lines.
class DxfLines {
public:
  // The limits of a line: one byte more than the longest that is whole.
  static constexpr std::size_t shortLine = 256;
  static constexpr std::size_t longLine = 512;

  explicit DxfLines(std::string_view text);

  /// Reads the next line. False when the text ends before the line does, or when `maxChars` bytes
  /// came without an end: `line` is then what came, and the position behind it, inside the line.
  bool GetLine(std::string_view& line, std::size_t maxChars);

  /// Calls `visit` with code and value of each pair, up to the code of the next keyword, which is
  /// taken too, or to a code that is cut short. A value that is cut short counts as it stands in a
  /// buffer that holds the values of one record over one another.
  template <class Visit>
  void WalkPairs(Visit visit, std::size_t valueLimit = longLine)
  {
    std::string_view code;
    std::string_view underCut;
    while (GetLine(code, shortLine)) {
      const auto group = static_cast<DxfCode>(ParseInt32(code, 10));
      if (group == DxfCode::Keyword) return;
      visit(group, GetValue(underCut, valueLimit));
    }
  }

  /// Reads on to a line that contains the word, or to one that is cut short.
  void SkipPast(std::string_view word);

  /// Reads on to the line that ends a block of application data.
  void SkipGroupBlock() { SkipPast("}"); }

  /// Reads on to the next keyword.
  void SkipEntity();

  /// Whether the line read last was the code in front of a keyword, and was not merely read as the
  /// number 0.
  bool IsAtKeyword() const;

  bool IsAtEnd() const { return position_ == text_.size(); }

  /// Reports how far the reading is, once for each percent.
  void ReportProgress(IProgress& progress);

private:
  bool Take(std::string_view& line, std::size_t maxChars);
  std::string_view GetValue(std::string_view& underCut, std::size_t maxChars);
  std::string_view Over(std::string_view part, std::string_view before);

  std::string_view text_;
  std::size_t position_ = 0;
  std::size_t unendedLength_;  ///< bytes behind the last line end of the text
  std::string_view lastLine_;  ///< empty behind one that was cut short
  std::int32_t lastPercent_ = 0;
  std::array<char, longLine> joined_{};
};

/// The line without blanks around it.
std::string_view Trimmed(std::string_view line);

/// Whether the line contains the word.
bool Contains(std::string_view line, std::string_view word);

}  // namespace hullwright
