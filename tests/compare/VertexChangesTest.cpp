#include "compare/VertexChanges.h"

#include <gtest/gtest.h>

#include <string>

namespace hullwright {
namespace {

const Tolerance tolerance(0.001);

/// An outline on a line, of places by their x.
std::vector<Place> Outline(std::initializer_list<double> values)
{
  std::vector<Place> places;
  for (const double x : values) places.push_back({x, 0.0, 0.0});
  return places;
}

/// "3>4" for a vertex that moved, "+4" for one that was added, "-3" for one that was removed.
std::string Changes(const std::vector<Place>& former, const std::vector<Place>& current)
{
  std::string text;
  for (const VertexDifference& vertex : CompareVertices(former, current, tolerance)) {
    const std::string formerNumber = std::to_string(vertex.number.former);
    const std::string currentNumber = std::to_string(vertex.number.current);
    text += text.empty() ? "" : " ";
    text += vertex.number.former == 0    ? "+" + currentNumber
            : vertex.number.current == 0 ? "-" + formerNumber
                                         : formerNumber + ">" + currentNumber;
  }
  return text;
}

TEST(ComparedVertices, AreNoneOfEqualOutlines)
{
  EXPECT_EQ(Changes(Outline({1, 2, 3}), Outline({1, 2, 3.0005})), "");
  EXPECT_EQ(Changes({}, {}), "");
}

TEST(ComparedVertices, MovedWhereTheOthersStay)
{
  EXPECT_EQ(Changes(Outline({1, 2, 3, 4}), Outline({1, 9, 3, 8})), "2>2 4>4");
}

TEST(ComparedVertices, AddedAndRemovedLeaveTheOthersAlone)
{
  EXPECT_EQ(Changes(Outline({1, 2, 3}), Outline({1, 2, 7, 3})), "+3");
  EXPECT_EQ(Changes(Outline({1, 2, 3}), Outline({2, 3})), "-1");
  EXPECT_EQ(Changes(Outline({1, 2, 3, 4, 5}), Outline({0, 1, 3, 4, 6, 7})), "+1 -2 5>5 +6");
  EXPECT_EQ(Changes(Outline({1, 2, 3, 4, 0}), Outline({0, 9, 1, 2, 3, 4})), "+1 +2 -5");
  EXPECT_EQ(Changes({}, Outline({1, 2})), "+1 +2");
}

TEST(ComparedVertices, AllRemovedBetweenTheCommonEndsThoughOneStandsWhereAnEndDoes)
{
  EXPECT_EQ(Changes(Outline({1, 7, 3, 8, 3}), Outline({1, 3})), "-2 -3 -4");
}

TEST(ComparedVertices, OfTwoThatChangedPlacesTheSameOneStaysInBothDirections)
{
  EXPECT_EQ(Changes(Outline({1, 2}), Outline({2, 1})), "-1 +2");
  EXPECT_EQ(Changes(Outline({2, 1}), Outline({1, 2})), "+1 -2");
}

TEST(ComparedVertices, OfOutlinesTooLongToAlignGoByTheirOrder)
{
  const auto outline = [](std::size_t count, double first) {
    std::vector<Place> places;
    for (std::size_t i = 0; i < count; ++i) {
      places.push_back({first + static_cast<double>(i), 0.0, 0.0});
    }
    return places;
  };
  const auto changes = CompareVertices(outline(3000, 0.0), outline(3001, 0.5), tolerance);
  ASSERT_EQ(changes.size(), 3001U);
  EXPECT_EQ(changes[2999].number.former, 3000U);
  EXPECT_EQ(changes[3000].number.former, 0U);
}

TEST(ReversedOutlines, HaveTheSameVerticesBackwards)
{
  EXPECT_TRUE(IsReversed(Outline({1, 2, 3}), Outline({3, 2, 1}), tolerance));
  EXPECT_FALSE(IsReversed(Outline({1, 2, 3}), Outline({3, 2, 0}), tolerance));
  EXPECT_FALSE(IsReversed(Outline({1, 2}), Outline({2, 1, 0}), tolerance));
}

}  // namespace
}  // namespace hullwright
