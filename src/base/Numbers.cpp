#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <optional>

#include "base/Text.h"

namespace hullwright {
namespace {

constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Value of a digit of any base up to 36; 36 for a character that is no digit.
constexpr int DigitValue(char c)
{
  if (IsDigit(c)) return c - '0';
  const char lower = LowerAscii(c);
  return lower >= 'a' && lower <= 'z' ? lower - 'a' + 10 : 36;
}

/// Numbers are ASCII: the first unit beyond it ends any number, so it may as well end the text.
std::string Narrow(std::u16string_view text)
{
  std::string out;
  for (const char16_t unit : text) {
    if (unit >= 0x80) break;
    out.push_back(static_cast<char>(unit));
  }
  return out;
}

/// Takes leading white space and one sign off `text`; true for a minus.
bool TakeSign(std::string_view& text)
{
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  if (text.empty() || (text.front() != '-' && text.front() != '+')) return false;
  const bool negative = text.front() == '-';
  text.remove_prefix(1);
  return negative;
}

bool StartsWithNoCase(std::string_view text, std::string_view lower)
{
  if (text.size() < lower.size()) return false;
  for (std::size_t i = 0; i < lower.size(); ++i) {
    if (LowerAscii(text[i]) != lower[i]) return false;
  }
  return true;
}

bool HasHexPrefix(std::string_view text) { return StartsWithNoCase(text, "0x") && text.size() > 2; }

/// Distinguishes overflow from underflow for a number that `from_chars` found out of range: its
/// first significant digit stands before the point or it does not, moved by the exponent.
bool IsHuge(std::string_view number, char exponentMark, int digitsPerExponent)
{
  long long position = 0;
  bool significant = false;
  bool point = false;
  std::size_t i = 0;
  for (; i < number.size() && LowerAscii(number[i]) != exponentMark; ++i) {
    if (number[i] == '.') {
      point = true;
      continue;
    }
    significant = significant || number[i] != '0';
    if (significant && !point) ++position;
    if (!significant && point) --position;
  }
  long long exponent = 0;
  if (i + 1 < number.size()) {
    std::string_view digits = number.substr(i + 1);
    const bool negative = TakeSign(digits);
    for (const char c : digits) {
      if (exponent < std::numeric_limits<std::int32_t>::max()) exponent = exponent * 10 + (c - '0');
    }
    if (negative) exponent = -exponent;
  }
  return position * digitsPerExponent + exponent > 0;
}

// A processor that computes in more than double precision would round a quotient twice.
static_assert(FLT_EVAL_METHOD == 0);

/// Appends the digits at `at` to a number, which wraps where there are too many; the end of them.
const char* TakeDigits(const char* at, const char* end, std::uint64_t& number)
{
  for (; at != end; ++at) {
    const auto digit = static_cast<unsigned char>(*at - '0');
    if (digit > 9) break;
    number = number * 10 + digit;
  }
  return at;
}

/// The same, four at a time.
const char* TakeManyDigits(const char* at, const char* end, std::uint64_t& number)
{
  // Each byte becomes the value of its digit, or more than 9, which reaches the top bit below. Then
  // the first and the third byte become the values of two digits.
  std::uint32_t four = 0;
  if constexpr (std::endian::native == std::endian::little) {
    for (; end - at >= static_cast<std::ptrdiff_t>(sizeof(four)); at += sizeof(four)) {
      std::memcpy(&four, at, sizeof(four));
      four ^= 0x30303030U;
      if ((((four + 0x76767676U) | four) & 0x80808080U) != 0) break;
      four = four * 10 + (four >> 8U);
      number = number * 10000 + std::uint64_t{four & 0xFFU} * 100 + ((four >> 16U) & 0xFFU);
    }
  }
  return TakeDigits(at, end, number);
}

/// The number that the text begins with, if it is a decimal of few digits: an integer below 2^53
/// over a power of ten, both without error, so that the one division rounds as the library does.
/// Nothing for any other text, also for one with an exponent and for hexadecimal digits.
std::optional<double> ParseShortDecimal(std::string_view text)
{
  constexpr std::ptrdiff_t mostDigits = 19;  // what 64 bits hold
  constexpr std::uint64_t mostInteger = std::uint64_t{1} << 53U;
  const char* const end = text.data() + text.size();
  std::uint64_t integer = 0;
  const char* at = TakeDigits(text.data(), end, integer);
  std::ptrdiff_t digits = at - text.data();
  std::ptrdiff_t decimals = 0;
  if (at != end && *at == '.') {
    const char* const first = at + 1;
    at = TakeManyDigits(first, end, integer);
    decimals = at - first;
    digits += decimals;
  }
  if (digits == 0 || digits > mostDigits || integer > mostInteger) return std::nullopt;
  if (at != end && (LowerAscii(*at) == 'e' || LowerAscii(*at) == 'x')) return std::nullopt;
  static constexpr std::array<double, mostDigits + 1> powersOfTen = {
      1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
      1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19};
  return static_cast<double>(integer) / powersOfTen[static_cast<std::size_t>(decimals)];
}

/// The text up to a binary exponent with two signs, which is none: the library would read the
/// second one as that of the exponent.
std::string_view WithoutTwiceSignedExponent(std::string_view text)
{
  const std::size_t mark = text.find_first_of("pP");
  const bool isTwiceSigned =
      mark != std::string_view::npos && text.substr(mark + 1).starts_with("+-");
  return isTwiceSigned ? text.substr(0, mark) : text;
}

/// The number that the text begins with; nothing where there is none, so that no sign is put to it.
/// Rarely needed, and no part of its caller, which would save registers for it at each number.
[[gnu::noinline]] std::optional<double> ParseMagnitude(std::string_view text)
{
  const bool hex =
      HasHexPrefix(text) &&
      (DigitValue(text[2]) < 16 || (text[2] == '.' && text.size() > 3 && DigitValue(text[3]) < 16));
  if (hex) text = WithoutTwiceSignedExponent(text.substr(2));
  if (text.empty() || text.front() == '-') return std::nullopt;  // a second sign is no number
  double value = 0.0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), value,
                      hex ? std::chars_format::hex : std::chars_format::general);
  if (error == std::errc::invalid_argument) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    const auto length = static_cast<std::size_t>(end - text.data());
    const bool huge = IsHuge(text.substr(0, length), hex ? 'p' : 'e', hex ? 4 : 1);
    return huge ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return value;
}

/// The digits of an integer, saturated one past the unsigned 32-bit range.
std::uint64_t ParseDigits(std::string_view text, int base)
{
  constexpr std::uint64_t limit = std::uint64_t{1} << 32U;
  if (base == 16 && HasHexPrefix(text) && DigitValue(text[2]) < 16) text.remove_prefix(2);
  std::uint64_t value = 0;
  for (const char c : text) {
    const int digit = DigitValue(c);
    if (digit >= base) break;
    value = std::min(limit,
                     value * static_cast<std::uint64_t>(base) + static_cast<std::uint64_t>(digit));
  }
  return value;
}

/// The magnitude of `value` times 1000, rounded to the nearest integer, halves to even; false where
/// this arithmetic does not reach (2^52 and above, infinities, NaN). A double is m * 2^-shift with
/// m below 2^53, so m * 1000 stays below 2^63 and the bits shifted out decide the rounding exactly
/// as the library's does. What is added before the shift carries into the integer when they are
/// more than a half, or a half above an odd integer: a branch here would be guessed wrong half the
/// time.
bool ScaleToThousandths(double value, std::uint64_t& thousandths)
{
  constexpr int mantissaBits = 52;
  constexpr int exponentBias = 1075;
  const auto bits = std::bit_cast<std::uint64_t>(value);
  const int biased = static_cast<int>((bits >> mantissaBits) & 0x7FFU);
  const int shift = exponentBias - biased;
  if (shift < 1) return false;
  if (shift > 63) {
    thousandths = 0;
    return true;
  }
  const std::uint64_t mantissa =
      (bits & ((std::uint64_t{1} << mantissaBits) - 1)) | (std::uint64_t{1} << mantissaBits);
  const std::uint64_t product = mantissa * 1000;
  const std::uint64_t belowHalf = (std::uint64_t{1} << (shift - 1)) - 1;
  thousandths = (product + belowHalf + ((product >> shift) & 1U)) >> shift;
  return true;
}

template <class Number>
std::string Shortest(Number value)
{
  std::array<char, 32> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value);
  return {text.data(), end};
}

/// The texts of the numbers 0 to 999, copied whole with what follows them: what is written next is
/// written over it.
struct DigitTexts {
  using Text = std::array<char, 4>;
  std::array<Text, 1000> padded;  ///< with leading zeros
  std::array<Text, 1000> plain;   ///< without, and in the last place how many digits there are
};

constexpr DigitTexts digitTexts = [] {
  DigitTexts texts{};
  for (std::size_t i = 0; i < 1000; ++i) {
    const DigitTexts::Text all = {static_cast<char>('0' + i / 100),
                                  static_cast<char>('0' + i / 10 % 10),
                                  static_cast<char>('0' + i % 10), '\0'};
    const std::size_t zeros = i >= 100 ? 0 : i >= 10 ? 1 : 2;
    texts.padded[i] = texts.plain[i] = all;
    for (std::size_t digit = zeros; digit < 3; ++digit) texts.plain[i][digit - zeros] = all[digit];
    texts.plain[i][3] = static_cast<char>(3 - zeros);
  }
  return texts;
}();

/// Writes a number below 1000 with its leading zeros, and one character more; the end of it.
char* WriteThreeDigits(char* at, std::uint64_t number)
{
  std::memcpy(at, digitTexts.padded[number].data(), sizeof(DigitTexts::Text));
  return at + 3;
}

/// Writes a number below 1000 and up to three characters more; the end of it.
char* WriteUpToThreeDigits(char* at, std::uint64_t number)
{
  const DigitTexts::Text& text = digitTexts.plain[number];
  std::memcpy(at, text.data(), text.size());
  return at + text.back();
}

/// Writes an integer in three digits at a time, and up to three characters more; the end of it.
[[gnu::noinline]] char* WriteInteger(char* at, std::uint64_t number)
{
  if (number < 1000) return WriteUpToThreeDigits(at, number);
  return WriteThreeDigits(WriteInteger(at, number / 1000), number % 1000);
}

}  // namespace

std::int32_t TruncateToInt32(double value)
{
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<std::int32_t>(value);
  return std::numeric_limits<std::int32_t>::min();
}

double ParseDouble(std::string_view text)
{
  const bool negative = TakeSign(text);
  std::optional<double> magnitude = ParseShortDecimal(text);
  if (!magnitude) magnitude = ParseMagnitude(text);
  if (!magnitude) return 0.0;
  return negative ? -*magnitude : *magnitude;
}

double ParseDouble(std::u16string_view text) { return ParseDouble(Narrow(text)); }

std::int32_t ParseInt32(std::string_view text, int base)
{
  const bool negative = TakeSign(text);
  const std::uint64_t value = ParseDigits(text, base);
  if (negative) {
    return value >= 0x80000000U ? std::numeric_limits<std::int32_t>::min()
                                : -static_cast<std::int32_t>(value);
  }
  return value > 0x7FFFFFFFU ? std::numeric_limits<std::int32_t>::max()
                             : static_cast<std::int32_t>(value);
}

std::int32_t ParseInt32(std::u16string_view text, int base)
{
  return ParseInt32(Narrow(text), base);
}

std::uint32_t ParseUInt32(std::string_view text, int base)
{
  const bool negative = TakeSign(text);
  const std::uint64_t value = ParseDigits(text, base);
  if (value > 0xFFFFFFFFU) return 0xFFFFFFFFU;
  const auto result = static_cast<std::uint32_t>(value);
  return negative ? 0U - result : result;
}

std::uint32_t ParseUInt32(std::u16string_view text, int base)
{
  return ParseUInt32(Narrow(text), base);
}

std::string FormatFixed(double value, int decimals)
{
  // The largest double has 309 digits before the point.
  std::array<char, 400> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::fixed, decimals);
  return {text.data(), end};
}

char* WriteFixed3(char* at, double value)
{
  std::uint64_t thousandths = 0;
  if (!ScaleToThousandths(value, thousandths)) {
    return std::to_chars(at, at + longestFixed3, value, std::chars_format::fixed, 3).ptr;
  }
  *at = '-';
  at += std::signbit(value) ? 1 : 0;
  const std::uint64_t whole = thousandths / 1000;
  at = whole < 1000 ? WriteUpToThreeDigits(at, whole) : WriteInteger(at, whole);
  *at++ = '.';
  return WriteThreeDigits(at, thousandths % 1000);
}

void AppendFixed3(std::string& out, double value)
{
  std::array<char, longestFixed3> text;
  out.append(text.data(), WriteFixed3(text.data(), value));
}

std::string FormatSignedFixed(double value, int decimals, int width)
{
  std::string text = FormatFixed(value, decimals);
  if (text.front() != '-') text.insert(0, 1, '+');
  const auto wanted = static_cast<std::size_t>(width);
  if (text.size() >= wanted) return text;
  if (std::isfinite(value)) {
    text.insert(1, wanted - text.size(), '0');
  } else {
    text.insert(0, wanted - text.size(), ' ');
  }
  return text;
}

std::string FormatHex(std::uint32_t value, int digits)
{
  std::string text;
  do {
    text.insert(0, 1, "0123456789ABCDEF"[value & 0xFU]);
    value >>= 4U;
  } while (value != 0);
  const auto wanted = static_cast<std::size_t>(digits);
  if (text.size() < wanted) text.insert(0, wanted - text.size(), '0');
  return text;
}

std::string FormatShortest(double value) { return Shortest(value); }

std::string FormatShortest(float value) { return Shortest(value); }

}  // namespace hullwright
