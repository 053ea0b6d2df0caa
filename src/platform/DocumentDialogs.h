#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace hullwright {

/// What to do with a design that would be left with changes.
enum class LeaveAnswer { Save, Discard, Stay };

/// What the life of a document asks of the user.
class IDocumentDialogs {
public:
  virtual ~IDocumentDialogs() = default;

  /// Asks for a design to read, beginning in a folder; nothing when the user gives up.
  virtual std::optional<std::u16string> AskDesignToOpen(std::u16string_view folder) = 0;

  /// Asks where to write the design, beginning in a folder with a name; nothing when the user gives
  /// up.
  virtual std::optional<std::u16string> AskDesignToSave(std::u16string_view folder,
                                                        std::u16string_view name) = 0;

  /// Asks what to do with the changes of the design of a name.
  virtual LeaveAnswer AskToLeave(std::u16string_view name) = 0;
};

}  // namespace hullwright
