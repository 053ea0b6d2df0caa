#pragma once

#include <string>
#include <string_view>

namespace hullwright {

/// Keeps what a file held before it is saved over.
class IFormerVersions {
public:
  virtual ~IFormerVersions() = default;

  /// Copies a file aside. Where the copy lies; empty where there is no file, or where the copy
  /// can't be written.
  virtual std::u16string Keep(std::u16string_view path) = 0;

  /// Gives the file that was kept last its bytes back, if it has others now. True when it holds
  /// them.
  virtual bool PutBack() = 0;
};

}  // namespace hullwright
