#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/MessageBoxes.h"

namespace hullwright {

/// Keeps messages and questions instead of showing them.
class KeptMessages : public IMessageBoxes {
public:
  void ShowMessage(std::u16string_view text) override
  {
    shown.emplace_back(text);
    if (onShow) onShow();
  }
  bool AskYesNo(std::u16string_view question) override
  {
    asked.emplace_back(question);
    if (onQuestion) onQuestion();
    return answer;
  }

  std::vector<std::u16string> shown;
  std::vector<std::u16string> asked;
  bool answer = false;               ///< to every question
  std::function<void()> onShow;      ///< runs while the message is open
  std::function<void()> onQuestion;  ///< runs while the question is open
};

}  // namespace hullwright
