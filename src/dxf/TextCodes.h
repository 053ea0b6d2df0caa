#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dxf/ColourTable.h"

namespace hullwright {

/// A text of a drawing without its formatting codes, and what these say of its colour.
struct CleanedText {
  std::u16string text;
  std::optional<ColourIndex> colourIndex;    ///< of the first code for a colour index
  std::optional<std::uint32_t> colourValue;  ///< of the first code for a true colour, 0x00BBGGRR
};

/// Strips the formatting codes of a text. Only a text with a backslash somewhere loses its codes,
/// braces and carets; the percent codes are replaced in any text. The time is linear in the length.
/// Where memory ends, the text stays as it is at that step.
CleanedText CleanText(std::u16string text);

/// The steps of the cleaning. Each only shortens the text, in place: it replaces every match of its
/// pattern (ECMAScript's grammar, with 16-bit units as characters) that a single search from left
/// to right finds, unless it says otherwise.
namespace TextCodes {

/// "\{" and "\}", removed one after the other.
void RemoveBraces(std::u16string& text);

/// "\^([A-Z])" becomes the control character of the letter.
void DecodeCarets(std::u16string& text);

/// "%%c", "%%d" and "%%p", in either case, become the signs for diameter, degrees and plus-minus.
void DecodePercents(std::u16string& text);

}  // namespace TextCodes

/// The steps for codes that begin with a backslash, in a text that must outlive this object. Where
/// the backslashes are is looked up once and carried along, so that a step costs no more than there
/// are codes.
class BackslashCodes {
public:
  explicit BackslashCodes(std::u16string& text);

  /// "\\[Ff]([^|]*)(?:\|([bicp])(\d+))?{4 times};" removed. The first group is greedy: it runs to
  /// the last semicolon before a bar.
  void RemoveFonts();

  /// "\\A(\d+);" removed.
  void RemoveAlignments() { RemoveNumbered(u'A'); }

  /// "\\H(\d*\.?\d+)(x?);" removed.
  void RemoveHeights();

  /// "\\L" and "\\l" removed, one after the other.
  void RemoveUnderlines();

  /// "\\P" becomes a line feed.
  void BreakParagraphs();

  /// "\\p(?:x?i(\d*\.?\d+);)?" removed.
  void RemoveIndents();

  /// The number of the first "\\C(\d+);" or, with a small letter, "\\c(\d+);", 2147483647 at most.
  std::optional<std::int32_t> FirstColour(char16_t letter) const;

  /// "\\C(\d+);" or "\\c(\d+);" removed.
  void RemoveColours(char16_t letter) { RemoveNumbered(letter); }

  /// "\\[Uu]\+([0-9a-fA-F]{4})" becomes the unit of that code, from left to right and again until
  /// nothing matches, so that a new unit may complete a code. The last step: backslashes may come.
  void DecodeUnits();

private:
  template <class Matcher>
  void ReplaceAll(Matcher match, std::u16string_view replacement = {});
  void RemoveNumbered(char16_t letter);
  void RemoveLetter(char16_t letter, std::u16string_view replacement = {});

  std::u16string& text_;
  std::vector<std::size_t> places_;  ///< of the backslashes
};

}  // namespace hullwright
