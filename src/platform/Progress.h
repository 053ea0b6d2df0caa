#pragma once

#include <string_view>

namespace hullwright {

/// Where something that takes its time reports how far it is: a start with what goes on, then
/// percentages, then the end. Each report is shown before the call returns.
class IProgress {
public:
  virtual ~IProgress() = default;
  virtual void StartProgress(std::string_view text) = 0;
  virtual void ShowProgress(int percent) = 0;
  virtual void EndProgress() = 0;
};

}  // namespace hullwright
