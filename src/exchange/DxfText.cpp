#include "exchange/DxfText.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/RealText.h"
#include "base/Text.h"

namespace hullwright {
namespace {

/// What one 16-bit unit becomes.
std::string EscapedUnit(char16_t unit)
{
  if (unit < u' ' || unit == u'\x7F') return " ";
  if (unit == u'^') return "^ ";
  if (unit < u'\x7F' && unit != u'\\') return {static_cast<char>(unit)};
  return "\\U+" + FormatHex(unit, 4);
}

}  // namespace

void DxfText::Group(int code, std::string_view value)
{
  bytes_ += std::to_string(code);
  bytes_ += '\n';
  bytes_ += value;
  bytes_ += '\n';
}

void DxfText::Integer(int code, std::int64_t value) { Group(code, std::to_string(value)); }

void DxfText::Real(int code, double value) { Group(code, RealText(value)); }

void DxfText::Place(int code, double x, double y)
{
  constexpr int nextAxis = 10;
  Real(code, x);
  Real(code + nextAxis, y);
}

void DxfText::Place(int code, double x, double y, double z)
{
  constexpr int thirdAxis = 20;
  Place(code, x, y);
  Real(code + thirdAxis, z);
}

void DxfText::Records(std::string_view records)
{
  while (!records.empty()) {
    const std::string_view group = records.substr(0, records.find_first_of("|\n"));
    const std::size_t blank = group.find(' ');
    Group(ParseInt32(group.substr(0, blank), 10), group.substr(blank + 1));
    records.remove_prefix(std::min(group.size() + 1, records.size()));
  }
}

std::string EscapedText(std::u16string_view text)
{
  std::string escaped;
  for (const char16_t unit : text) escaped += EscapedUnit(unit);
  return escaped;
}

std::string EscapedText(std::u16string_view text, bool& shortened)
{
  constexpr std::size_t longest = 250;  // a line of a drawing has 255 bytes
  std::string escaped = EscapedText(text);
  if (escaped.size() <= longest) return escaped;
  shortened = true;
  constexpr char16_t ellipsis = u'\u2026';
  const std::size_t room = longest - EscapedUnit(ellipsis).size();
  escaped.clear();
  std::size_t kept = 0;
  for (; escaped.size() + EscapedUnit(text[kept]).size() <= room; ++kept) {
    escaped += EscapedUnit(text[kept]);
  }
  // Half of a character is none.
  if (IsHighSurrogate(text[kept - 1]))
    escaped.resize(escaped.size() - EscapedUnit(text[kept - 1]).size());
  return escaped + EscapedUnit(ellipsis);
}

}  // namespace hullwright
