#include "dxf/DxfLines.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/Numbers.h"

namespace hullwright {

DxfLines::DxfLines(std::string_view text, std::function<void(std::size_t)> onRead)
    : text_(text),
      at_(text.data()),
      linesEnd_(text.data() + (text.rfind('\n') + 1)),
      unendedLength_(text.size() - (text.rfind('\n') + 1)),
      hasNul_(text.find('\0') != std::string_view::npos),
      onRead_(std::move(onRead))
{
}

/// Any code line that is not blanks, digits and its end.
bool DxfLines::GetUnusualCode(DxfCode& code)
{
  std::string_view line;
  if (!GetLine(line, shortLine)) return false;
  code = static_cast<DxfCode>(ParseInt32(line, 10));
  return code != DxfCode::Keyword;
}

std::string_view DxfLines::GetCutValue(std::string_view& underCut, std::size_t maxChars)
{
  const std::string_view value(at_, LimitOf(maxChars));
  at_ += value.size();
  if (value.size() < maxChars) return UpToNul(Over(value, underCut));
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
  const auto position = static_cast<std::size_t>(at_ - text_.data());
  const float part = static_cast<float>(position) / static_cast<float>(text_.size());
  const std::int32_t percent = TruncateToInt32(part * 100.0F);
  if (percent == lastPercent_) return;
  lastPercent_ = percent;
  // Whether the line read last was a code is asked later.
  const char* const needed = lastLine_.empty() ? at_ : lastLine_.data();
  if (onRead_) onRead_(static_cast<std::size_t>(needed - text_.data()));
  try {
    progress.ShowProgress(percent);
  } catch (const std::bad_alloc&) {
    // The drawing is read on: it may need less memory than to show how far it is.
  }
}

std::string_view Trimmed(std::string_view line)
{
  const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!line.empty() && isBlank(line.front())) line.remove_prefix(1);
  while (!line.empty() && isBlank(line.back())) line.remove_suffix(1);
  return line;
}

}  // namespace hullwright
