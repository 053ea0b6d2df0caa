#pragma once

#include <string>
#include <string_view>

namespace hullwright {

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

/// Widens text that is known to be ASCII, such as a formatted number.
std::u16string WideFromAscii(std::string_view ascii);

}  // namespace hullwright
