#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "paint/Eights.h"
#include "paint/Fours.h"
#include "paint/PixelBlend.h"

// What is done to four pixels at once, with the machine's own instructions and without them.

namespace hullwright {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

template <class Lanes>
Bytes Reckon(float a, float b, Bytes bytes)
{
  const Lanes x = Lanes::Steps() * Lanes(a) + Lanes(b);
  const Lanes y = x - Lanes(40.0F);
  const Lanes root = (x * x + y * y).Sqrt();
  root.Min(Lanes(255.0F)).Max(Lanes(3.0F)).RaiseBytes(bytes.data());
  return bytes;
}

TEST(FourPixels, AreReckonedAlikeOnEveryMachine)
{
  std::mt19937 random(3);
  std::uniform_real_distribution<float> anything(-120.0F, 120.0F);
  for (int i = 0; i < 2000; ++i) {
    const float a = anything(random);
    const float b = anything(random);
    const Bytes bytes = {0, 255, 17, 100};
    EXPECT_EQ(Reckon<Four>(a, b, bytes), Reckon<PlainFour>(a, b, bytes)) << a << ' ' << b;
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
std::array<Rows, 3> ReckonRows(int a, int b, int step)
{
  const Lanes none(0);
  const Lanes most(4080);
  const Lanes x = Lanes(a, b) + Lanes::Steps(step);
  const Lanes size = x.Max(none - x);
  const Lanes product = size.Min(most).Product((Lanes(b, a) - x).Max(none).Min(most));
  return {Bytes8(x.Max(none).Min(most)), Bytes8((size.Part(46341) + size).Part(5000).Min(most)),
          Bytes8(product.Part(7000))};
}

TEST(EightPixels, AreReckonedAlikeOnEveryMachine)
{
  std::mt19937 random(4);
  for (int i = 0; i < 20000; ++i) {
    const int shift = static_cast<int>(random() % 20U) + 12;
    const int a = static_cast<int>(random()) >> shift;
    const int b = static_cast<int>(random()) >> shift;
    const int step = static_cast<int>(random() % 8000U) - 4000;
    ASSERT_EQ(ReckonRows<Eight>(a, b, step), ReckonRows<PlainEight>(a, b, step))
        << a << ' ' << b << ' ' << step;
  }
}

TEST(EightPixels, SumsStopAtTheEndsOfTheirRange)
{
  const Eight high = Eight(1000000, 30000) + Eight(30000);
  EXPECT_EQ(Bytes8((high - Eight(32767 - 160)).Max(Eight(0)))[0], 10);
  EXPECT_EQ(Bytes8((high - Eight(32767 - 160)).Max(Eight(0)))[5], 10);
  const Eight low = Eight(-1000000) - Eight(30000);
  EXPECT_EQ(Bytes8(low + Eight(32767) + Eight(33))[0], 2);
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
