#include "base/Text.h"

#include <algorithm>
#include <array>

namespace hullwright {
namespace {

constexpr char32_t replacement = 0xFFFD;

// Windows-1252, bytes 0x80 to 0x9F; all others equal their Unicode value.
constexpr std::array<char16_t, 32> ansiUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char32_t code)
{
  const auto tail = [&](int shift) {
    out.push_back(static_cast<char>(0x80U | ((code >> shift) & 0x3FU)));
  };
  if (code < 0x80) {
    out.push_back(static_cast<char>(code));
  } else if (code < 0x800) {
    out.push_back(static_cast<char>(0xC0U | (code >> 6)));
    tail(0);
  } else if (code < 0x10000) {
    out.push_back(static_cast<char>(0xE0U | (code >> 12)));
    tail(6);
    tail(0);
  } else {
    out.push_back(static_cast<char>(0xF0U | (code >> 18)));
    tail(12);
    tail(6);
    tail(0);
  }
}

void AppendWide(std::u16string& out, char32_t code)
{
  if (code < 0x10000) {
    out.push_back(static_cast<char16_t>(code));
    return;
  }
  out.push_back(static_cast<char16_t>(0xD7C0U + (code >> 10)));
  out.push_back(static_cast<char16_t>(0xDC00U + (code & 0x3FFU)));
}

/// What the first byte of a UTF-8 sequence promises.
struct Utf8Lead {
  int tails;      ///< continuation bytes that must follow; -1 for a byte that starts nothing
  char32_t bits;  ///< payload of the lead byte
  unsigned char secondMin;  ///< the second byte's range excludes overlong forms and surrogates
  unsigned char secondMax;
};

constexpr Utf8Lead ClassifyLead(unsigned char byte)
{
  if (byte < 0x80) return {0, byte, 0x80, 0xBF};
  if (byte >= 0xC2 && byte <= 0xDF) return {1, byte & 0x1FU, 0x80, 0xBF};
  if (byte == 0xE0) return {2, 0, 0xA0, 0xBF};
  if (byte == 0xED) return {2, 0xD, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {2, byte & 0xFU, 0x80, 0xBF};
  if (byte == 0xF0) return {3, 0, 0x90, 0xBF};
  if (byte >= 0xF1 && byte <= 0xF3) return {3, byte & 7U, 0x80, 0xBF};
  if (byte == 0xF4) return {3, 4, 0x80, 0x8F};
  return {-1, 0, 0, 0};
}

/// No character: what an ill-formed piece decodes to.
constexpr char32_t illFormed = 0xFFFFFFFF;

/// Decodes one character at `at` and moves `at` past it, or past the ill-formed piece.
char32_t TakeUtf8(std::string_view bytes, std::size_t& at)
{
  const Utf8Lead lead = ClassifyLead(static_cast<unsigned char>(bytes[at++]));
  if (lead.tails < 0) return illFormed;
  char32_t code = lead.bits;
  for (int tail = 0; tail < lead.tails; ++tail) {
    if (at == bytes.size()) return illFormed;
    const auto byte = static_cast<unsigned char>(bytes[at]);
    const unsigned char low = tail == 0 ? lead.secondMin : 0x80;
    const unsigned char high = tail == 0 ? lead.secondMax : 0xBF;
    if (byte < low || byte > high) return illFormed;
    code = (code << 6) | (byte & 0x3FU);
    ++at;
  }
  return code;
}

/// Looks at each byte whatever stands before it, so that the compiler takes many at a time.
bool IsAscii(std::string_view bytes)
{
  unsigned char all = 0;
  for (const char byte : bytes) all |= static_cast<unsigned char>(byte);
  return all < 0x80;
}

}  // namespace

std::string Utf8FromWide(std::u16string_view text)
{
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char32_t unit = text[i];
    if (IsPairAt(text, i)) {
      AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (text[++i] - 0xDC00U));
    } else {
      AppendUtf8(out, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? replacement : unit);
    }
  }
  return out;
}

std::u16string WideFromUtf8(std::string_view bytes)
{
  if (IsAscii(bytes)) return WideFromAscii(bytes);
  std::u16string out;
  out.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    const char32_t code = TakeUtf8(bytes, at);
    AppendWide(out, code == illFormed ? replacement : code);
  }
  return out;
}

bool IsUtf8(std::string_view bytes)
{
  for (std::size_t at = 0; at < bytes.size();) {
    if (TakeUtf8(bytes, at) == illFormed) return false;
  }
  return true;
}

char16_t WideFromAnsiByte(unsigned char byte)
{
  return byte >= 0x80 && byte < 0xA0 ? ansiUpperControls[byte - 0x80U] : char16_t{byte};
}

std::u16string WideFromAnsi(std::string_view bytes)
{
  std::u16string out(bytes.size(), u'\0');
  std::ranges::transform(bytes, out.begin(), [](char byte) {
    return WideFromAnsiByte(static_cast<unsigned char>(byte));
  });
  return out;
}

std::string AnsiFromWide(std::u16string_view text)
{
  std::string out;
  out.reserve(text.size());
  for (const char16_t unit : text) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
      out.push_back(static_cast<char>(unit));
      continue;
    }
    const auto* const found = std::ranges::find(ansiUpperControls, unit);
    out.push_back(found == ansiUpperControls.end()
                      ? '?'
                      : static_cast<char>(0x80 + (found - ansiUpperControls.begin())));
  }
  return out;
}

void TrimSpace(std::u16string& text)
{
  // Unicode's white space in the Basic Multilingual Plane.
  static constexpr std::u16string_view spaces =
      u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008"
      u"\u2009\u200A\u2028\u2029\u202F\u205F\u3000";
  text.erase(text.find_last_not_of(spaces) + 1);
  text.erase(0, text.find_first_not_of(spaces));
}

bool EqualButForCase(std::string_view a, std::string_view b)
{
  return std::ranges::equal(a, b, {}, LowerAscii, LowerAscii);
}

std::u16string WideFromAscii(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

}  // namespace hullwright
