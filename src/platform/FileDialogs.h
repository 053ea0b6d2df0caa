#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hullwright {

/// Asks the user for files.
class IFileDialogs {
public:
  virtual ~IFileDialogs() = default;

  /// Asks for a file to read; nothing when the user gives up. `filter` is a row of pairs of a text
  /// and its pattern, "Text|*.ext|", ended by one more "|".
  virtual std::optional<std::u16string> AskOpen(std::u16string_view extension,
                                                std::u16string_view filter) = 0;
};

}  // namespace hullwright
