#include "model/Layer.h"

#include <gtest/gtest.h>

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
  EXPECT_EQ(layer.extents.minX, 0.0);
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
