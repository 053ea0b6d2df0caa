#include <gtest/gtest.h>

#include "base/Code.h"
#include "model/DesignState.h"
#include "model/ShapePolyline.h"
#include "support/PlainShape.h"

namespace hullwright {
namespace {

OwnedArray<CShapes> Groups(std::initializer_list<ViewSide> codes)
{
  OwnedArray<CShapes> groups;
  for (const ViewSide code : codes) groups.push_back(std::make_unique<CShapes>(code));
  return groups;
}

TEST(GetShapes, SideZeroGivesNothingAndAddsNothing)
{
  auto groups = Groups({});
  EXPECT_EQ(GetShapes(groups, ViewSide::None), nullptr);
  EXPECT_TRUE(groups.empty());
}

TEST(GetShapes, TheFirstGroupOfTheSideOrOfAllSidesAnswers)
{
  auto groups = Groups({ViewSide::Top, ViewSide::All});
  EXPECT_EQ(GetShapes(groups, ViewSide::Top), groups[0].get());
  EXPECT_EQ(GetShapes(groups, ViewSide::Bottom), groups[1].get());
  EXPECT_EQ(groups.size(), 2U);
}

TEST(GetShapes, AGroupOfAllSidesHidesTheOnesBehindIt)
{
  auto groups = Groups({ViewSide::All, ViewSide::Top});
  EXPECT_EQ(GetShapes(groups, ViewSide::Top), groups[0].get());
}

TEST(GetShapes, MakesOneGroupAndFindsItAgain)
{
  auto groups = Groups({});
  CShapes* const made = GetShapes(groups, ViewSide::Right);
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->viewCode, ViewSide::Right);
  EXPECT_EQ(GetShapes(groups, ViewSide::Right), made);
  EXPECT_EQ(groups.size(), 1U);
}

TEST(GetShapes, AGroupWithACodeOfNoSideAnswersForNone)
{
  auto groups = Groups({ViewSide{5}});
  for (const ViewSide side : eachViewSide) EXPECT_EQ(FindViewGroup(groups, side), nullptr);
  EXPECT_EQ(groups.size(), 1U);
}

TEST(FindViewGroup, MakesNothing)
{
  auto groups = Groups({ViewSide::Bottom});
  EXPECT_EQ(FindViewGroup(groups, ViewSide::Top), nullptr);
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
  EXPECT_EQ(source.cursor, 2U);
  EXPECT_EQ(group.cursor, 0U);
}

TEST(Shapes, AppendClonesTakesOverThatAShapeHasNoCopy)
{
  CShapes source;
  source.shapes.push_back(std::make_unique<test::PlainShape>());
  source.shapes.push_back(std::make_unique<CShapePolyline>());
  CShapes group;
  group.AppendClones(&source);
  ASSERT_EQ(group.shapes.size(), 2U);
  EXPECT_EQ(group.shapes[0], nullptr);
  EXPECT_NE(group.shapes[1], nullptr);
}

TEST(Shapes, BeginForNoSideAndEmpty)
{
  EXPECT_EQ(NumberOf(CShapes().viewCode), 0);
  EXPECT_TRUE(CShapes().shapes.empty());
}

TEST(Shapes, ClearReleasesEveryShape)
{
  CShapes group(ViewSide::Top);
  group.shapes.push_back(std::make_unique<CShapePolyline>());
  const std::size_t capacity = group.shapes.capacity();
  group.Clear();
  EXPECT_TRUE(group.shapes.empty());
  EXPECT_EQ(group.shapes.capacity(), capacity);
  EXPECT_EQ(group.viewCode, ViewSide::Top);
}

TEST(ClearGroups, EmptiesTheArray)
{
  auto groups = Groups({ViewSide::Top, ViewSide::Bottom});
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
  EXPECT_EQ(design.unitCode, UnitCode::Metre);
  EXPECT_EQ(design.activeView, ViewSide::Top);
}

}  // namespace
}  // namespace hullwright
