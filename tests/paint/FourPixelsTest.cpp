#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "paint/Lanes.h"
#include "paint/PixelBlend.h"

// What is done to four pixels at once, with the machine's own instructions and without them.

namespace hullwright {
namespace {

using Bytes = std::array<std::uint8_t, 4>;

template <class Lanes>
Bytes Reckon(float a, float b, Bytes bytes)
{
  const Lanes x = Lanes::Steps() * Lanes(a) + Lanes(b);
  const Lanes y = (x - Lanes(40.0F)).Size();
  const Lanes root = (x * x + y * y).Root();
  root.Least(Lanes(255.0F)).Most(Lanes(3.0F)).RaiseBytes(bytes.data());
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
    EXPECT_NEAR(pixels[2] & 255U, ((pixel & 255U) + 0x20U) / 2, 1);
    EXPECT_EQ(pixels[3], pixel);
  }
}

}  // namespace
}  // namespace hullwright
