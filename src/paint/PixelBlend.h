#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace hullwright {

/// What of each of four neighbouring pixels is covered, from 0 to 255.
using Covers = std::array<std::uint8_t, 4>;

/// Blends an opaque colour (0xffRRGGBB) into four neighbouring pixels. A cover of 0 leaves a pixel
/// as it is, 255 makes it the colour.
class PlainBlend {
public:
  explicit PlainBlend(std::uint32_t colour) : colour_(colour) {}

  void operator()(std::uint32_t* pixels, const Covers& covers) const
  {
    for (std::size_t i = 0; i < covers.size(); ++i) pixels[i] = Blended(pixels[i], covers[i]);
  }

private:
  std::uint32_t Blended(std::uint32_t pixel, std::uint32_t cover) const
  {
    const std::uint32_t share = cover + (cover >> 7U);  // of 256, which is cheaper to divide by
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32U; shift += 8U) {
      const std::uint32_t over = ((colour_ >> shift) & 255U) * share;
      const std::uint32_t under = ((pixel >> shift) & 255U) * (256U - share);
      result |= ((over + under + 128U) >> 8U) << shift;
    }
    return result;
  }

  std::uint32_t colour_;
};

#ifdef __SSE2__
/// The same, two pixels at a time: 16 bits for each of their channels.
class FastBlend {
public:
  explicit FastBlend(std::uint32_t colour)
      : colour_(_mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(colour)), _mm_setzero_si128()))
  {
  }

  void operator()(std::uint32_t* pixels, const Covers& covers) const
  {
    const __m128i none = _mm_setzero_si128();
    std::int32_t bytes = 0;
    std::memcpy(&bytes, covers.data(), sizeof(bytes));
    __m128i shares = _mm_unpacklo_epi8(_mm_cvtsi32_si128(bytes), none);
    shares = _mm_add_epi16(shares, _mm_srli_epi16(shares, 7));
    shares = _mm_unpacklo_epi16(shares, shares);
    auto* const place = reinterpret_cast<__m128i*>(pixels);
    const __m128i old = _mm_loadu_si128(place);
    const __m128i first = Blended(_mm_unpacklo_epi8(old, none), _mm_unpacklo_epi32(shares, shares));
    const __m128i last = Blended(_mm_unpackhi_epi8(old, none), _mm_unpackhi_epi32(shares, shares));
    _mm_storeu_si128(place, _mm_packus_epi16(first, last));
  }

private:
  /// Modulo 2 to the 16th, which the result never reaches.
  __m128i Blended(__m128i pixels, __m128i shares) const
  {
    const __m128i change = _mm_mullo_epi16(_mm_sub_epi16(colour_, pixels), shares);
    const __m128i sum = _mm_add_epi16(_mm_slli_epi16(pixels, 8), change);
    return _mm_srli_epi16(_mm_add_epi16(sum, _mm_set1_epi16(128)), 8);
  }

  __m128i colour_;
};
using PixelBlend = FastBlend;
#else
using PixelBlend = PlainBlend;
#endif

}  // namespace hullwright
