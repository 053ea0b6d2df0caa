#pragma once

#include <filesystem>
#include <string>

#include "model/DesignState.h"

namespace hullwright::bench {

/// Writes a design as a plain program would: `fprintf` for each line, straight from the shapes. The
/// bytes are those of a save of a design with one group, as the benchmarks have it.
class PrintedDesign {
public:
  /// `saved` is the design as the program saved it; what stands before and behind its outlines is
  /// taken from there.
  explicit PrintedDesign(const std::string& saved);

  /// False where the file can't be written.
  bool Write(const DesignState& design, const std::filesystem::path& path) const;

private:
  std::string head_;
  std::string tail_;
};

}  // namespace hullwright::bench
