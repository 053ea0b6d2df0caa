#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace hullwright {

/// Whole numbers of eight pixels, four in each of two rows, which stop at the ends of 16 bits.
class PlainEight {
public:
  PlainEight() = default;
  /// The same number, which fits 16 bits, for all.
  explicit PlainEight(int all) { lanes_.fill(static_cast<std::int16_t>(all)); }

  /// The same number for each pixel of a row.
  PlainEight(int upper, int lower)
  {
    for (std::size_t i = 0; i < lanes_.size(); ++i) lanes_[i] = Cut(i < half ? upper : lower);
  }

  /// 0, 1, 2, 3 times a number, in both rows. All fit 16 bits.
  static PlainEight Steps(int number)
  {
    PlainEight steps(0);
    for (std::size_t i = 0; i < steps.lanes_.size(); ++i) {
      steps.lanes_[i] = static_cast<std::int16_t>(static_cast<int>(i % half) * number);
    }
    return steps;
  }

  PlainEight operator+(const PlainEight& b) const
  {
    return With(b, [](int x, int y) { return x + y; });
  }
  PlainEight operator-(const PlainEight& b) const
  {
    return With(b, [](int x, int y) { return x - y; });
  }
  PlainEight Min(const PlainEight& b) const
  {
    return With(b, [](int x, int y) { return std::min(x, y); });
  }
  PlainEight Max(const PlainEight& b) const
  {
    return With(b, [](int x, int y) { return std::max(x, y); });
  }

  /// Numbers from 0 on, times a part of 65536.
  PlainEight Part(int part) const
  {
    return With(*this, [part](int x, int) { return (x * static_cast<std::int64_t>(part)) >> 16U; });
  }

  /// Numbers from 0 to 1023, times others of the same range, by 32.
  PlainEight Product(const PlainEight& b) const
  {
    return With(b, [](int x, int y) { return (x * y) >> 5U; });
  }

  /// Raises the bytes of two rows to a quarter of these numbers, which are from 0 to 1020.
  void RaiseBytes(std::uint8_t* upper, std::uint8_t* lower) const
  {
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
      std::uint8_t& byte = i < half ? upper[i] : lower[i - half];
      byte = std::max(byte, static_cast<std::uint8_t>((lanes_[i] + 2) / 4));
    }
  }

private:
  static constexpr std::size_t half = 4;

  static std::int16_t Cut(std::int64_t number)
  {
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(number, -32768, 32767));
  }

  template <class Operation>
  PlainEight With(const PlainEight& b, Operation operation) const
  {
    PlainEight result(0);
    for (std::size_t i = 0; i < lanes_.size(); ++i) {
      result.lanes_[i] = Cut(operation(int{lanes_[i]}, int{b.lanes_[i]}));
    }
    return result;
  }

  std::array<std::int16_t, 8> lanes_ = {};
};

#ifdef __SSE2__
/// The same with the instructions that each 64-bit PC has.
class FastEight {
public:
  FastEight() = default;
  explicit FastEight(int all) : lanes_(_mm_set1_epi16(static_cast<std::int16_t>(all))) {}
  FastEight(int upper, int lower)
  {
    const __m128i two = _mm_unpacklo_epi32(_mm_cvtsi32_si128(upper), _mm_cvtsi32_si128(lower));
    const __m128i cut = _mm_packs_epi32(two, two);
    const __m128i pairs = _mm_unpacklo_epi16(cut, cut);
    lanes_ = _mm_unpacklo_epi32(pairs, pairs);
  }
  static FastEight Steps(int number)
  {
    const __m128i counts = _mm_setr_epi16(0, 1, 2, 3, 0, 1, 2, 3);
    return FastEight(_mm_mullo_epi16(_mm_set1_epi16(static_cast<std::int16_t>(number)), counts));
  }
  FastEight operator+(FastEight b) const { return FastEight(_mm_adds_epi16(lanes_, b.lanes_)); }
  FastEight operator-(FastEight b) const { return FastEight(_mm_subs_epi16(lanes_, b.lanes_)); }
  FastEight Min(FastEight b) const { return FastEight(_mm_min_epi16(lanes_, b.lanes_)); }
  FastEight Max(FastEight b) const { return FastEight(_mm_max_epi16(lanes_, b.lanes_)); }
  FastEight Part(int part) const
  {
    return FastEight(_mm_mulhi_epu16(lanes_, _mm_set1_epi16(static_cast<std::int16_t>(part))));
  }
  FastEight Product(FastEight b) const
  {
    return FastEight(_mm_mulhi_epu16(_mm_slli_epi16(lanes_, 6), _mm_slli_epi16(b.lanes_, 5)));
  }
  void RaiseBytes(std::uint8_t* upper, std::uint8_t* lower) const
  {
    std::int32_t first = 0;
    std::int32_t last = 0;
    std::memcpy(&first, upper, sizeof(first));
    std::memcpy(&last, lower, sizeof(last));
    const __m128i old = _mm_unpacklo_epi32(_mm_cvtsi32_si128(first), _mm_cvtsi32_si128(last));
    const __m128i words = _mm_srli_epi16(_mm_add_epi16(lanes_, _mm_set1_epi16(2)), 2);
    const __m128i raised = _mm_max_epu8(old, _mm_packus_epi16(words, words));
    first = _mm_cvtsi128_si32(raised);
    last = _mm_cvtsi128_si32(_mm_srli_epi64(raised, 32));
    std::memcpy(upper, &first, sizeof(first));
    std::memcpy(lower, &last, sizeof(last));
  }

  explicit FastEight(__m128i lanes) : lanes_(lanes) {}

private:
  __m128i lanes_ = {};
};
using Eight = FastEight;
#else
using Eight = PlainEight;
#endif

}  // namespace hullwright
