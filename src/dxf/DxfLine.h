#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace hullwright {

/// A line of a drawing in a fixed buffer that is not cleared from line to line: what a line that
/// was cut short does not overwrite still stands behind it. Text ends at a NUL.
class DxfLine {
public:
  /// Bytes of the longest line that is taken.
  static constexpr std::size_t capacity = 512;

  std::string_view Text() const { return text_; }

  /// The text without blanks around it.
  std::string_view Trimmed() const
  {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text_.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text_.substr(first, text_.find_last_not_of(blanks) + 1 - first);
  }

  /// Whether it is the code before a keyword, and not merely read as the number 0.
  bool IsGroupZero() const { return Trimmed() == "0"; }

  /// Takes a whole line, of fewer bytes than the capacity.
  void TakeWhole(const char* from, std::size_t length)
  {
    std::memcpy(bytes_.data(), from, length);
    bytes_[length] = '\0';
    MeasureText(length);
  }

  /// Takes the start of a line of at most `limit` bytes, without ending it.
  void TakePart(const char* from, std::size_t length, std::size_t limit)
  {
    std::memcpy(bytes_.data(), from, length);
    MeasureText(limit);
  }

private:
  void MeasureText(std::size_t limit)
  {
    const void* const end = std::memchr(bytes_.data(), '\0', limit);
    const auto* const last = static_cast<const char*>(end);
    text_ = {bytes_.data(),
             last == nullptr ? limit : static_cast<std::size_t>(last - bytes_.data())};
  }

  std::array<char, capacity> bytes_{};
  std::string_view text_;
};

}  // namespace hullwright
