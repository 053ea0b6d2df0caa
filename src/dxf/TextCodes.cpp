#include "dxf/TextCodes.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <new>
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

/// Whether a unit stands in a text. Looks at each, so that the compiler takes many at a time.
bool Holds(Text text, char16_t unit)
{
  bool holds = false;
  for (const char16_t other : text) holds |= other == unit;
  return holds;
}

/// The first place of a unit from `at` on, or the length of the text. A search by the library looks
/// at one unit at a time, and most texts hold few of those that codes are made of.
std::size_t FindUnit(Text text, char16_t unit, std::size_t at)
{
  constexpr std::size_t block = 16;
  while (text.size() - at >= block && !Holds(text.substr(at, block), unit)) at += block;
  return std::min(text.find(unit, at), text.size());
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

constexpr char16_t backslash = u'\\';

constexpr std::size_t unitLength = 7;  // of a code such as "\\U+00B0"

/// The unit that the last seven of a text stand for, if they are a code.
std::optional<char16_t> UnitAtEnd(Text text)
{
  if (text.size() < unitLength) return std::nullopt;
  const Text code = text.substr(text.size() - unitLength);
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

/// The sign that a letter stands for behind two percent characters; NUL for other letters.
char16_t SignOf(char16_t letter)
{
  switch (letter) {
    case u'c':
    case u'C': return u'\u2300';
    case u'd':
    case u'D': return u'\u00B0';
    case u'p':
    case u'P': return u'\u00B1';
    default: return u'\0';
  }
}

}  // namespace

namespace TextCodes {

void RemoveBraces(std::u16string& text)
{
  std::erase_if(text, [](char16_t unit) { return unit == u'{' || unit == u'}'; });
}

void DecodeCarets(std::u16string& text)
{
  // A control character is neither a caret nor a letter, so nothing new comes to match.
  constexpr unsigned controlBit = 64;
  std::size_t kept = FindUnit(text, u'^', 0);
  for (std::size_t at = kept; at < text.size(); ++at) {
    const bool code =
        text[at] == u'^' && at + 1 < text.size() && text[at + 1] >= u'A' && text[at + 1] <= u'Z';
    text[kept++] = code ? static_cast<char16_t>(text[++at] ^ controlBit) : text[at];
  }
  text.resize(kept);
}

void DecodePercents(std::u16string& text)
{
  // A code and its sign have nothing in common with another code, so one search serves for all.
  std::size_t kept = FindUnit(text, u'%', 0);
  for (std::size_t at = kept; at < text.size(); ++at) {
    const bool code = text[at] == u'%' && IsAt(text, at + 1, u'%') && at + 2 < text.size();
    const char16_t sign = code ? SignOf(text[at + 2]) : u'\0';
    text[kept++] = sign == u'\0' ? text[at] : sign;
    if (sign != u'\0') at += 2;
  }
  text.resize(kept);
}

}  // namespace TextCodes

BackslashCodes::BackslashCodes(std::u16string& text) : text_(text)
{
  places_.reserve(static_cast<std::size_t>(std::ranges::count(text, backslash)));
  for (std::size_t at = FindUnit(text, backslash, 0); at < text.size();
       at = FindUnit(text, backslash, at + 1)) {
    places_.push_back(at);
  }
}

/// Replaces every match of a code, from left to right.
template <class Matcher>
void BackslashCodes::ReplaceAll(Matcher match, Text replacement)
{
  // What is kept moves down over what is not; a matcher looks only at what has not moved yet.
  char16_t* const units = text_.data();
  std::size_t kept = 0;
  std::size_t moved = 0;
  auto place = places_.begin();
  for (const std::size_t at : places_) {
    if (at < moved) continue;  // in a match
    const std::size_t length = match(Text(text_), at);
    if (length == 0) {
      *place++ = kept + (at - moved);
      continue;
    }
    std::char_traits<char16_t>::move(units + kept, units + moved, at - moved);
    kept += at - moved;
    kept += replacement.copy(units + kept, length);
    moved = at + length;
  }
  places_.erase(place, places_.end());
  text_.erase(kept, moved - kept);
}

void BackslashCodes::RemoveLetter(char16_t letter, Text replacement)
{
  ReplaceAll([letter](Text text, std::size_t at) { return MatchLetter(text, at, letter); },
             replacement);
}

void BackslashCodes::RemoveNumbered(char16_t letter)
{
  ReplaceAll([letter](Text text, std::size_t at) { return MatchNumbered(text, at, letter); });
}

void BackslashCodes::RemoveFonts()
{
  FontMatcher match;
  ReplaceAll(std::ref(match));
}

void BackslashCodes::RemoveHeights() { ReplaceAll(MatchHeight); }

void BackslashCodes::RemoveUnderlines()
{
  RemoveLetter(u'L');
  RemoveLetter(u'l');
}

void BackslashCodes::BreakParagraphs() { RemoveLetter(u'P', u"\n"); }

void BackslashCodes::RemoveIndents() { ReplaceAll(MatchIndent); }

std::optional<std::int32_t> BackslashCodes::FirstColour(char16_t letter) const
{
  const Text text = text_;
  for (const std::size_t at : places_) {
    const std::size_t length = MatchNumbered(text, at, letter);
    if (length != 0) return ParseInt32(text.substr(at + 2, length - 2), 10);
  }
  return std::nullopt;
}

void BackslashCodes::DecodeUnits()
{
  // Every code is seven units long, so the first match is the one that is complete first.
  const auto isCode = [this](std::size_t at) {
    return UnitAtEnd(Text(text_).substr(at, unitLength)).has_value();
  };
  const auto first = std::ranges::find_if(places_, isCode);
  if (first == places_.end()) return;
  std::size_t kept = *first;
  for (std::size_t at = kept; at < text_.size(); ++at) {
    text_[kept++] = text_[at];
    while (const auto decoded = UnitAtEnd(Text(text_).substr(0, kept))) {
      kept -= unitLength - 1;
      text_[kept - 1] = *decoded;
    }
  }
  text_.resize(kept);
}

namespace {

/// Takes one step after the other.
void Clean(CleanedText& cleaned)
{
  std::u16string& text = cleaned.text;
  if (text.find(backslash) != Text::npos) {
    TextCodes::RemoveBraces(text);
    BackslashCodes codes(text);
    codes.RemoveFonts();
    codes.RemoveAlignments();
    codes.RemoveHeights();
    codes.RemoveUnderlines();
    codes.BreakParagraphs();
    codes.RemoveIndents();
    if (const auto index = codes.FirstColour(u'C')) cleaned.colourIndex = ColourIndex{*index};
    codes.RemoveColours(u'C');
    if (const auto value = codes.FirstColour(u'c')) {
      cleaned.colourValue = static_cast<std::uint32_t>(*value);
    }
    codes.RemoveColours(u'c');
    codes.DecodeUnits();
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
