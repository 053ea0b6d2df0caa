#include "dxf/TextCodes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <utility>

#include "base/Numbers.h"

// The matchers are made by hand because a regular-expression engine takes a stack frame, or a whole
// search to the end of the text, for each of the characters that a drawing may bring by the
// million.
namespace hullwright {
namespace {

using Text = std::u16string_view;

constexpr bool IsDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

constexpr int HexValue(char16_t unit)
{
  if (IsDigit(unit)) return unit - u'0';
  if (unit >= u'a' && unit <= u'f') return unit - u'a' + 10;
  if (unit >= u'A' && unit <= u'F') return unit - u'A' + 10;
  return -1;
}

bool IsAt(Text text, std::size_t at, char16_t unit) { return at < text.size() && text[at] == unit; }

/// The end of the digits that begin at a place.
std::size_t AfterDigits(Text text, std::size_t at)
{
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

/// The end of "\d*\.?\d+" at a place; the place itself where there is none.
std::size_t AfterNumber(Text text, std::size_t at)
{
  const std::size_t whole = AfterDigits(text, at);
  if (!IsAt(text, whole, u'.')) return whole;
  const std::size_t fraction = AfterDigits(text, whole + 1);
  // Without digits behind the point the number ends before it.
  return fraction > whole + 1 ? fraction : whole;
}

// A matcher returns the length of its match at a backslash, 0 where there is none.

/// A backslash, one letter, digits and a semicolon.
std::size_t MatchNumbered(Text text, std::size_t at, char16_t letter)
{
  if (!IsAt(text, at + 1, letter)) return 0;
  const std::size_t end = AfterDigits(text, at + 2);
  return end > at + 2 && IsAt(text, end, u';') ? end + 1 - at : 0;
}

std::size_t MatchLetter(Text text, std::size_t at, char16_t letter)
{
  return IsAt(text, at + 1, letter) ? 2 : 0;
}

std::size_t MatchHeight(Text text, std::size_t at)
{
  if (!IsAt(text, at + 1, u'H')) return 0;
  std::size_t end = AfterNumber(text, at + 2);
  if (end == at + 2) return 0;
  if (IsAt(text, end, u'x')) ++end;
  return IsAt(text, end, u';') ? end + 1 - at : 0;
}

std::size_t MatchIndent(Text text, std::size_t at)
{
  if (!IsAt(text, at + 1, u'p')) return 0;
  std::size_t mark = at + 2;
  if (IsAt(text, mark, u'x')) ++mark;
  if (!IsAt(text, mark, u'i')) return 2;
  const std::size_t end = AfterNumber(text, mark + 1);
  return end > mark + 1 && IsAt(text, end, u';') ? end + 1 - at : 2;
}

/// Matches font codes. What a failed match has looked through is remembered, because no code that
/// begins there matches either; without that, a text of nothing but codes would take forever.
class FontMatcher {
public:
  std::size_t operator()(Text text, std::size_t at)
  {
    if (!IsAt(text, at + 1, u'F') && !IsAt(text, at + 1, u'f')) return 0;
    if (at < barrenEnd_) return 0;
    const std::size_t name = at + 2;
    const std::size_t bar = std::min(text.find(u'|', name), text.size());
    if (const std::size_t end = AfterOptions(text, bar); IsAt(text, end, u';')) return end + 1 - at;
    const std::size_t semicolon = text.substr(name, bar - name).rfind(u';');
    if (semicolon != Text::npos) return name + semicolon + 1 - at;
    barrenEnd_ = bar;
    return 0;
  }

private:
  /// The end of up to four options at a place: a bar, one of the letters b, i, c, p, and digits.
  static std::size_t AfterOptions(Text text, std::size_t at)
  {
    constexpr Text letters = u"bicp";
    for (int option = 0; option < 4; ++option) {
      const bool named =
          IsAt(text, at, u'|') && at + 1 < text.size() && letters.find(text[at + 1]) != Text::npos;
      const std::size_t end = named ? AfterDigits(text, at + 2) : at;
      if (!named || end == at + 2) break;
      at = end;
    }
    return at;
  }

  std::size_t barrenEnd_ = 0;
};

/// Replaces every match of a code that begins with a mark, from left to right.
template <class Matcher>
void ReplaceAll(std::u16string& text, char16_t mark, Matcher match, Text replacement = {})
{
  std::u16string out;
  std::size_t copied = 0;
  for (std::size_t at = text.find(mark); at != Text::npos; at = text.find(mark, at)) {
    const std::size_t length = match(Text(text), at);
    if (length == 0) {
      ++at;
      continue;
    }
    out.append(text, copied, at - copied).append(replacement);
    at += length;
    copied = at;
  }
  if (copied == 0) return;
  out.append(text, copied);
  text = std::move(out);
}

constexpr char16_t backslash = u'\\';

void RemoveLetter(std::u16string& text, char16_t letter, Text replacement = {})
{
  ReplaceAll(
      text, backslash, [letter](Text t, std::size_t at) { return MatchLetter(t, at, letter); },
      replacement);
}

void RemoveNumbered(std::u16string& text, char16_t letter)
{
  ReplaceAll(text, backslash,
             [letter](Text t, std::size_t at) { return MatchNumbered(t, at, letter); });
}

/// The unit that the last seven of a text stand for, if they are a code such as "\\U+00B0".
std::optional<char16_t> UnitAtEnd(Text text)
{
  constexpr std::size_t length = 7;
  if (text.size() < length) return std::nullopt;
  const Text code = text.substr(text.size() - length);
  if (code[0] != backslash || (code[1] != u'U' && code[1] != u'u') || code[2] != u'+') {
    return std::nullopt;
  }
  int value = 0;
  for (const char16_t unit : code.substr(3)) {
    const int digit = HexValue(unit);
    if (digit < 0) return std::nullopt;
    value = value * 16 + digit;
  }
  return static_cast<char16_t>(value);
}

}  // namespace

namespace TextCodes {

void RemoveBraces(std::u16string& text)
{
  std::erase_if(text, [](char16_t unit) { return unit == u'{' || unit == u'}'; });
}

void RemoveFonts(std::u16string& text)
{
  FontMatcher match;
  ReplaceAll(text, backslash, std::ref(match));
}

void RemoveAlignments(std::u16string& text) { RemoveNumbered(text, u'A'); }

void RemoveHeights(std::u16string& text) { ReplaceAll(text, backslash, MatchHeight); }

void RemoveUnderlines(std::u16string& text)
{
  RemoveLetter(text, u'L');
  RemoveLetter(text, u'l');
}

void BreakParagraphs(std::u16string& text) { RemoveLetter(text, u'P', u"\n"); }

void RemoveIndents(std::u16string& text) { ReplaceAll(text, backslash, MatchIndent); }

std::optional<std::int32_t> FirstColour(std::u16string_view text, char16_t letter)
{
  for (std::size_t at = text.find(backslash); at != Text::npos; at = text.find(backslash, at + 1)) {
    const std::size_t length = MatchNumbered(text, at, letter);
    if (length != 0) return ParseInt32(text.substr(at + 2, length - 2), 10);
  }
  return std::nullopt;
}

void RemoveColours(std::u16string& text, char16_t letter) { RemoveNumbered(text, letter); }

void DecodeUnits(std::u16string& text)
{
  // Every code is seven units long, so the first match is the one that is complete first.
  constexpr std::size_t length = 7;
  std::size_t kept = 0;
  for (const char16_t unit : text) {
    text[kept++] = unit;
    while (const auto decoded = UnitAtEnd(Text(text).substr(0, kept))) {
      kept -= length - 1;
      text[kept - 1] = *decoded;
    }
  }
  text.resize(kept);
}

void DecodeCarets(std::u16string& text)
{
  // A control character is neither a caret nor a letter, so nothing new comes to match.
  constexpr unsigned controlBit = 64;
  std::size_t kept = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool code =
        text[at] == u'^' && at + 1 < text.size() && text[at + 1] >= u'A' && text[at + 1] <= u'Z';
    text[kept++] = code ? static_cast<char16_t>(text[++at] ^ controlBit) : text[at];
  }
  text.resize(kept);
}

void DecodePercents(std::u16string& text)
{
  struct Sign {
    char16_t letter;
    Text sign;
  };
  constexpr std::array<Sign, 6> signs = {{{u'c', u"\u2300"},
                                          {u'd', u"\u00B0"},
                                          {u'p', u"\u00B1"},
                                          {u'C', u"\u2300"},
                                          {u'D', u"\u00B0"},
                                          {u'P', u"\u00B1"}}};
  for (const Sign& sign : signs) {
    const auto match = [&sign](Text t, std::size_t at) -> std::size_t {
      return IsAt(t, at + 1, u'%') && IsAt(t, at + 2, sign.letter) ? 3 : 0;
    };
    ReplaceAll(text, u'%', match, sign.sign);
  }
}

}  // namespace TextCodes

namespace {

/// Takes one step after the other, so that each leaves its result even if the next one fails.
void Clean(CleanedText& cleaned)
{
  std::u16string& text = cleaned.text;
  if (text.find(backslash) != Text::npos) {
    TextCodes::RemoveBraces(text);
    TextCodes::RemoveFonts(text);
    TextCodes::RemoveAlignments(text);
    TextCodes::RemoveHeights(text);
    TextCodes::RemoveUnderlines(text);
    TextCodes::BreakParagraphs(text);
    TextCodes::RemoveIndents(text);
    cleaned.colourIndex = TextCodes::FirstColour(text, u'C');
    TextCodes::RemoveColours(text, u'C');
    cleaned.colourValue = TextCodes::FirstColour(text, u'c');
    TextCodes::RemoveColours(text, u'c');
    TextCodes::DecodeUnits(text);
    TextCodes::DecodeCarets(text);
  }
  TextCodes::DecodePercents(text);
}

}  // namespace

CleanedText CleanText(std::u16string text)
{
  CleanedText cleaned;
  cleaned.text = std::move(text);
  try {
    Clean(cleaned);
  } catch (const std::bad_alloc&) {
    // A label with some of its codes says more than none.
  }
  return cleaned;
}

}  // namespace hullwright
