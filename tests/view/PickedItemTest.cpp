#include "view/PickedItem.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

#include "base/Numbers.h"
#include "support/SceneFixture.h"

// Most vertices are told apart from the box around the mouse without being mapped; here each is
// mapped.

namespace hullwright {
namespace {

class PickBoxOfTheMouse : public test::SceneFixture {
protected:
  PickBoxOfTheMouse() { design.activeView = ViewSide::Right; }

  bool IsInBox(const CShapeVertex& vertex, std::int32_t x, std::int32_t y) const
  {
    const ScreenPoint p = viewPort.WorldToScreenFlat(vertex.x, vertex.y);
    const std::int64_t dx = TruncateToInt32(p.x) - std::int64_t{x};
    const std::int64_t dy = TruncateToInt32(p.y) - std::int64_t{y};
    return dx >= -5 && dx < 5 && dy >= -5 && dy < 5;
  }

  /// Picks a single vertex by itself.
  void ExpectAsMapped(double wx, double wy, std::int32_t x, std::int32_t y)
  {
    ClearGroups(design.shapeGroups);
    const CShapePolyline& line = AddLine(ViewSide::Right, {{wx, wy, 0.0}});
    const bool wanted = IsInBox(*line.vertices.front(), x, y);
    EXPECT_EQ(FindItemAt(design, x, y).kind == HitKind::Vertex, wanted)
        << wx << ' ' << wy << " at " << x << ' ' << y;
    found += wanted ? 1 : 0;
  }

  int found = 0;
};

TEST_F(PickBoxOfTheMouse, TakesWhatIsMappedIntoIt)
{
  std::mt19937_64 random(5);
  std::uniform_real_distribution<double> near(-7.0, 7.0);
  for (const double width : {200.0, 1e-9, 7e11}) {
    ShowWidth(width);
    for (int i = 0; i < 2000; ++i) {
      const auto x = static_cast<std::int32_t>(random() % 900) - 50;
      const auto y = static_cast<std::int32_t>(random() % 700) - 50;
      const WorldPoint world = viewPort.ScreenToWorld(x + near(random), y + near(random));
      ExpectAsMapped(world.x, world.y, x, y);
    }
  }
  EXPECT_GT(found, 2000);
}

TEST_F(PickBoxOfTheMouse, TakesWhatIsMappedIntoItFarFromTheOrigin)
{
  std::mt19937_64 random(6);
  std::uniform_real_distribution<double> near(-7.0, 7.0);
  for (const double extent : {1.0, 1e-7, 1e-9, 0.0}) {
    viewPort.left = viewPort.bottom = 500000.0;
    viewPort.right = 500000.0 + extent;
    viewPort.KeepAspect();
    for (int i = 0; i < 500; ++i) {
      const WorldPoint world = viewPort.ScreenToWorld(400 + near(random), 300 + near(random));
      ExpectAsMapped(world.x, world.y, 400, 300);
    }
  }
  EXPECT_GT(found, 500);
}

TEST_F(PickBoxOfTheMouse, TakesWhatIsTooLargeForAPixelAtTheLowestOne)
{
  constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
  constexpr double infinite = std::numeric_limits<double>::infinity();
  constexpr std::array<double, 6> odd = {
      0.0, 1e300, -1e300, infinite, -infinite, std::numeric_limits<double>::quiet_NaN()};
  for (const double wx : odd) {
    for (const double wy : odd) {
      for (const std::int32_t x : {lowest, lowest + 4, lowest + 5, lowest + 6, 400}) {
        ExpectAsMapped(wx, wy, x, lowest + 3);
        ExpectAsMapped(wx, wy, x, lowest + 7);
        ExpectAsMapped(wx, wy, x, 300);
      }
    }
  }
  EXPECT_GT(found, 10);
}

}  // namespace
}  // namespace hullwright
