#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Reading and writing of numbers, independent of any locale: the C library's formats and parsers
/// as they behave in the "C" locale on a system whose `long` has 32 bits.
namespace hullwright {

/// Truncates toward zero. NaN and values out of range give the lowest 32-bit integer, as the common
/// processors do, so that no conversion is undefined.
std::int32_t TruncateToInt32(double value);

/// Reads a double as `wcstod` does: leading white space, sign, decimal or hexadecimal digits, "inf"
/// and "nan"; what follows the number is ignored. Text without a number gives 0.0, a value too
/// large gives infinity.
double ParseDouble(std::u16string_view text);
double ParseDouble(std::string_view text);

/// Reads a signed integer as `wcstol` does, saturating at the ends of the 32-bit range.
/// `base` is 10 or 16; base 16 takes an optional "0x".
std::int32_t ParseInt32(std::u16string_view text, int base);
std::int32_t ParseInt32(std::string_view text, int base);

/// Reads an unsigned integer as `wcstoul` does: a minus sign negates modulo 2^32 ("-1" gives
/// 4294967295), and a value too large gives 4294967295.
std::uint32_t ParseUInt32(std::u16string_view text, int base);
std::uint32_t ParseUInt32(std::string_view text, int base);

/// Formats as "%.<decimals>lf"; `decimals` is at most 80.
std::string FormatFixed(double value, int decimals);

/// What `WriteFixed3` needs room for: the largest double has 309 digits before the point.
inline constexpr std::size_t longestFixed3 = 320;

/// Writes "%.3lf", the form of all coordinates in files, without a NUL; the end of it. Room for
/// `longestFixed3` characters must be there.
char* WriteFixed3(char* at, double value);

/// Appends "%.3lf".
void AppendFixed3(std::string& out, double value);

/// Formats as "%+0<width>.<decimals>lf": always a sign, filled with zeros behind it up to `width`.
/// A width of 0 gives "%+.<decimals>lf". Infinities and NaN are filled with blanks in front.
std::string FormatSignedFixed(double value, int decimals, int width = 0);

/// Formats as "%0<digits>X".
std::string FormatHex(std::uint32_t value, int digits);

/// The shortest decimals, with an exponent where that is shorter, that read back as the same
/// number.
std::string FormatShortest(double value);
std::string FormatShortest(float value);

}  // namespace hullwright
