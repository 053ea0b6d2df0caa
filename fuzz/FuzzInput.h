#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace hullwright {

/// Ends the run with a finding unless the condition holds.
inline void Require(bool condition)
{
  if (!condition) __builtin_trap();
}

/// Takes values from the input of a target; behind its end all is zero.
class FuzzInput {
public:
  FuzzInput(const std::uint8_t* data, std::size_t size) : at_(data), left_(size) {}

  bool AtEnd() const { return left_ == 0; }

  template <class Value>
  Value Take()
  {
    Value value{};
    const std::size_t taken = std::min(left_, sizeof value);
    if (taken != 0) std::memcpy(&value, at_, taken);
    at_ += taken;
    left_ -= taken;
    return value;
  }

  unsigned Byte() { return Take<std::uint8_t>(); }
  unsigned Below(unsigned limit) { return Byte() % limit; }

private:
  const std::uint8_t* at_;
  std::size_t left_;
};

}  // namespace hullwright
