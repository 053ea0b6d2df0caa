#pragma once

#include <string>
#include <string_view>

namespace hullwright {

/// What became of a file whose save failed.
enum class Restored {
  Nothing,   ///< there was no file, and there is none
  AsBefore,  ///< it holds what it held before
  Damaged,   ///< it could not be given its bytes back
  Unknown    ///< what it held could not be read
};

/// Keeps what a file held before it is saved over.
class IFormerVersions {
public:
  virtual ~IFormerVersions() = default;

  /// Copies a file aside. Where the copy lies; empty where there is no file, or where the copy
  /// can't be written. A file that is damaged since it was kept last is not copied again.
  virtual std::u16string Keep(std::u16string_view path) = 0;

  /// The save was whole: what was kept last need not be put back.
  virtual void Release() = 0;

  /// The save failed: gives the file that was kept last its bytes back, or takes away what was
  /// written where there was none.
  virtual Restored PutBack() = 0;
};

}  // namespace hullwright
