#pragma once

#include <algorithm>

#include "paint/Eights.h"

namespace hullwright {

/// A row that a line crosses, or the change from one row to the next, in parts of a pixel or of a
/// distance too small to add up to anything.
struct BandRow {
  static constexpr int pixelBits = 12;    ///< a pixel is that power of 2
  static constexpr int distanceBits = 5;  ///< likewise a distance

  int begin = 0;   ///< of the first pixel that can be covered, from the left edge of an area
  int along = 0;   ///< distance along the line, at that edge
  int across = 0;  ///< distance across it, there

  BandRow operator+(const BandRow& change) const
  {
    return {begin + change.begin, along + change.along, across + change.across};
  }
};

/// Where the pixels of two rows begin, and how far the first one of each lies along the line and
/// across it, the same for four pixels.
template <class Lanes>
struct PairStart {
  int upperX;
  int lowerX;
  Lanes along;
  Lanes across;
};

/// Two neighbouring rows.
class PlainRowPair {
public:
  PlainRowPair(const BandRow& upper, const BandRow& change)
      : upper_(upper), lower_(upper + change), change_(change)
  {
  }

  /// Goes on by a row, so that the lower one becomes the upper one.
  void Move()
  {
    upper_ = upper_ + change_;
    lower_ = lower_ + change_;
  }

  /// The first pixels, which lie up to `lastX` from the edge. The distances change by `alongX` and
  /// `acrossX` from one pixel to the next, which fit 16 bits.
  PairStart<PlainEight> Start(int lastX, int alongX, int acrossX) const
  {
    const int upper = std::clamp(upper_.begin >> BandRow::pixelBits, 0, lastX);
    const int lower = std::clamp(lower_.begin >> BandRow::pixelBits, 0, lastX);
    return {
        upper, lower,
        PlainEight(Whole(upper_.along + upper * alongX), Whole(lower_.along + lower * alongX)),
        PlainEight(Whole(upper_.across + upper * acrossX), Whole(lower_.across + lower * acrossX))};
  }

private:
  static int Whole(int distance) { return distance >> BandRow::distanceBits; }

  BandRow upper_;
  BandRow lower_;
  BandRow change_;
};

#ifdef __SSE2__
/// The same with the instructions that each 64-bit PC has.
class FastRowPair {
public:
  FastRowPair(const BandRow& upper, const BandRow& change)
      : beginChange_(_mm_set1_epi32(change.begin)),
        distanceChange_(Twice(change.along, change.across))
  {
    const __m128i ofLower = _mm_setr_epi32(0, -1, 0, -1);
    begins_ = _mm_add_epi32(_mm_set1_epi32(upper.begin), _mm_and_si128(beginChange_, ofLower));
    distances_ =
        _mm_add_epi32(Twice(upper.along, upper.across), _mm_and_si128(distanceChange_, ofLower));
  }

  void Move()
  {
    begins_ = _mm_add_epi32(begins_, beginChange_);
    distances_ = _mm_add_epi32(distances_, distanceChange_);
  }

  PairStart<FastEight> Start(int lastX, int alongX, int acrossX) const
  {
    const __m128i none = _mm_setzero_si128();
    __m128i x = _mm_srai_epi32(begins_, BandRow::pixelBits);
    x = _mm_max_epi16(_mm_packs_epi32(x, x), none);
    x = _mm_min_epi16(x, _mm_set1_epi16(static_cast<std::int16_t>(lastX)));
    const __m128i slopes = Twice(alongX & 0xffff, acrossX & 0xffff);
    const __m128i changes = _mm_madd_epi16(_mm_unpacklo_epi16(x, none), slopes);
    const __m128i sums = _mm_srai_epi32(_mm_add_epi32(distances_, changes), BandRow::distanceBits);
    const __m128i cut = _mm_packs_epi32(sums, sums);
    const __m128i twice = _mm_unpacklo_epi16(cut, cut);
    return {_mm_extract_epi16(x, 0), _mm_extract_epi16(x, 1),
            FastEight(_mm_unpacklo_epi32(twice, twice)),
            FastEight(_mm_unpackhi_epi32(twice, twice))};
  }

private:
  /// Two numbers, each for both rows.
  static __m128i Twice(int first, int second)
  {
    const __m128i both = _mm_unpacklo_epi32(_mm_cvtsi32_si128(first), _mm_cvtsi32_si128(second));
    return _mm_unpacklo_epi32(both, both);
  }

  __m128i begins_;     ///< upper, lower and both again
  __m128i distances_;  ///< along, of both rows, and across
  __m128i beginChange_;
  __m128i distanceChange_;
};
using RowPair = FastRowPair;
#else
using RowPair = PlainRowPair;
#endif

}  // namespace hullwright
