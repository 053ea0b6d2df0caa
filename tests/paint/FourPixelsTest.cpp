#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "paint/Eights.h"
#include "paint/Fours.h"
#include "paint/PixelBlend.h"
#include "paint/RowPair.h"

// What is done to four pixels at once, with the machine's own instructions and without them.

namespace hullwright {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

template <class Lanes>
Bytes Compute(float a, float b, Bytes bytes)
{
  const Lanes x = Lanes::Steps() * Lanes(a) + Lanes(b);
  const Lanes y = (x - Lanes(40.0F)).Abs();
  const Lanes root = (x * x + y * y).Sqrt();
  root.Min(Lanes(255.0F)).Max(Lanes(3.0F)).RaiseBytes(bytes.data());
  return bytes;
}

TEST(FourPixels, AreComputedAlikeOnEveryMachine)
{
  std::mt19937 random(3);
  std::uniform_real_distribution<float> anything(-120.0F, 120.0F);
  for (int i = 0; i < 2000; ++i) {
    const float a = anything(random);
    const float b = anything(random);
    const Bytes bytes = {0, 255, 17, 100};
    EXPECT_EQ(Compute<Four>(a, b, bytes), Compute<PlainFour>(a, b, bytes)) << a << ' ' << b;
  }
}

using Rows = std::array<std::uint8_t, 8>;

Rows Bytes8(const auto& lanes)
{
  Rows bytes = {0, 255, 17, 100, 3, 0, 9, 200};
  lanes.RaiseBytes(bytes.data(), bytes.data() + 4);
  return bytes;
}

template <class Lanes>
std::array<Rows, 3> ComputeRows(int a, int b, int step)
{
  const Lanes none(0);
  const Lanes most(1020);
  const Lanes x = Lanes(a, b) + Lanes::Steps(step);
  const Lanes size = x.Max(none - x);
  const Lanes product = size.Min(most).Product((Lanes(b, a) - x).Max(none).Min(most));
  return {Bytes8(x.Max(none).Min(most)), Bytes8((size.Part(46341) + size).Part(5000).Min(most)),
          Bytes8(product.Part(2000))};
}

TEST(EightPixels, AreComputedAlikeOnEveryMachine)
{
  std::mt19937 random(4);
  for (int i = 0; i < 20000; ++i) {
    const int shift = static_cast<int>(random() % 20U) + 12;
    const int a = static_cast<int>(random()) >> shift;
    const int b = static_cast<int>(random()) >> shift;
    const int step = static_cast<int>(random() % 8000U) - 4000;
    ASSERT_EQ(ComputeRows<Eight>(a, b, step), ComputeRows<PlainEight>(a, b, step))
        << a << ' ' << b << ' ' << step;
  }
}

TEST(EightPixels, SumsStopAtTheEndsOfTheirRange)
{
  const Eight high = Eight(1000000, 30000) + Eight(30000);
  EXPECT_EQ(Bytes8((high - Eight(32767 - 40)).Max(Eight(0)))[0], 10);
  EXPECT_EQ(Bytes8((high - Eight(32767 - 40)).Max(Eight(0)))[5], 10);
  const Eight low = Eight(-1000000, -30000) - Eight(30000);
  EXPECT_EQ(Bytes8(low + Eight(32767) + Eight(9))[0], 2);
}

/// Where two rows begin after some moves, and the distances there, as far as bytes tell.
template <class Pair>
std::array<Rows, 3> ComputeStarts(const BandRow& first, const BandRow& change, int slope)
{
  Pair rows(first, change);
  for (int i = 0; i < 3; ++i) rows.Move();
  const auto start = rows.Start(9, slope, -slope / 3);
  using Lanes = decltype(start.along);
  const Lanes none(0);
  const Lanes most(1020);
  const auto x = [](int number) { return static_cast<std::uint8_t>(number); };
  return {Rows{x(start.upperX), x(start.lowerX)}, Bytes8(start.along.Max(none).Min(most)),
          Bytes8((most - start.across).Max(none).Min(most))};
}

TEST(RowPairs, BeginAlikeOnEveryMachine)
{
  std::mt19937 random(6);
  const auto number = [&random](int size) {
    const std::uint64_t range = std::uint64_t{2} * static_cast<unsigned>(size);
    return static_cast<int>(random() % range) - size;
  };
  for (int i = 0; i < 20000; ++i) {
    const BandRow first = {number(20 << BandRow::pixelBits), number(1500 << BandRow::distanceBits),
                           number(40000 << BandRow::distanceBits)};
    const BandRow change = {number(3 << BandRow::pixelBits), number(700 << BandRow::distanceBits),
                            number(700 << BandRow::distanceBits)};
    const int slope = number(720 << BandRow::distanceBits);
    ASSERT_EQ((ComputeStarts<RowPair>(first, change, slope)),
              (ComputeStarts<PlainRowPair>(first, change, slope)))
        << i;
  }
}

TEST(RowPairs, BeginWhereTheyShouldAndGoOnByRows)
{
  constexpr int pixel = 1 << BandRow::pixelBits;
  constexpr int distance = 1 << BandRow::distanceBits;
  RowPair rows({2 * pixel, 40 * distance, 80 * distance}, {3 * pixel / 2, 4 * distance, 0});
  rows.Move();
  const auto start = rows.Start(4, 8 * distance, 12 * distance);
  EXPECT_EQ(start.upperX, 3);
  EXPECT_EQ(start.lowerX, 4) << "no further than the last one";
  Rows along = {};
  start.along.RaiseBytes(along.data(), along.data() + 4);
  EXPECT_EQ(along[0], (40 + 4 + 3 * 8) / 4);
  EXPECT_EQ(along[4], (40 + 8 + 4 * 8) / 4);
  Rows across = {};
  start.across.RaiseBytes(across.data(), across.data() + 4);
  EXPECT_EQ(across[3], (80 + 3 * 12) / 4);
  EXPECT_EQ(across[7], (80 + 4 * 12) / 4);
}

TEST(FourPixels, BytesAreRaisedNeverLowered)
{
  Bytes bytes = {200, 10, 0, 255};
  Four(100.4F).RaiseBytes(bytes.data());
  EXPECT_EQ(bytes, (Bytes{200, 100, 100, 255}));
}

TEST(FourPixels, AreBlendedAlikeOnEveryMachine)
{
  std::mt19937 random(5);
  for (int i = 0; i < 20000; ++i) {
    std::array<std::uint32_t, 4> fast = {};
    std::ranges::generate(fast, [&] { return static_cast<std::uint32_t>(random()); });
    std::array<std::uint32_t, 4> plain = fast;
    Covers covers = {};
    std::ranges::generate(covers, [&] { return static_cast<std::uint8_t>(random()); });
    const auto colour = static_cast<std::uint32_t>(random());
    PixelBlend{colour}(fast.data(), covers);
    PlainBlend{colour}(plain.data(), covers);
    ASSERT_EQ(fast, plain);
  }
}

TEST(FourPixels, CoverageReachesFromNothingToTheColourItself)
{
  for (const std::uint32_t pixel : {0xffffffffU, 0xff000000U, 0xff336699U, 0U}) {
    std::array<std::uint32_t, 4> pixels = {pixel, pixel, pixel, pixel};
    PixelBlend{0xff804020U}(pixels.data(), {0, 255, 128, 0});
    EXPECT_EQ(pixels[0], pixel);
    EXPECT_EQ(pixels[1], 0xff804020U);
    EXPECT_NEAR(pixels[2] & 255U, ((pixel & 255U) + 0x20U) * 0.5, 1);
    EXPECT_EQ(pixels[3], pixel);
  }
}

}  // namespace
}  // namespace hullwright
