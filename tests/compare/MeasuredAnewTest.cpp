#include <cmath>
#include <ctime>
#include <limits>
#include <utility>

#include "support/DesignPair.h"

namespace hullwright::test {
namespace {

class OutlineMeasuredAnew : public DesignPair {
protected:
  /// The way of vertex `i` of outline `number` in the new survey, at most 0.09 on each axis.
  static CShapeVertex Way(int number, int i)
  {
    return {0.09 * std::sin(7.0 * number + i), 0.09 * std::cos(3.0 * number + 5.0 * i), 0.0};
  }

  /// Adds a frame of size 4 to both designs, whose vertices have gone ways of their own.
  void AddFrame(int number, double x, double y)
  {
    CShapePolyline& formerLine = AddFormer(ViewSide::Top, {});
    CShapePolyline& currentLine = AddCurrent(ViewSide::Top, {});
    int i = 0;
    for (const auto& [dx, dy] : {std::pair(0.0, 0.0), {4.0, 0.0}, {4.0, 3.0}, {0.0, 3.0}}) {
      const CShapeVertex way = Way(number, i++);
      formerLine.AddVertex(x + dx, y + dy, 1.0);
      currentLine.AddVertex(x + dx + way.x, y + dy + way.y, 1.0);
    }
  }

  /// Compares a line of size 10 with one whose ends went by these ways along it and across.
  Differences CompareEnds(const CShapeVertex& first, const CShapeVertex& second)
  {
    ClearGroups(former.shapeGroups);
    ClearGroups(current.shapeGroups);
    AddFormer(ViewSide::Top, {{0, 0, 0}, {10, 0, 0}});
    AddCurrent(ViewSide::Top, {first, {10.0 + second.x, second.y, second.z}});
    return Compare();
  }
};

TEST_F(OutlineMeasuredAnew, IsChangedVertexByVertex)
{
  AddFrame(1, 100.0, -50.0);
  const ShapeDifference changed = OnlyShape();
  EXPECT_EQ(changed.change, ShapeChange::Changed);
  ASSERT_EQ(changed.vertices.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(changed.vertices[i].number, (FormerAndCurrent<std::size_t>{i + 1, i + 1}));
  }
  EXPECT_FALSE(changed.reversed);
}

TEST_F(OutlineMeasuredAnew, KeepsEachVertexWithinATenthOfItsSize)
{
  EXPECT_EQ(CompareEnds({0.1, 0, 0}, {0, 0.99, 0}).shapes.size(), 1U);
  EXPECT_EQ(CompareEnds({0, 0, 0.99}, {0.1, 0, 0}).shapes.size(), 1U);
  EXPECT_EQ(CompareEnds({0.1, 0, 0}, {0, 1.01, 0}).shapes.size(), 2U);
  EXPECT_EQ(CompareEnds({0.8, 0.7, 0}, {0, 0.1, 0}).shapes.size(), 2U);   // 1.06 in all
  EXPECT_EQ(CompareEnds({0.9, 0, 0}, {-0.9, 0.1, 0}).shapes.size(), 2U);  // its new size is 8.2
}

TEST_F(OutlineMeasuredAnew, HasAsManyVerticesOnTheSameSide)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {5, 0, 0}, {10, 0, 0}});
  AddCurrent(ViewSide::Top, {{0.1, 0, 0}, {10.2, 0, 0}});
  AddCurrent(ViewSide::Left, {{0.1, 0, 0}, {5.2, 0, 0}, {10.3, 0, 0}});
  EXPECT_EQ(Compare().shapes.size(), 3U);
}

TEST_F(OutlineMeasuredAnew, IsTheNearestOne)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {10, 0, 0}});
  AddCurrent(ViewSide::Top, {{0, 0.5, 0}, {10, 0.6, 0}});
  AddCurrent(ViewSide::Top, {{0, -0.1, 0}, {10, 0.3, 0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[0].change, ShapeChange::Added);
  EXPECT_EQ(differences.shapes[1].number, (FormerAndCurrent<std::size_t>{1, 2}));
}

TEST_F(OutlineMeasuredAnew, GoesBehindOneWithMostVerticesInCommon)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {10, 5, 0}});
  AddCurrent(ViewSide::Top, {{0, 0.1, 0}, {5, 0.2, 0}, {10, 0.3, 0}, {10, 5.1, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {20, 9, 0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[0].change, ShapeChange::Added);
  EXPECT_EQ(differences.shapes[1].number.current, 2U);
}

TEST_F(OutlineMeasuredAnew, GoesBeforeOneWithHalfOfTheVerticesInCommon)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {10, 0, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {0, 10, 0}});
  AddCurrent(ViewSide::Top, {{0, 0.1, 0}, {10, 0.2, 0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[1].number.current, 2U);
}

TEST_F(OutlineMeasuredAnew, IsNoneWithoutASizeOrAFiniteNumber)
{
  constexpr double infinity = std::numeric_limits<double>::infinity();
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  for (const double odd : {0.0, infinity, none}) {
    ClearGroups(former.shapeGroups);
    ClearGroups(current.shapeGroups);
    AddFormer(ViewSide::Top, {{0, 0, 0}, {odd, 0, 0}});
    AddCurrent(ViewSide::Top, {{1, 0, 0}, {odd == 0.0 ? 1.1 : odd, 2, 0}});
    EXPECT_EQ(Compare().shapes.size(), 2U) << odd;
  }
  ClearGroups(former.shapeGroups);
  ClearGroups(current.shapeGroups);
  AddCurrent(ViewSide::Top, {});
  EXPECT_EQ(OnlyShape().change, ShapeChange::Added);
}

TEST_F(OutlineMeasuredAnew, IsFoundAlsoAcrossAPowerOfTwoInSize)
{
  for (int i = 0; i < 40; ++i) {
    const double size = 7.9 + 0.01 * i;
    ClearGroups(former.shapeGroups);
    ClearGroups(current.shapeGroups);
    AddFormer(ViewSide::Top, {{100, 100, 0}, {100 + size, 100, 0}});
    AddCurrent(ViewSide::Top, {{99.7, 99.9, 0}, {100.4 + size, 100.1, 0}});
    EXPECT_EQ(Compare().shapes.size(), 1U) << size;
    std::swap(former.shapeGroups, current.shapeGroups);
    EXPECT_EQ(Compare().shapes.size(), 1U) << size;
  }
}

TEST_F(OutlineMeasuredAnew, IsFoundByTheThousandInAShortTime)
{
  constexpr int count = 5000;
  for (int i = 0; i < count; ++i) AddFrame(i, 0.5 * (i % 71), 0.5 * std::floor(i / 71.0));
  const std::clock_t start = std::clock();
  const Differences differences = Compare();
  const double taken =
      static_cast<double>(std::clock() - start) / static_cast<double>(CLOCKS_PER_SEC);
  ASSERT_EQ(differences.shapes.size(), 1U * count);
  for (const ShapeDifference& shape : differences.shapes) {
    EXPECT_EQ(shape.change, ShapeChange::Changed);
    EXPECT_EQ(shape.number.former, shape.number.current);
  }
  EXPECT_LT(taken, 20.0);  // seconds of the processor, of which it takes a fraction of one
}

}  // namespace
}  // namespace hullwright::test
