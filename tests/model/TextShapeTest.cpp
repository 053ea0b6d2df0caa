#include "model/ShapeText.h"

#include <gtest/gtest.h>

#include "render/ViewPort.h"

namespace hullwright {
namespace {

class Label : public testing::Test {
protected:
  Label() { label.vertices.push_back(std::make_unique<CShapeVertex>(10.0, 20.0, 30.0)); }
  CShapeText label;
};

TEST(NewLabel, IsEmptyAndHasNoBox)
{
  const CShapeText label;
  EXPECT_EQ(label.type, ShapeType::Text);
  EXPECT_TRUE(label.text.empty());
  EXPECT_EQ(label.angle, 0.0);
  EXPECT_EQ(label.height, 0.0);
  for (const auto& corner : label.screenBox) {
    EXPECT_EQ(corner.x, 0.0F);
    EXPECT_EQ(corner.y, 0.0F);
  }
}

TEST_F(Label, CloneCopiesEverythingButTheBox)
{
  label.text = u"Winch";
  label.angle = 30.0;
  label.height = 2.5;
  label.screenBox[0] = {1.0F, 2.0F};
  label.vertices[0]->tagA = 6;
  label.attributes = std::make_unique<CShapeAttributes>();
  label.attributes->Append(u"LAYER", u"Deck");
  const auto copy = label.Clone();
  const auto& clone = dynamic_cast<const CShapeText&>(*copy);
  EXPECT_EQ(clone.type, ShapeType::Text);
  EXPECT_EQ(clone.text, u"Winch");
  EXPECT_EQ(clone.angle, 30.0);
  EXPECT_EQ(clone.height, 2.5);
  EXPECT_EQ(clone.screenBox[0].x, 0.0F);
  EXPECT_EQ(clone.vertices.at(0)->tagA, 6);
  EXPECT_EQ(clone.attributes->items.at(0)->value, u"Deck");
}

TEST_F(Label, ExtentsAreTheSameForALongTextAndAShortOne)
{
  for (const char16_t* text : {u"", u"W", u"a very long text that reaches far to the right"}) {
    label.text = text;
    Extents box = EmptyWithin(1e9);
    label.GetExtents(box);
    EXPECT_EQ(box.minX, 9.0);
    EXPECT_EQ(box.minY, 19.0);
    EXPECT_EQ(box.maxX, 11.0);
    EXPECT_EQ(box.maxY, 21.0);
  }
}

TEST(NewLabel, WithoutAVertexWidensNothing)
{
  CShapeText label;
  Extents box{1.0, 2.0, 3.0, 4.0};
  label.GetExtents(box);
  label.vertices.push_back(nullptr);
  label.GetExtents(box);
  EXPECT_EQ(box.minX, 1.0);
  EXPECT_EQ(box.maxY, 4.0);
}

TEST_F(Label, TurnsAndScalesByItsVerticesOnly)
{
  label.angle = 15.0;
  label.height = 2.0;
  label.Scale(2.0, 3.0, 4.0);
  EXPECT_EQ(label.vertices[0]->x, 20.0);
  EXPECT_EQ(label.vertices[0]->y, 60.0);
  EXPECT_EQ(label.vertices[0]->z, 120.0);
  label.Rotate(90.0);
  EXPECT_NEAR(label.vertices[0]->x, -60.0, 1e-12);
  label.Translate(60.0, 0.0, 0.0);
  EXPECT_NEAR(label.vertices[0]->x, 0.0, 1e-12);
  EXPECT_EQ(label.angle, 15.0);
  EXPECT_EQ(label.height, 2.0);
}

TEST_F(Label, HasNoDistanceAndKeepsItsVertex)
{
  EXPECT_EQ(label.DistanceTo(1000.0, 1000.0), 0.0);
  label.RemoveVertex(label.vertices[0].get());
  EXPECT_EQ(label.vertices.size(), 1U);
  EXPECT_TRUE(label.IsVisible(CViewPort()));
}

/// A view of 200 by 200 pixels that shows -100 to 100.
class LabelInView : public Label {
protected:
  LabelInView()
  {
    viewPort.screenWidth = 200.0;
    viewPort.screenHeight = 200.0;
  }
  CViewPort viewPort;
};

TEST_F(LabelInView, BeforeARepaintOnlyThePixelOriginIsHit)
{
  EXPECT_TRUE(label.HitTest(&viewPort, -100.0, 100.0));
  EXPECT_TRUE(label.HitTest(&viewPort, -99.5, 99.5));  // the same pixel
  EXPECT_FALSE(label.HitTest(&viewPort, -98.0, 100.0));
  EXPECT_FALSE(label.HitTest(&viewPort, 10.0, 20.0));
  EXPECT_FALSE(label.HitTest(nullptr, -100.0, 100.0));
}

TEST_F(LabelInView, TheBoxOfTheLastRepaintIsHitInWholePixels)
{
  label.screenBox = {{{50.0F, 60.0F}, {80.0F, 60.0F}, {80.0F, 50.0F}, {50.0F, 50.0F}}};
  EXPECT_TRUE(label.HitTest(&viewPort, -40.0, 45.0));   // pixel 60, 55
  EXPECT_TRUE(label.HitTest(&viewPort, -50.0, 45.0));   // on the left edge
  EXPECT_TRUE(label.HitTest(&viewPort, -19.5, 45.0));   // pixel 80.5 counts as 80
  EXPECT_FALSE(label.HitTest(&viewPort, -18.5, 45.0));  // pixel 81
  EXPECT_TRUE(label.HitTest(&viewPort, -40.0, 39.5));   // pixel row 60.5 counts as 60
  EXPECT_FALSE(label.HitTest(&viewPort, -40.0, 38.5));
}

TEST_F(LabelInView, PixelsAreFoundByDividingByTheirSize)
{
  // Column 17 and row 42; multiplied by the pixels of a unit, the numbers end one pixel before.
  viewPort.screenWidth = 102.0;
  viewPort.screenHeight = 104.0;
  label.screenBox = {{{17.0F, 60.0F}, {40.0F, 60.0F}, {40.0F, 42.0F}, {17.0F, 42.0F}}};
  EXPECT_TRUE(label.HitTest(&viewPort, -66.666666666666671, 0.0));
  EXPECT_TRUE(label.HitTest(&viewPort, -41.0, 19.230769230769241));
}

TEST_F(LabelInView, ATurnedViewIsNotTakenIntoAccount)
{
  label.screenBox = {{{50.0F, 60.0F}, {80.0F, 60.0F}, {80.0F, 50.0F}, {50.0F, 50.0F}}};
  viewPort.SetRotation(90.0);
  EXPECT_TRUE(label.HitTest(&viewPort, -40.0, 45.0));
}

}  // namespace
}  // namespace hullwright
