#include "file/AnchorListReader.h"

#include <gtest/gtest.h>

#include "headless/KeptMessages.h"
#include "support/TempFolder.h"

namespace hullwright {
namespace {

class AnchorList : public testing::Test {
protected:
  int Read(std::string_view content)
  {
    return reader.Read(folder.Write("a.xml", "<anchors>" + std::string(content) + "</anchors>"));
  }

  KeptMessages messages;
  test::TempFolder folder;
  CAnchors anchors;
  CAnchorListReader reader{anchors, messages};
};

TEST_F(AnchorList, ReadsEveryKey)
{
  ASSERT_EQ(Read("<anchor><id>-1</id><visible>0</visible><state>3</state><vessel>65538</vessel>"
                 "<attachmentX>1.5</attachmentX><attachmentY>2.5</attachmentY>"
                 "<easting>500000.25</easting><northing>5800000.5</northing><name>Bow</name>"
                 "</anchor>"),
            0);
  ASSERT_EQ(anchors.items.size(), 1U);
  const CAnchor& anchor = *anchors.items[0];
  EXPECT_EQ(anchor.id, 4294967295U);
  EXPECT_FALSE(anchor.visible);
  EXPECT_EQ(anchor.state, 3);
  EXPECT_EQ(anchor.vessel, 2);
  EXPECT_EQ(anchor.attachmentX, 1.5);
  EXPECT_EQ(anchor.attachmentY, 2.5);
  EXPECT_EQ(anchor.easting, 500000.25);
  EXPECT_EQ(anchor.northing, 5800000.5);
  EXPECT_EQ(anchor.name, u"Bow");
}

TEST_F(AnchorList, AnythingButZeroIsVisible)
{
  ASSERT_EQ(Read("<anchor><visible>2</visible></anchor><anchor><visible>x</visible></anchor>"
                 "<anchor><visible>9</visible></anchor>"),
            0);
  EXPECT_TRUE(anchors.items.at(0)->visible);
  EXPECT_FALSE(anchors.items.at(1)->visible);
  EXPECT_TRUE(anchors.items.at(2)->visible);
}

TEST_F(AnchorList, WhatStandsOutsideAnAnchorLeavesTheListAsItIs)
{
  ASSERT_EQ(Read("<id>5</id><name>none</name>"), 0);
  EXPECT_TRUE(anchors.items.empty());
}

TEST_F(AnchorList, ReadingAddsToTheList)
{
  ASSERT_EQ(Read("<anchor/>"), 0);
  ASSERT_EQ(Read("<anchor/>"), 0);
  EXPECT_EQ(anchors.items.size(), 2U);
}

TEST_F(AnchorList, AMalformedListKeepsWhatWasComplete)
{
  EXPECT_EQ(Read("<anchor><id>1</id></anchor><anchor>"), -1);
  EXPECT_EQ(anchors.items.size(), 1U);
}

}  // namespace
}  // namespace hullwright
