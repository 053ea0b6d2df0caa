#include "render/ShapeDrawing.h"

#include <gmock/gmock.h>

#include "model/ShapePoint.h"
#include "support/SceneFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class ShapeDrawing : public test::SceneFixture {
protected:
  ShapeDrawing() { recorder.calls.clear(); }
};

TEST_F(ShapeDrawing, APolylineWithoutAStyleIsBlackAndOnePixelWide)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {25.0, 0.0, 0.0}}).Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("geometry round hollow 400,300 : 400,300 500,300 open width 1 "
                          "colour 0 0 0 1"));
}

TEST_F(ShapeDrawing, APolylineTakesColourAndWidthFromItsStyle)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {0.0, 25.0, 0.0}});
  line.style = std::make_unique<ShapeStyle>();
  line.style->lineColour = 0x00FF8000;
  line.style->lineWidth = 2.5F;
  line.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("geometry round hollow 400,300 : 400,300 400,200 open width 2.5 "
                          "colour 0 0.5019608 1 1"));
}

TEST_F(ShapeDrawing, AWidthOfNothingOrLessIsHandedOverAsItIs)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {0.0, 25.0, 0.0}});
  line.style = std::make_unique<ShapeStyle>();
  for (const float lineWidth : {0.0F, -2.0F}) {
    line.style->lineWidth = lineWidth;
    line.Draw(&viewPort);
  }
  ASSERT_EQ(recorder.Lines().size(), 2U);
  EXPECT_THAT(recorder.Lines()[0], testing::HasSubstr("width 0 colour"));
  EXPECT_THAT(recorder.Lines()[1], testing::HasSubstr("width -2 colour"));
}

TEST_F(ShapeDrawing, ASelectedPolylineIsDrawnTwice)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {25.0, 0.0, 0.0}});
  line.selected = true;
  line.Draw(&viewPort);
  ASSERT_EQ(recorder.Lines().size(), 2U);
  EXPECT_THAT(recorder.Lines()[0], testing::EndsWith("width 4 colour 1 1 0 1"));
  EXPECT_THAT(recorder.Lines()[1], testing::EndsWith("width 1 colour 0 0 0 1"));
}

TEST_F(ShapeDrawing, APolylineWithOneVertexOrNoneDrawsNothing)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}}).Draw(&viewPort);
  CShapePolyline().Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(ShapeDrawing, APolylineOutsideTheViewIsHandedOverAllTheSame)
{
  AddLine(ViewSide::Top, {{500.0, 0.0, 0.0}, {600.0, 0.0, 0.0}}).Draw(&viewPort);
  EXPECT_EQ(recorder.Lines().size(), 1U);
}

TEST_F(ShapeDrawing, APolylineTurnsWithTheView)
{
  viewPort.SetRotation(180.0);
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {25.0, 0.0, 0.0}}).Draw(&viewPort);
  EXPECT_THAT(recorder.Lines().at(0), testing::HasSubstr(" 300,"));
}

TEST_F(ShapeDrawing, NothingIsDrawnWithoutViewPortCanvasTargetOrBrush)
{
  CShapePolyline& line = AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {25.0, 0.0, 0.0}});
  CShapePoint point;
  line.Draw(nullptr);
  point.Draw(nullptr);
  recorder.failing = DrawingFailure::Colour;
  line.Draw(&viewPort);
  point.Draw(&viewPort);
  canvas.ReleaseResources();
  line.Draw(&viewPort);
  point.Draw(&viewPort);
  viewPort.canvas = nullptr;
  line.Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(ShapeDrawing, APointIsABlackSquareOfFivePixelsAtAnyZoom)
{
  CShapePoint point;
  point.style = std::make_unique<ShapeStyle>();
  point.style->lineColour = 0xFFFFFF;
  point.Draw(&viewPort);
  ShowWidth(2.0);
  point.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(), ElementsAre("fillrect 397.5 297.5 402.5 302.5 colour 0 0 0 1",
                                            "fillrect 397.5 297.5 402.5 302.5 colour 0 0 0 1"));
}

TEST_F(ShapeDrawing, APointTurnsWithTheView)
{
  viewPort.left = 0.0;
  viewPort.right = 200.0;
  viewPort.SetRotation(90.0);
  CShapePoint point;
  point.position.x = 150.0;
  point.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(), ElementsAre("fillrect 397.5 497.5 402.5 502.5 colour 0 0 0 1"));
}

TEST_F(ShapeDrawing, ASelectedPointHasAYellowFrame)
{
  CShapePoint point;
  point.selected = true;
  point.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(), ElementsAre("rect 397.5 297.5 402.5 302.5 width 6 colour 1 1 0 1",
                                            "fillrect 397.5 297.5 402.5 302.5 colour 0 0 0 1"));
}

TEST_F(ShapeDrawing, APointOutsideTheViewIsNotDrawn)
{
  CShapePoint point;
  point.position.x = 100.1;
  point.Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

}  // namespace
}  // namespace hullwright
