#include "compare/ShapeMatching.h"

#include <cmath>
#include <ctime>
#include <limits>
#include <vector>

#include "compare/NearPairs.h"
#include "support/DesignPair.h"

namespace hullwright::test {
namespace {

class MatchedShapes : public DesignPair {
protected:
  /// Adds a square of side 1 with its lower left corner at a place.
  static void AddSquare(DesignState& design, double x, double y)
  {
    AddLine(design, ViewSide::Top,
            {{x, y, 0.0}, {x + 1.0, y, 0.0}, {x + 1.0, y + 1.0, 0.0}, {x, y + 1.0, 0.0}});
  }
};

TEST(NearPairs, LeaveOutWhatIsAtNoFinitePlace)
{
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double far = std::numeric_limits<double>::infinity();
  const std::vector<GridItem> items = {
      {0, 1.0, none}, {0, none, 1.0}, {0, far, 1.0}, {0, 1.0, 1.0}};
  std::vector<std::size_t> visited;
  ForEachNearPair(items, items, 10.0, [&](std::size_t i, std::size_t k) {
    EXPECT_EQ(i, k);
    visited.push_back(i);
  });
  EXPECT_EQ(visited, std::vector<std::size_t>{3});
}

TEST_F(MatchedShapes, AreEqualBeforeTheyAreMoved)
{
  AddSquare(former, 0.0, 0.0);
  AddSquare(former, 5.0, 0.0);
  AddSquare(current, 5.0, 0.0);
  AddSquare(current, 7.0, 0.0);
  const ShapeDifference moved = OnlyShape();
  EXPECT_EQ(moved.number.former, 1U);
  EXPECT_EQ(moved.number.current, 2U);
  EXPECT_EQ(moved.by, (Place{7.0, 0.0, 0.0}));
}

TEST_F(MatchedShapes, GoTheWayThatMostOfThemWent)
{
  for (int i = 0; i < 9; ++i) AddSquare(former, 3.0 * i, 0.5 * i * i);
  for (int i = 0; i < 9; ++i) {
    if (i != 4) AddSquare(current, 3.0 * i + 0.25, 0.5 * i * i);
  }
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 9U);
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(differences.shapes[i].change, ShapeChange::Moved);
    EXPECT_NEAR(differences.shapes[i].by.x, 0.25, 1e-9);
  }
  EXPECT_EQ(differences.shapes[8].change, ShapeChange::Removed);
  EXPECT_EQ(differences.shapes[8].number.former, 5U);
}

TEST_F(MatchedShapes, GoThatWayAlsoWhereOthersAreNearer)
{
  for (const double z : {0.0, 1.0, 3.0, 7.0}) {  // of which no two are as far apart as others
    AddFormer(ViewSide::Top, {{0, 0, z}, {1, 0, z}, {1, 1, z}});
    AddCurrent(ViewSide::Top, {{0, 0, z + 1.75}, {1, 0, z + 1.75}, {1, 1, z + 1.75}});
  }
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 4U);
  for (const ShapeDifference& shape : differences.shapes) {
    EXPECT_EQ(shape.change, ShapeChange::Moved);
    EXPECT_EQ(shape.by, (Place{0.0, 0.0, 1.75}));
  }
}

TEST_F(MatchedShapes, AreMovedBeforeTheyAreChanged)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 1, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {5, 1, 0}});
  AddCurrent(ViewSide::Top, {{0, 9, 0}, {1, 9, 0}, {2, 9, 0}, {3, 9, 0}, {4, 10, 0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[0].change, ShapeChange::Added);
  EXPECT_EQ(differences.shapes[1].change, ShapeChange::Moved);
  EXPECT_EQ(differences.shapes[1].number, (FormerAndCurrent<std::size_t>{1, 2}));
}

TEST_F(MatchedShapes, ThatAreAllAlikeAreFoundInAnyOrder)
{
  constexpr int count = 100;
  for (int i = 0; i < count; ++i) {
    AddSquare(former, 5.0 * i, 0.0);
    AddSquare(current, 5.0 * (count - 1 - i), 0.5);
  }
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 1U * count);
  for (const ShapeDifference& shape : differences.shapes) {
    EXPECT_EQ(shape.by, (Place{0.0, 0.5, 0.0}));
  }
}

TEST_F(MatchedShapes, WithMostVerticesInCommonBelongTogether)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 1, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 7, 0}, {3, 9, 0}, {4, 8, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {5, 1, 0}});
  const Differences differences = Compare();
  ASSERT_EQ(differences.shapes.size(), 2U);
  EXPECT_EQ(differences.shapes[0].change, ShapeChange::Added);
  EXPECT_EQ(differences.shapes[1].change, ShapeChange::Changed);
  EXPECT_EQ(differences.shapes[1].number, (FormerAndCurrent<std::size_t>{1, 2}));
}

TEST_F(MatchedShapes, WithFewVerticesInCommonDoNot)
{
  AddFormer(ViewSide::Top, {{0, 0, 0}, {1, 0, 0}});
  AddCurrent(ViewSide::Top, {{0, 0, 0}, {5, 5, 0}, {6, 6, 0}, {7, 8, 0}, {8, 7, 0}});
  EXPECT_EQ(Compare().shapes.size(), 2U);
}

TEST_F(MatchedShapes, AreFoundAcrossTheBordersOfCells)
{
  // Multiples of the cells' size of 0.002, so that each change crosses a border.
  for (int i = 0; i < 100; ++i) {
    const double x = 0.002 * i;
    AddFormer(ViewSide::Top, {{x + 0.0004, -x, 0.0}, {x + 10.0 + i, 5.0, 0.0}});
    AddCurrent(ViewSide::Top, {{x - 0.0004, -x - 0.0004, 0.0}, {x + 10.0 + i, 5.0, 0.0}});
  }
  EXPECT_TRUE(Compare().None());
}

TEST_F(MatchedShapes, AreFoundByTheThousandInAShortTime)
{
  // Shapes that are all alike and in one place, and shapes that share a vertex: what is worst.
  constexpr int count = 3000;
  for (int i = 0; i < count; ++i) {
    const double x = 0.01 * i;
    AddFormer(ViewSide::Top, {{0.0, 0.0, 0.0}, {x, 1.0, 0.0}, {x, 3.0, 0.0}});
    AddCurrent(ViewSide::Top, {{0.0, 0.0, 0.0}, {x, 1.0, 0.0}, {x, 2.0, 0.0}});
    AddSquare(former, x, 0.0);
    AddSquare(current, x, 0.5);
  }
  const std::clock_t start = std::clock();
  const Differences differences = Compare();
  const double taken =
      static_cast<double>(std::clock() - start) / static_cast<double>(CLOCKS_PER_SEC);
  EXPECT_EQ(differences.shapes.size(), 2U * count);
  std::size_t changed = 0;
  std::size_t moved = 0;
  for (const ShapeDifference& shape : differences.shapes) {
    changed += shape.change == ShapeChange::Changed ? 1 : 0;
    moved += shape.change == ShapeChange::Moved ? 1 : 0;
  }
  EXPECT_EQ(changed, count * 1U);
  EXPECT_EQ(moved, count * 1U);
  EXPECT_LT(taken, 20.0);  // seconds of the processor, of which it takes a fraction of one
}

}  // namespace
}  // namespace hullwright::test
