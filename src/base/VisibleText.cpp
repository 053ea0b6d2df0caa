#include "base/VisibleText.h"

#include "base/Numbers.h"
#include "base/Text.h"

namespace hullwright {
namespace {

/// Whether a unit of a text shows as nothing, moves the line, or turns the direction of writing.
bool CanNotBeSeen(char16_t unit)
{
  const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
  const bool isMark = unit == 0x061C || (unit >= 0x200B && unit <= 0x200F) ||
                      (unit >= 0x2028 && unit <= 0x202E) || (unit >= 0x2060 && unit <= 0x206F);
  return isControl || isMark || unit == 0xFEFF;
}

}  // namespace

std::string VisibleText(std::u16string_view text, std::u16string_view marked)
{
  std::string visible;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsPairAt(text, i)) {
      visible += Utf8FromWide(text.substr(i++, 2));
    } else if (CanNotBeSeen(unit) || IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
      visible += "\\u" + FormatHex(unit, 4);
    } else {
      if (marked.find(unit) != std::u16string_view::npos) visible += '\\';
      visible += Utf8FromWide(text.substr(i, 1));
    }
  }
  return visible;
}

std::string QuotedText(std::u16string_view text) { return '"' + VisibleText(text, u"\"\\") + '"'; }

}  // namespace hullwright
