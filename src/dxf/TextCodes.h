#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace hullwright {

/// A text of a drawing without its formatting codes, and what these say of its colour.
struct CleanedText {
  std::u16string text;
  std::optional<std::int32_t> colourIndex;  ///< of the first code for a colour index
  std::optional<std::int32_t> colourValue;  ///< of the first code for a true colour, 0x00BBGGRR
};

/// Strips the formatting codes of a text. Only a text with a backslash somewhere loses its codes,
/// braces and carets; the percent codes are replaced in any text. The time is linear in the length.
/// Where memory ends, the text stays as it is at that step.
CleanedText CleanText(std::u16string text);

/// The steps of the cleaning. A step that memory ends in leaves the text as it is. Each replaces
/// every match of its pattern (ECMAScript's grammar, with 16-bit units as characters) that a single
/// search from left to right finds, unless it says otherwise.
namespace TextCodes {

/// "\{" and "\}", removed one after the other.
void RemoveBraces(std::u16string& text);

/// "\\[Ff]([^|]*)(?:\|([bicp])(\d+))?{4 times};" removed. The first group is greedy: it runs to the
/// last semicolon before a bar.
void RemoveFonts(std::u16string& text);

/// "\\A(\d+);" removed.
void RemoveAlignments(std::u16string& text);

/// "\\H(\d*\.?\d+)(x?);" removed.
void RemoveHeights(std::u16string& text);

/// "\\L" and "\\l" removed, one after the other.
void RemoveUnderlines(std::u16string& text);

/// "\\P" becomes a line feed.
void BreakParagraphs(std::u16string& text);

/// "\\p(?:x?i(\d*\.?\d+);)?" removed.
void RemoveIndents(std::u16string& text);

/// The number of the first "\\C(\d+);" or, with a small letter, "\\c(\d+);", 2147483647 at most.
std::optional<std::int32_t> FirstColour(std::u16string_view text, char16_t letter);

/// "\\C(\d+);" or "\\c(\d+);" removed.
void RemoveColours(std::u16string& text, char16_t letter);

/// "\\[Uu]\+([0-9a-fA-F]{4})" becomes the unit of that code, from left to right and again until
/// nothing matches, so that a new unit may complete a code.
void DecodeUnits(std::u16string& text);

/// "\^([A-Z])" becomes the control character of the letter.
void DecodeCarets(std::u16string& text);

/// "%%c", "%%d" and "%%p", in either case, become the signs for diameter, degrees and plus-minus.
void DecodePercents(std::u16string& text);

}  // namespace TextCodes

}  // namespace hullwright
