#pragma once

#include <string_view>

#include "system/SystemFiles.h"

namespace hullwright {

/// The name that stands for standard input and output.
inline constexpr std::string_view standardStream = "-";

/// An open file; closes itself.
class Descriptor {
public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor()
  {
    if (number_ >= 0) CloseDescriptor(number_);
  }
  int Number() const { return number_; }

private:
  int number_;
};

/// Writes all bytes; false with `errno` where that fails.
bool WriteAll(int file, std::string_view bytes);

/// Copies what is left to read of one file to another; false with `errno` where that fails.
bool Copy(int from, int to);

}  // namespace hullwright
