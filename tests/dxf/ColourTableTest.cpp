#include "dxf/ColourTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace hullwright {
namespace {

TEST(ColourTable, HasTheKnownEntries)
{
  const std::vector<std::pair<std::int32_t, std::uint32_t>> known = {
      {0, 0x000000},   {1, 0x0000FF},   {2, 0x00FFFF},   {3, 0x00FF00},   {4, 0xFFFF00},
      {5, 0xFF0000},   {6, 0xFF00FF},   {7, 0x000000},   {8, 0x414141},   {9, 0x808080},
      {10, 0x0000FF},  {11, 0xAAAAFF},  {30, 0x007FFF},  {64, 0x008160},  {100, 0x3FFF00},
      {141, 0xFFEAAA}, {178, 0x4F0000}, {200, 0xFF00BF}, {249, 0x3B354F}, {250, 0x333333},
      {251, 0x505050}, {252, 0x696969}, {253, 0x828282}, {254, 0xBEBEBE}, {255, 0xFFFFFF}};
  for (const auto& [index, colour] : known)
    EXPECT_EQ(ColourOfIndex(ColourIndex{index}), colour) << index;
}

TEST(ColourTable, HasNoSlipInAnyEntry)
{
  // Sums of the three channels over all 256 entries, so that no digit can slip.
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
  for (std::int32_t index = 0; index < 256; ++index) {
    const std::uint32_t colour = ColourOfIndex(ColourIndex{index});
    red += colour & 0xFFU;
    green += colour >> 8U & 0xFFU;
    blue += colour >> 16U & 0xFFU;
  }
  EXPECT_EQ(red, 25935U);
  EXPECT_EQ(green, 25935U);
  EXPECT_EQ(blue, 25935U);
}

TEST(ColourTable, IsBlackBeyondItsEnds)
{
  for (const std::int32_t index : {-1, -7, 256, 257, 2147483647, -2147483647 - 1}) {
    EXPECT_EQ(ColourOfIndex(ColourIndex{index}), 0U) << index;
  }
}

TEST(ColourTable, TheNearestIsTheFirstOfTheBest)
{
  EXPECT_EQ(NearestColourIndex(0x000000), ColourIndex{0});  // not 7, which is black as well
  EXPECT_EQ(NearestColourIndex(0x0000FF), ColourIndex{1});  // not 10
  EXPECT_EQ(NearestColourIndex(16711680), ColourIndex{5});  // blue
  EXPECT_EQ(NearestColourIndex(0xFFFFFF), ColourIndex{255});
  EXPECT_EQ(NearestColourIndex(0x00FF00FE), ColourIndex{6});  // nearly magenta
  EXPECT_EQ(NearestColourIndex(0x7F000000), ColourIndex{0});  // what stands above plays no part
  EXPECT_EQ(NearestColourIndex(0x818181), ColourIndex{9});    // as near to 808080 as to 828282
}

TEST(ColourTable, TheNearestWeighsAllChannelsAlike)
{
  // With another weight of any channel, or without the squares, other entries are nearest.
  EXPECT_EQ(NearestColourIndex(0x4751E0), ColourIndex{13});
  EXPECT_EQ(NearestColourIndex(0xD09DD5), ColourIndex{213});
  EXPECT_EQ(NearestColourIndex(0x4EE84D), ColourIndex{93});
  EXPECT_EQ(NearestColourIndex(0xE84D4D), ColourIndex{173});
}

}  // namespace
}  // namespace hullwright
