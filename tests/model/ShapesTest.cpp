#include <gtest/gtest.h>

#include "model/DesignState.h"
#include "model/ShapePolyline.h"

namespace hullwright {
namespace {

OwnedArray<CShapes> Groups(std::initializer_list<std::int32_t> codes)
{
  OwnedArray<CShapes> groups;
  for (const std::int32_t code : codes) groups.push_back(std::make_unique<CShapes>(code));
  return groups;
}

TEST(GetShapes, SideZeroGivesNothingAndAddsNothing)
{
  auto groups = Groups({});
  EXPECT_EQ(GetShapes(groups, 0), nullptr);
  EXPECT_TRUE(groups.empty());
}

TEST(GetShapes, TheFirstGroupOfTheSideOrOfAllSidesAnswers)
{
  auto groups = Groups({1, 63});
  EXPECT_EQ(GetShapes(groups, 1), groups[0].get());
  EXPECT_EQ(GetShapes(groups, 2), groups[1].get());
  EXPECT_EQ(groups.size(), 2U);
}

TEST(GetShapes, AGroupOfAllSidesHidesTheOnesBehindIt)
{
  auto groups = Groups({63, 1});
  EXPECT_EQ(GetShapes(groups, 1), groups[0].get());
}

TEST(GetShapes, MakesOneGroupAndFindsItAgain)
{
  auto groups = Groups({});
  CShapes* const made = GetShapes(groups, 4);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->viewCode, 4);
  EXPECT_EQ(GetShapes(groups, 4), made);
  EXPECT_EQ(groups.size(), 1U);
}

TEST(GetShapes, AGroupWithACodeOfNoSideAnswersForNone)
{
  auto groups = Groups({5});
  for (const std::int32_t side : ViewSide::each) EXPECT_EQ(FindViewGroup(groups, side), nullptr);
  EXPECT_EQ(groups.size(), 1U);
}

TEST(FindViewGroup, MakesNothing)
{
  auto groups = Groups({2});
  EXPECT_EQ(FindViewGroup(groups, 1), nullptr);
  EXPECT_EQ(groups.size(), 1U);
}

TEST(Shapes, AppendClonesCopiesUpToTheFirstNullEntry)
{
  CShapes source;
  source.shapes.push_back(std::make_unique<CShapePolyline>());
  source.shapes.push_back(nullptr);
  source.shapes.push_back(std::make_unique<CShapePolyline>());
  CShapes group;
  group.AppendClones(&source);
  group.AppendClones(nullptr);
  ASSERT_EQ(group.shapes.size(), 1U);
  EXPECT_NE(group.shapes[0], source.shapes[0]);
}

TEST(Shapes, ClearReleasesEveryShape)
{
  CShapes group(1);
  group.shapes.push_back(std::make_unique<CShapePolyline>());
  group.Clear();
  EXPECT_TRUE(group.shapes.empty());
  EXPECT_EQ(group.viewCode, 1);
}

TEST(ClearGroups, EmptiesTheArray)
{
  auto groups = Groups({1, 2});
  ClearGroups(groups);
  EXPECT_TRUE(groups.empty());
}

TEST(DesignState, BeginsWithTheDefaults)
{
  const DesignState design;
  EXPECT_TRUE(design.shapeGroups.empty());
  EXPECT_TRUE(design.anchors->items.empty());
  EXPECT_TRUE(*design.offsetGps == CShapeVertex(10.0, 0.0, 0.0));
  EXPECT_TRUE(*design.offsetTransducer == CShapeVertex(-10.0, 0.0, 0.0));
  EXPECT_TRUE(*design.offsetPivot == CShapeVertex(0.0, 10.0, 0.0));
  EXPECT_EQ(design.unitCode, 9001);
  EXPECT_EQ(design.activeView, 1);
}

}  // namespace
}  // namespace hullwright
