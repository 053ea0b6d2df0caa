#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace hullwright {

/// Numbers of four neighbouring pixels, computed with at once, on any machine.
class PlainFour {
public:
  explicit PlainFour(float all) { lanes_.fill(all); }

  /// 0, 1, 2, 3.
  static PlainFour Steps()
  {
    PlainFour steps(0.0F);
    steps.lanes_ = {0.0F, 1.0F, 2.0F, 3.0F};
    return steps;
  }

  /// The numbers of an array.
  static PlainFour Of(const std::array<float, 4>& numbers)
  {
    PlainFour result(0.0F);
    result.lanes_ = numbers;
    return result;
  }
  std::array<float, 4> Numbers() const { return lanes_; }

  PlainFour operator+(const PlainFour& b) const
  {
    return With(b, [](float x, float y) { return x + y; });
  }
  PlainFour operator-(const PlainFour& b) const
  {
    return With(b, [](float x, float y) { return x - y; });
  }
  PlainFour operator*(const PlainFour& b) const
  {
    return With(b, [](float x, float y) { return x * y; });
  }
  PlainFour Min(const PlainFour& b) const
  {
    return With(b, [](float x, float y) { return x < y ? x : y; });
  }
  PlainFour Max(const PlainFour& b) const
  {
    return With(b, [](float x, float y) { return x > y ? x : y; });
  }
  PlainFour Abs() const
  {
    return With(*this, [](float x, float) { return std::abs(x); });
  }
  PlainFour Sqrt() const
  {
    return With(*this, [](float x, float) { return std::sqrt(x); });
  }

  /// Raises four bytes to these numbers, which are from 0 to 255 and are rounded to even.
  void RaiseBytes(std::uint8_t* bytes) const
  {
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
      bytes[i] = std::max(bytes[i], static_cast<std::uint8_t>(std::lrint(lanes_[i])));
    }
  }

private:
  template <class Operation>
  PlainFour With(const PlainFour& b, Operation operation) const
  {
    PlainFour result(0.0F);
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
      result.lanes_[i] = operation(lanes_[i], b.lanes_[i]);
    }
    return result;
  }

  std::array<float, 4> lanes_;
};

#ifdef __SSE2__
/// The same, to the last bit, with the instructions that each 64-bit PC has.
class FastFour {
public:
  explicit FastFour(float all) : lanes_(_mm_set1_ps(all)) {}
  static FastFour Steps() { return FastFour(_mm_setr_ps(0.0F, 1.0F, 2.0F, 3.0F)); }
  static FastFour Of(const std::array<float, 4>& numbers)
  {
    return FastFour(_mm_loadu_ps(numbers.data()));
  }
  std::array<float, 4> Numbers() const
  {
    std::array<float, 4> numbers;
    _mm_storeu_ps(numbers.data(), lanes_);
    return numbers;
  }
  FastFour operator+(FastFour b) const { return FastFour(_mm_add_ps(lanes_, b.lanes_)); }
  FastFour operator-(FastFour b) const { return FastFour(_mm_sub_ps(lanes_, b.lanes_)); }
  FastFour operator*(FastFour b) const { return FastFour(_mm_mul_ps(lanes_, b.lanes_)); }
  FastFour Min(FastFour b) const { return FastFour(_mm_min_ps(lanes_, b.lanes_)); }
  FastFour Max(FastFour b) const { return FastFour(_mm_max_ps(lanes_, b.lanes_)); }
  FastFour Abs() const { return FastFour(_mm_andnot_ps(_mm_set1_ps(-0.0F), lanes_)); }
  FastFour Sqrt() const { return FastFour(_mm_sqrt_ps(lanes_)); }
  void RaiseBytes(std::uint8_t* bytes) const
  {
    std::int32_t four = 0;
    std::memcpy(&four, bytes, sizeof(four));
    const __m128i words = _mm_packs_epi32(_mm_cvtps_epi32(lanes_), _mm_setzero_si128());
    const __m128i raised = _mm_max_epu8(_mm_cvtsi32_si128(four), _mm_packus_epi16(words, words));
    four = _mm_cvtsi128_si32(raised);
    std::memcpy(bytes, &four, sizeof(four));
  }

private:
  explicit FastFour(__m128 lanes) : lanes_(lanes) {}

  __m128 lanes_;
};
using Four = FastFour;
#else
using Four = PlainFour;
#endif

}  // namespace hullwright
