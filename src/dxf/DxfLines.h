#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>

#include "dxf/DxfCode.h"
#include "dxf/LineEnd.h"
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

  /// `onRead` is called now and then with how much of the text is not looked at again.
  explicit DxfLines(std::string_view text, std::function<void(std::size_t)> onRead = {});

  /// Reads the next line. False when the text ends before the line does, or when `maxChars` bytes
  /// came without an end: `line` is then what came, and the position behind it, inside the line.
  bool GetLine(std::string_view& line, std::size_t maxChars);

  /// Calls `visit` with code and value of each pair, up to the code of the next keyword, which is
  /// taken too, or to a code that is cut short. A value that is cut short counts as it stands in a
  /// buffer that holds the values of one record over one another.
  template <class Visit>
  void WalkPairs(Visit visit, std::size_t valueLimit = longLine)
  {
    std::string_view underCut;
    DxfCode code{};
    lastLine_ = {};  // where memory ends in `visit`, no keyword stands behind
    while (GetCode(code)) visit(code, GetValue(underCut, valueLimit));
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

  bool IsAtEnd() const { return at_ == text_.data() + text_.size(); }

  /// Reports how far the reading is, once for each percent. A report that fails for want of memory
  /// is not made. Nobody may look at the lines of before any more.
  void ReportProgress(IProgress& progress);

private:
  bool GetCode(DxfCode& code);
  bool GetUnusualCode(DxfCode& code);
  std::string_view GetValue(std::string_view& underCut, std::size_t maxChars);
  std::string_view GetCutValue(std::string_view& underCut, std::size_t maxChars);
  std::string_view Over(std::string_view part, std::string_view before);

  /// Where the next line must have ended.
  const char* LimitOf(std::size_t maxChars) const
  {
    return at_ + std::min(maxChars, static_cast<std::size_t>(text_.data() + text_.size() - at_));
  }

  std::string_view UpToNul(std::string_view line) const
  {
    return hasNul_ ? line.substr(0, line.find('\0')) : line;
  }

  std::string_view text_;
  const char* at_;
  const char* linesEnd_;       ///< behind the last line end of the text
  std::size_t unendedLength_;  ///< bytes behind it
  bool hasNul_;
  std::string_view lastLine_;  ///< empty behind one that was cut short, and within a record
  std::int32_t lastPercent_ = 0;
  std::function<void(std::size_t)> onRead_;
  std::array<char, longLine> joined_{};
};

/// The line without blanks around it.
std::string_view Trimmed(std::string_view line);

/// Whether the line contains the word.
inline bool Contains(std::string_view line, std::string_view word)
{
  // Lines are so short that the calls of a library's search would cost more than this.
  for (; line.size() >= word.size(); line.remove_prefix(1)) {
    if (line.front() == word.front() && line.starts_with(word)) return true;
  }
  return false;
}

// Every pair of a drawing passes through these, so they are made part of each reader.

/// Reads the line of a code. False for the code of a keyword, and for one that is cut short.
inline bool DxfLines::GetCode(DxfCode& code)
{
  constexpr std::ptrdiff_t usual = 10;  // no more digits than fit
  if (at_ >= linesEnd_) return GetUnusualCode(code);
  // A line end lies ahead, which neither of these loops passes.
  const char* at = at_;
  while (*at == ' ') ++at;
  std::uint32_t number = 0;
  for (; *at >= '0' && *at <= '9'; ++at)
    number = number * 10 + static_cast<std::uint32_t>(*at - '0');
  if (*at != '\n' || at - at_ >= usual) return GetUnusualCode(code);
  code = static_cast<DxfCode>(number);
  if (code == DxfCode::Keyword) lastLine_ = {at_, at};
  at_ = at + 1;
  return code != DxfCode::Keyword;
}

inline std::string_view DxfLines::GetValue(std::string_view& underCut, std::size_t maxChars)
{
  const char* const limit = LimitOf(maxChars);
  const char* const end = FindLineEnd(at_, limit);
  if (end == limit) return GetCutValue(underCut, maxChars);
  const std::string_view value(at_, end);
  at_ = end + 1;
  // Only one value can be cut short by the end of the text: the last line, whose length is known.
  // Behind it stands the rest of the last value that reached as far.
  if (value.size() >= unendedLength_) underCut = value;
  return UpToNul(value);
}

inline bool DxfLines::GetLine(std::string_view& line, std::size_t maxChars)
{
  const char* const limit = LimitOf(maxChars);
  const char* const end = FindLineEnd(at_, limit);
  const bool isWhole = end != limit;
  const std::string_view whole(at_, end);
  line = UpToNul(whole);
  lastLine_ = isWhole ? whole : std::string_view();
  at_ = isWhole ? end + 1 : limit;
  return isWhole;
}

}  // namespace hullwright
