#pragma once

#include <string_view>

namespace hullwright {

/// Modal messages to the user.
class IMessageBoxes {
public:
  virtual ~IMessageBoxes() = default;

  /// Shows a text until the user has confirmed it.
  virtual void ShowMessage(std::u16string_view text) = 0;

  /// Asks a question with the buttons Yes and No; true for Yes.
  virtual bool AskYesNo(std::u16string_view question) = 0;
};

}  // namespace hullwright
