#include "model/Layer.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>

#include "model/ShapePolyline.h"

namespace hullwright {
namespace {

void AddLine(CLayer& layer, double x0, double y0, double x1, double y1)
{
  auto line = std::make_unique<CShapePolyline>();
  line->AddVertex(x0, y0, 0.0);
  line->AddVertex(x1, y1, 0.0);
  layer.shapes->shapes.push_back(std::move(line));
}

TEST(Layer, BeginsEmptyAndEnabled)
{
  const CLayer layer;
  EXPECT_NE(layer.shapes, nullptr);
  EXPECT_NE(layer.attributes, nullptr);
  EXPECT_EQ(layer.flagA, 0);
  EXPECT_EQ(layer.flagB, 1);
  EXPECT_EQ(layer.enabled, 1);
  EXPECT_TRUE(layer.name.empty());
  EXPECT_TRUE(layer.description.empty());
  for (const double number : {layer.extents.minX, layer.extents.minY, layer.extents.maxX,
                              layer.extents.maxY, layer.spareA, layer.spareB}) {
    EXPECT_EQ(number, 0.0);
  }
}

TEST(Layer, ABoxWithoutAZeroCountsAsComputed)
{
  CLayer layer;
  AddLine(layer, 1.0, 2.0, 3.0, 4.0);
  layer.UpdateExtents();
  EXPECT_EQ(layer.extents.maxX, 3.0);
  AddLine(layer, 50.0, 50.0, 60.0, 60.0);
  layer.UpdateExtents();
  EXPECT_EQ(layer.extents.maxX, 3.0);
}

TEST(Layer, ABoxThatTouchesZeroIsComputedAgainEachTime)
{
  const auto grows = [](double x1, double y1, double x2, double y2) {
    CLayer layer;
    AddLine(layer, x1, y1, x2, y2);
    layer.UpdateExtents();
    EXPECT_EQ(layer.extents.minX, x1);
    EXPECT_EQ(layer.extents.maxX, x2);
    layer.UpdateExtents();
    EXPECT_EQ(layer.extents.maxX, x2);
    AddLine(layer, 50.0, 50.0, 60.0, 60.0);
    layer.UpdateExtents();
    return layer.extents.maxX == 60.0;
  };
  EXPECT_TRUE(grows(0.0, 2.0, 3.0, 4.0));
  EXPECT_TRUE(grows(1.0, 0.0, 3.0, 4.0));
  EXPECT_TRUE(grows(-1.0, 2.0, 0.0, 4.0));
  EXPECT_TRUE(grows(1.0, -2.0, 3.0, 0.0));
}

TEST(Layer, ABoxThatAlmostTouchesZeroCountsAsComputed)
{
  constexpr double tiny = 1e-300;
  const auto grows = [](double x1, double y1, double x2, double y2) {
    CLayer layer;
    AddLine(layer, x1, y1, x2, y2);
    layer.UpdateExtents();
    AddLine(layer, 50.0, 50.0, 60.0, 60.0);
    layer.UpdateExtents();
    return layer.extents.maxX != x2;
  };
  EXPECT_FALSE(grows(tiny, 2.0, 3.0, 4.0));
  EXPECT_FALSE(grows(1.0, -tiny, 3.0, 4.0));
  EXPECT_FALSE(grows(-1.0, 2.0, -tiny, 4.0));
  EXPECT_FALSE(grows(1.0, -2.0, 3.0, tiny));
}

TEST(Layer, ANullShapeEndsTheBoxWithTheCursorOfTheShapes)
{
  CLayer layer;
  AddLine(layer, 1.0, 2.0, 3.0, 4.0);
  layer.shapes->shapes.push_back(nullptr);
  AddLine(layer, 50.0, 50.0, 60.0, 60.0);
  layer.UpdateExtents();
  EXPECT_EQ(layer.extents.maxX, 3.0);
  EXPECT_EQ(layer.extents.maxY, 4.0);
  EXPECT_EQ(layer.shapes->cursor, 2U);
}

TEST(Layer, ABoxOfItsShapesThatIsKnownGivesTheSame)
{
  const Extents boxes[] = {
      {}, {1.0, 2.0, 3.0, 4.0}, {-0.0, -1e300, 0.0, 1e300}, {1e300, 1.0, 1e301, 1.0}};
  for (const Extents& box : boxes) {
    CLayer layer;
    if (!box.IsEmpty()) AddLine(layer, box.minX, box.minY, box.maxX, box.maxY);
    layer.UpdateExtents();
    CLayer known;
    known.UpdateExtents(box);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(known.extents.minX),
              std::bit_cast<std::uint64_t>(layer.extents.minX));
    EXPECT_EQ(known.extents.minY, layer.extents.minY);
    EXPECT_EQ(known.extents.maxX, layer.extents.maxX);
    EXPECT_EQ(known.extents.maxY, layer.extents.maxY);
    known.UpdateExtents({1.0, 2.0, 1e20, 4.0});
    EXPECT_EQ(known.extents.maxX == 1e20, box.minX == 0.0);
  }
}

TEST(Layer, WithoutShapesTheBoxIsInsideOut)
{
  CLayer layer;
  layer.UpdateExtents();
  EXPECT_EQ(layer.extents.minX, 1e24);
  EXPECT_EQ(layer.extents.maxY, -1e24);
  CLayer bare;
  bare.shapes.reset();
  bare.UpdateExtents();
  EXPECT_EQ(bare.extents.minX, 0.0);
}

}  // namespace
}  // namespace hullwright
