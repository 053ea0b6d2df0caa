#include "model/Anchors.h"

#include <gtest/gtest.h>

namespace hullwright {
namespace {

CAnchors WithIds(std::initializer_list<std::uint32_t> ids)
{
  CAnchors anchors;
  for (const std::uint32_t id : ids) {
    anchors.items.push_back(std::make_unique<CAnchor>());
    anchors.items.back()->id = id;
  }
  return anchors;
}

TEST(Anchors, NewAnchorTakesTheLowestFreeNumber)
{
  EXPECT_EQ(WithIds({}).NewAnchor()->id, 1U);
  EXPECT_EQ(WithIds({1, 2, 4}).NewAnchor()->id, 3U);
  EXPECT_EQ(WithIds({4, 2, 1}).NewAnchor()->id, 3U);
  EXPECT_EQ(WithIds({1, 1, 0, 2}).NewAnchor()->id, 3U);
  EXPECT_EQ(WithIds({2}).NewAnchor()->id, 1U);
}

TEST(Anchors, NewAnchorIsNotAdded)
{
  const CAnchors anchors = WithIds({1});
  EXPECT_EQ(anchors.NewAnchor()->id, anchors.NewAnchor()->id);
  EXPECT_EQ(anchors.items.size(), 1U);
}

TEST(Anchors, AListBeginsEmptyAndEnabled)
{
  EXPECT_TRUE(CAnchors().enabled);
  EXPECT_TRUE(CAnchors().items.empty());
}

TEST(Anchors, AnAnchorBeginsVisibleAndUnmarked)
{
  const CAnchor anchor;
  EXPECT_TRUE(anchor.visible);
  EXPECT_FALSE(anchor.marked);
  EXPECT_EQ(anchor.vessel, 0);
  EXPECT_TRUE(anchor.name.empty());
}

TEST(Anchors, CloneCopiesEveryField)
{
  CAnchor anchor;
  anchor.id = 3;
  anchor.name = u"Bow";
  anchor.visible = false;
  anchor.marked = true;
  anchor.vessel = 4;
  anchor.attachmentX = 1.0;
  anchor.attachmentY = 2.0;
  anchor.easting = 3.0;
  anchor.northing = 4.0;
  anchor.state = -1;
  const auto copy = anchor.Clone();
  EXPECT_EQ(copy->id, 3U);
  EXPECT_EQ(copy->name, u"Bow");
  EXPECT_FALSE(copy->visible);
  EXPECT_TRUE(copy->marked);
  EXPECT_EQ(copy->vessel, 4);
  EXPECT_EQ(copy->attachmentX, 1.0);
  EXPECT_EQ(copy->attachmentY, 2.0);
  EXPECT_EQ(copy->easting, 3.0);
  EXPECT_EQ(copy->northing, 4.0);
  EXPECT_EQ(copy->state, -1);
}

TEST(Anchors, ANullEntryEndsTheClonesWithTheCursorOfTheSource)
{
  CAnchors source = WithIds({3, 4});
  source.items.insert(source.items.begin() + 1, nullptr);
  CAnchors target = WithIds({9});
  target.AppendClones(source);
  ASSERT_EQ(target.items.size(), 2U);
  EXPECT_EQ(target.items[1]->id, 3U);
  EXPECT_EQ(source.cursor, 2U);
  EXPECT_EQ(target.cursor, 0U);
}

TEST(Anchors, ClearEmptiesTheList)
{
  CAnchors anchors = WithIds({1, 2});
  anchors.Clear();
  EXPECT_TRUE(anchors.items.empty());
}

}  // namespace
}  // namespace hullwright
