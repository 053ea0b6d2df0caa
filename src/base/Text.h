#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace hullwright {

// The two halves of a character beyond the Basic Multilingual Plane.
constexpr bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Whether the unit at a place and the next one are a pair.
constexpr bool IsPairAt(std::u16string_view text, std::size_t at)
{
  return IsHighSurrogate(text[at]) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
}

/// Converts 16-bit text to UTF-8. A lone surrogate becomes U+FFFD.
std::string Utf8FromWide(std::u16string_view text);

/// Converts UTF-8 to 16-bit text. Each maximal ill-formed piece becomes one U+FFFD.
std::u16string WideFromUtf8(std::string_view bytes);

/// Whether bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

/// The 16-bit unit for one byte of the ANSI code page, which is Windows-1252 on every system.
/// The five bytes that the code page leaves open map to the control character of the same value.
char16_t WideFromAnsiByte(unsigned char byte);

/// Converts text of the ANSI code page to 16-bit text.
std::u16string WideFromAnsi(std::string_view bytes);

/// Converts 16-bit text to the ANSI code page; a unit without a place there becomes '?'.
std::string AnsiFromWide(std::u16string_view text);

/// Takes white space off both ends of a text.
void TrimSpace(std::u16string& text);

/// A letter of ASCII in lower case; any other byte as it is.
constexpr char LowerAscii(char c)
{
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Whether two texts differ at most in the case of letters of ASCII.
bool EqualButForCase(std::string_view a, std::string_view b);

/// Widens text that is known to be ASCII, such as a formatted number.
std::u16string WideFromAscii(std::string_view ascii);

}  // namespace hullwright
