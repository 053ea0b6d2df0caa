#include "dxf/ColourTable.h"

#include <gtest/gtest.h>

#include <sstream>
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
  // Red, green and blue of all 256 entries in hexadecimal digits, sixteen entries in two lines.
  std::istringstream entries(
      "000000 FF0000 FFFF00 00FF00 00FFFF 0000FF FF00FF 000000 "
      "414141 808080 FF0000 FFAAAA BD0000 BD7E7E 810000 815656 "
      "680000 684545 4F0000 4F3535 FF3F00 FFBFAA BD2E00 BD8D7E "
      "811F00 816056 681900 684E45 4F1300 4F3B35 FF7F00 FFD4AA "
      "BD5E00 BD9D7E 814000 816B56 683400 685645 4F2700 4F4235 "
      "FFBF00 FFEAAA BD8D00 BDAD7E 816000 817656 684E00 685F45 "
      "4F3B00 4F4935 FFFF00 FFFFAA BDBD00 BDBD7E 818100 818156 "
      "686800 686845 4F4F00 4F4F35 BFFF00 EAFFAA 8DBD00 ADBD7E "
      "608100 768156 4E6800 5F6845 3B4F00 494F35 7FFF00 D4FFAA "
      "5EBD00 9DBD7E 408100 6B8156 346800 566845 274F00 424F35 "
      "3FFF00 BFFFAA 2EBD00 8DBD7E 1F8100 608156 196800 4E6845 "
      "134F00 3B4F35 00FF00 AAFFAA 00BD00 7EBD7E 008100 568156 "
      "006800 456845 004F00 354F35 00FF3F AAFFBF 00BD2E 7EBD8D "
      "00811F 568160 006819 45684E 004F13 354F3B 00FF7F AAFFD4 "
      "00BD5E 7EBD9D 008140 56816B 006834 456856 004F27 354F42 "
      "00FFBF AAFFEA 00BD8D 7EBDAD 008160 568176 00684E 45685F "
      "004F3B 354F49 00FFFF AAFFFF 00BDBD 7EBDBD 008181 568181 "
      "006868 456868 004F4F 354F4F 00BFFF AAEAFF 008DBD 7EADBD "
      "006081 567681 004E68 455F68 003B4F 35494F 007FFF AAD4FF "
      "005EBD 7E9DBD 004081 566B81 003468 455668 00274F 35424F "
      "003FFF AABFFF 002EBD 7E8DBD 001F81 566081 001968 454E68 "
      "00134F 353B4F 0000FF AAAAFF 0000BD 7E7EBD 000081 565681 "
      "000068 454568 00004F 35354F 3F00FF BFAAFF 2E00BD 8D7EBD "
      "1F0081 605681 190068 4E4568 13004F 3B354F 7F00FF D4AAFF "
      "5E00BD 9D7EBD 400081 6B5681 340068 564568 27004F 42354F "
      "BF00FF EAAAFF 8D00BD AD7EBD 600081 765681 4E0068 5F4568 "
      "3B004F 49354F FF00FF FFAAFF BD00BD BD7EBD 810081 815681 "
      "680068 684568 4F004F 4F354F FF00BF FFAAEA BD008D BD7EAD "
      "810060 815676 68004E 68455F 4F003B 4F3549 FF007F FFAAD4 "
      "BD005E BD7E9D 810040 81566B 680034 684556 4F0027 4F3542 "
      "FF003F FFAABF BD002E BD7E8D 81001F 815660 680019 68454E "
      "4F0013 4F353B 333333 505050 696969 828282 BEBEBE FFFFFF");
  for (std::int32_t index = 0; index < 256; ++index) {
    std::uint32_t entry = 0;
    ASSERT_TRUE(entries >> std::hex >> entry);
    const std::uint32_t colour = entry >> 16U | (entry & 0xFF00U) | (entry & 0xFFU) << 16U;
    EXPECT_EQ(ColourOfIndex(ColourIndex{index}), colour) << index;
  }
  EXPECT_TRUE(entries.eof());
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
