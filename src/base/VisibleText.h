#pragma once

#include <string>
#include <string_view>

namespace hullwright {

/// A text of any 16-bit units as UTF-8 on one line: what can't be seen, such as a line break, NUL,
/// a lone surrogate or a mark that turns the direction of writing, as the escape of its unit
/// ("\u000A"), and each unit of `marked` behind a backslash.
std::string VisibleText(std::u16string_view text, std::u16string_view marked = {});

/// The same in quotation marks; those of the text, and backslashes, stand behind a backslash.
std::string QuotedText(std::u16string_view text);

}  // namespace hullwright
