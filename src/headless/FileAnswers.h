#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/FileDialogs.h"

namespace hullwright {

/// Answers every question for a file with one path, or not at all.
class FileAnswers : public IFileDialogs {
public:
  std::optional<std::u16string> AskOpen(std::u16string_view extension,
                                        std::u16string_view filter) override
  {
    asked.emplace_back(extension, filter);
    return answer;
  }

  std::optional<std::u16string> answer;
  std::vector<std::pair<std::u16string, std::u16string>> asked;  ///< extension and filter
};

}  // namespace hullwright
