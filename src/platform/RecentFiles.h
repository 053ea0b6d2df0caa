#pragma once

#include <string>
#include <vector>

namespace hullwright {

/// The user's stored list of files opened last, the newest first.
class IRecentFiles {
public:
  virtual ~IRecentFiles() = default;
  virtual std::vector<std::u16string> Read() const = 0;
  virtual void Write(const std::vector<std::u16string>& paths) = 0;
};

}  // namespace hullwright
