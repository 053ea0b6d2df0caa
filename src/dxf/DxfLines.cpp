#include "dxf/DxfLines.h"

#include <algorithm>

namespace hullwright {
namespace {

std::string_view UpToNul(std::string_view line) { return line.substr(0, line.find('\0')); }

}  // namespace

DxfLines::DxfLines(std::string_view text)
    : text_(text), unendedLength_(text.size() - (text.rfind('\n') + 1))
{
}

bool DxfLines::Take(std::string_view& line, std::size_t maxChars)
{
  const std::string_view ahead = text_.substr(position_, maxChars);
  const std::size_t end = ahead.find('\n');
  const bool isWhole = end != std::string_view::npos;
  line = ahead.substr(0, end);
  position_ += isWhole ? end + 1 : ahead.size();
  lastLine_ = isWhole ? line : std::string_view();
  return isWhole;
}

bool DxfLines::GetLine(std::string_view& line, std::size_t maxChars)
{
  const bool isWhole = Take(line, maxChars);
  line = UpToNul(line);
  return isWhole;
}

std::string_view DxfLines::GetValue(std::string_view& underCut, std::size_t maxChars)
{
  std::string_view value;
  if (!Take(value, maxChars) && value.size() < maxChars) return UpToNul(Over(value, underCut));
  // Only one value can be cut short by the end of the text: the last line, whose length is known.
  // Behind it stands the rest of the last value that reached as far.
  if (value.size() >= unendedLength_) underCut = value;
  return UpToNul(value);
}

std::string_view DxfLines::Over(std::string_view part, std::string_view before)
{
  if (before.size() <= part.size()) return part;
  std::ranges::copy(before, joined_.begin());
  std::ranges::copy(part, joined_.begin());
  return {joined_.data(), before.size()};
}

void DxfLines::SkipPast(std::string_view word)
{
  std::string_view line;
  while (GetLine(line, shortLine) && !Contains(line, word)) {
  }
}

void DxfLines::SkipEntity()
{
  WalkPairs([](DxfCode, std::string_view) {});
}

bool DxfLines::IsAtKeyword() const { return Trimmed(UpToNul(lastLine_)) == "0"; }

void DxfLines::ReportProgress(IProgress& progress)
{
  const float part = static_cast<float>(position_) / static_cast<float>(text_.size());
  const std::int32_t percent = TruncateToInt32(part * 100.0F);
  if (percent == lastPercent_) return;
  lastPercent_ = percent;
  progress.ShowProgress(percent);
}

std::string_view Trimmed(std::string_view line)
{
  constexpr std::string_view blanks = " \t\r";
  const std::size_t first = line.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(blanks) + 1 - first);
}

bool Contains(std::string_view line, std::string_view word)
{
  return line.find(word) != std::string_view::npos;
}

}  // namespace hullwright
