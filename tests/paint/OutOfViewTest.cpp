#include "render/OutOfView.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>

#include "model/ShapePolyline.h"
#include "paint/PaintSurface.h"
#include "paint/PaintTarget.h"
#include "render/Scene.h"
#include "support/SceneFixture.h"

// Frames that leave out what can't be seen, against frames that map and stroke every line.

namespace hullwright {
namespace {

/// Is given every line, in view or not.
class PatientTarget : public PaintTarget {
public:
  using PaintTarget::PaintTarget;
  std::optional<PixelRect> SeenArea(float) const override { return std::nullopt; }
};

class OutOfViewFixture : public test::SceneFixture {
protected:
  static constexpr int width = 80;
  static constexpr int height = 60;

  OutOfViewFixture()
  {
    design.activeView = ViewSide::Right;  // no devices in the way
    grid.show = 0;
    viewPort.screenWidth = width;
    viewPort.screenHeight = height;
    viewPort.KeepAspect();
  }

  template <class Target>
  QImage Frame(double ratio = 1.0)
  {
    PaintSurface surface(width, height, ratio);
    Target target(surface);
    EXPECT_TRUE(canvas.Initialize(&target));
    DrawScene(design, &viewPort, nullptr, grid);
    canvas.ReleaseResources();
    return surface.Picture().copy();
  }

  /// A coordinate around the view, near an edge of it, or one that no view has.
  double OddCoordinate(double reach)
  {
    constexpr double huge = std::numeric_limits<double>::max();
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr std::array<double, 8> odd = {
        0.0,  huge,     -huge,     1e30,
        -1e9, infinite, -infinite, std::numeric_limits<double>::quiet_NaN()};
    const std::size_t kind = random() % 40;
    if (kind < odd.size()) return odd.at(kind);
    const double part = std::uniform_real_distribution<double>(-1.0, 1.0)(random);
    return kind < 20 ? reach * 5.0 * part
                     : reach * (kind % 2 == 0 ? 1.2 : -1.2) + 0.2 * reach * part;
  }

  /// Polylines around the view, some of them selected, at widths from odd to wide.
  void AddOddLines(int count)
  {
    constexpr std::array<float, 10> widths = {
        1.0F, 0.0F, 0.3F,  2.0F,  4.5F,
        8.0F, 8.5F, 30.0F, -1.0F, std::numeric_limits<float>::quiet_NaN()};
    for (int i = 0; i < count; ++i) {
      CShapePolyline& line = AddLine(ViewSide::Right, {});
      const int vertices = 1 + static_cast<int>(random() % 4);
      const double besideX = OddCoordinate(viewPort.width * 0.5);
      const double besideY = OddCoordinate(viewPort.height * 0.5);
      for (int v = 0; v < vertices; ++v) {
        line.AddVertex(besideX + Step(viewPort.width), besideY + Step(viewPort.height), 0.0);
      }
      if (random() % 8 == 0) line.vertices.front().reset();
      if (random() % 4 != 0) {
        line.style = std::make_unique<ShapeStyle>();
        line.style->lineWidth = widths.at(random() % widths.size());
      }
      line.selected = random() % 5 == 0;
    }
  }

  double Step(double extent)
  {
    const double part = std::uniform_real_distribution<double>(-1.0, 1.0)(random);
    return (random() % 8 == 0 ? 2.0 : 0.05) * extent * part;
  }

  bool IsOut(const CShapePolyline& line)
  {
    PaintSurface surface(width, height);
    PaintTarget target(surface);
    EXPECT_TRUE(canvas.Initialize(&target));
    target.BeginFrame({});
    const bool out = OutOfView(viewPort, &target).Holds(line);
    target.EndFrame();
    canvas.ReleaseResources();
    return out;
  }

  std::mt19937_64 random{31};
  GridSettings grid;
};

TEST_F(OutOfViewFixture, FramesAreTheSameToThePixel)
{
  for (int round = 0; round < 60; ++round) {
    ShowWidth(round % 3 == 0 ? 200.0 : round % 3 == 1 ? 1e-3 : 3e7);
    ClearGroups(design.shapeGroups);
    AddOddLines(40);
    const double ratio = round % 4 == 0 ? 1.5 : 1.0;
    EXPECT_EQ(Frame<PaintTarget>(ratio), Frame<PatientTarget>(ratio)) << "round " << round;
  }
}

TEST_F(OutOfViewFixture, FramesFarFromTheOriginAreTheSameToThePixel)
{
  for (const double extent : {1.0, 1e-6, 1e-8, 1e-9, 0.0}) {
    viewPort.left = viewPort.bottom = 500000.0;
    viewPort.right = 500000.0 + extent;
    viewPort.KeepAspect();
    ClearGroups(design.shapeGroups);
    for (int i = 0; i < 200; ++i) {
      CShapePolyline& line = AddLine(ViewSide::Right, {});
      for (int v = 0; v < 2; ++v) {
        line.AddVertex(500000.0 + Step(4.0 * extent), viewPort.bottom + Step(4.0 * extent), 0.0);
      }
    }
    EXPECT_EQ(Frame<PaintTarget>(), Frame<PatientTarget>()) << "extent " << extent;
  }
}

TEST_F(OutOfViewFixture, LinesAlongTheEdgesShowWhatTheyDid)
{
  ShowWidth(width);  // a pixel is a unit
  for (const float lineWidth : {1.0F, 4.0F, 8.0F}) {
    for (double beside = 0.0; beside < 14.0; beside += 0.25) {
      ClearGroups(design.shapeGroups);
      for (const double side : {-1.0, 1.0}) {
        const double x = side * (width * 0.5 + beside);
        const double y = side * (height * 0.5 + beside);
        AddLine(ViewSide::Right, {{x, -5.0, 0.0}, {x, 5.0, 0.0}});
        AddLine(ViewSide::Right, {{-5.0, y, 0.0}, {5.0, y, 0.0}});
      }
      for (const auto& shape : GetShapes(design.shapeGroups, ViewSide::Right)->shapes) {
        shape->style = std::make_unique<ShapeStyle>();
        shape->style->lineWidth = lineWidth;
      }
      EXPECT_EQ(Frame<PaintTarget>(), Frame<PatientTarget>()) << lineWidth << ' ' << beside;
    }
  }
}

TEST_F(OutOfViewFixture, ALineBeyondOneEdgeIsLeftOut)
{
  ShowWidth(200.0);
  for (const double far : {-300.0, 300.0}) {
    EXPECT_TRUE(IsOut(AddLine(ViewSide::Right, {{far, -500.0, 0.0}, {far, 500.0, 0.0}})));
    EXPECT_TRUE(IsOut(AddLine(ViewSide::Right, {{-500.0, far, 0.0}, {500.0, far, 0.0}})));
  }
}

TEST_F(OutOfViewFixture, ALineThatMayCrossTheViewIsDrawn)
{
  constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
  ShowWidth(200.0);
  EXPECT_FALSE(IsOut(AddLine(ViewSide::Right, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}})));
  EXPECT_FALSE(IsOut(AddLine(ViewSide::Right, {{-300.0, 0.0, 0.0}, {300.0, 0.0, 0.0}})));
  EXPECT_FALSE(IsOut(AddLine(ViewSide::Right, {{-300.0, 0.0, 0.0}, {0.0, 300.0, 0.0}})));
  EXPECT_FALSE(IsOut(AddLine(ViewSide::Right, {{-300.0, 0.0, 0.0}, {noNumber, 0.0, 0.0}})));
  CShapePolyline& wide = AddLine(ViewSide::Right, {{-300.0, 0.0, 0.0}, {-300.0, 9.0, 0.0}});
  wide.style = std::make_unique<ShapeStyle>();
  wide.style->lineWidth = 500.0F;
  EXPECT_FALSE(IsOut(wide));
}

TEST_F(OutOfViewFixture, LinesOnTheEdgesOfTheDeepestViewAreSeen)
{
  // So small a view that the margin around it is lost in the rounding of its edges.
  viewPort.left = viewPort.bottom = viewPort.top = 500000.0;
  viewPort.right = 500000.0 + 1e-10;
  viewPort.KeepAspect();
  const QImage blank = Frame<PaintTarget>();
  for (const double x : {viewPort.left, viewPort.right}) {
    ClearGroups(design.shapeGroups);
    AddLine(ViewSide::Right, {{x, 0.0, 0.0}, {x, 1000000.0, 0.0}});
    EXPECT_NE(Frame<PaintTarget>(), blank) << "right of the edge by " << x - viewPort.left;
  }
}

TEST_F(OutOfViewFixture, InATurnedViewNothingIsLeftOut)
{
  ShowWidth(200.0);
  const CShapePolyline& line = AddLine(ViewSide::Right, {{300.0, 0.0, 0.0}, {300.0, 5.0, 0.0}});
  for (const double degrees : {1e-4, 45.0, 180.0}) {
    viewPort.SetRotation(degrees);
    EXPECT_FALSE(IsOut(line)) << degrees;
  }
}

TEST_F(OutOfViewFixture, ATargetThatKeepsItsCallsIsGivenEveryLine)
{
  ShowWidth(200.0);
  const CShapePolyline& line = AddLine(ViewSide::Right, {{300.0, 0.0, 0.0}, {300.0, 5.0, 0.0}});
  EXPECT_FALSE(OutOfView(viewPort, &recorder).Holds(line));
  EXPECT_FALSE(OutOfView(viewPort, nullptr).Holds(line));
}

}  // namespace
}  // namespace hullwright
