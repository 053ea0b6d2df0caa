#include "render/Scene.h"

#include <gmock/gmock.h>

#include <limits>

#include "base/Code.h"
#include "support/SceneFixture.h"

namespace hullwright {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::StartsWith;

constexpr const char* grey = "colour 0.5019608 0.5019608 0.5019608 1";

class Scene : public test::SceneFixture {
protected:
  Scene() { grid.show = 0; }

  void Draw(CShapePolyline* newShape = nullptr) { DrawScene(design, &viewPort, newShape, grid); }

  GridSettings grid;
};

TEST_F(Scene, BeginsWithTheBackgroundAndEnds)
{
  design.activeView = ViewSide::Right;
  recorder.calls.clear();
  Draw();
  EXPECT_THAT(recorder.Lines(), ElementsAre("begin", "clear 1 1 0.8784314 1", "end"));
}

TEST_F(Scene, IsComposedInOrder)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  AddAnchor(7, 0.0, 0.0);
  CShapePolyline newShape;
  newShape.AddVertex(0.0, 0.0, 0.0);
  newShape.AddVertex(0.0, 1.0, 0.0);
  grid.show = 1;
  Draw(&newShape);
  std::vector<std::string> words;
  for (const std::string& line : recorder.Frame()) words.push_back(line.substr(0, line.find(' ')));
  EXPECT_THAT(words, ElementsAre("clear", "geometry", "geometry", "line", "line",  // cross
                                 "ellipse", "line", "line", "text",                // GNSS
                                 "ellipse", "line", "line", "text",                // transducer
                                 "ellipse", "line", "line", "text",                // pivot
                                 "text", "ellipse"));                              // anchor
}

TEST_F(Scene, DeviceSymbolsAreCrossedCirclesWithTheirNamesAbove)
{
  Draw();
  EXPECT_THAT(recorder.Frame(),
              ElementsAre("clear 1 1 0.8784314 1",  //
                          "ellipse 440 300 15 15 width 2 colour 1 0 0 1",
                          "line 425 285 455 315 width 2 colour 1 0 0 1",
                          "line 455 285 425 315 width 2 colour 1 0 0 1",
                          "text 'GPS' Arial 14 centred in 390 260 490 290 colour 1 0 0 1",
                          "ellipse 360 300 15 15 width 2 colour 0 0 1 1",
                          "line 345 285 375 315 width 2 colour 0 0 1 1",
                          "line 375 285 345 315 width 2 colour 0 0 1 1",
                          "text 'TXD' Arial 14 centred in 310 260 410 290 colour 0 0 1 1",
                          "ellipse 400 260 15 15 width 2 colour 0 0.5019608 0 1",
                          "line 385 245 415 275 width 2 colour 0 0.5019608 0 1",
                          "line 415 245 385 275 width 2 colour 0 0.5019608 0 1",
                          "text 'PIV' Arial 14 centred in 350 220 450 250 colour 0 0.5019608 0 1"));
}

TEST_F(Scene, SymbolsKeepTheirSizeAtAnyZoom)
{
  ShowWidth(20.0);
  Draw();
  EXPECT_THAT(recorder.Frame(), Contains("ellipse 800 300 15 15 width 2 colour 1 0 0 1"));
}

TEST_F(Scene, ThePivotHangsOnTheTransducer)
{
  design.offsetTransducer.reset();
  Draw();
  EXPECT_EQ(recorder.Count("ellipse"), 1);
  design.offsetTransducer = std::make_unique<CShapeVertex>();
  design.offsetPivot.reset();
  Draw();
  EXPECT_EQ(recorder.Count("ellipse"), 2);
}

TEST_F(Scene, AnAnchorIsACircleWithItsNumber)
{
  AddAnchor(12, 25.0, -25.0);
  Draw();
  const auto frame = recorder.Frame();
  ASSERT_GE(frame.size(), 2U);
  EXPECT_EQ(frame[frame.size() - 2],
            "text '12' Arial 16 centred in 480 380 520 420 colour 0.5019608 0 0.5019608 1");
  EXPECT_EQ(frame.back(), "ellipse 500 400 10 10 width 1 colour 0.5019608 0 0.5019608 1");
}

TEST_F(Scene, AnAnchorThatIsNotVisibleIsNotDrawn)
{
  AddAnchor(1, 0.0, 0.0).visible = false;
  AddAnchor(2, 0.0, 0.0);
  Draw();
  EXPECT_EQ(recorder.Count("text '1'"), 0);
  EXPECT_EQ(recorder.Count("text '2'"), 1);
}

TEST_F(Scene, OtherSidesShowNeitherDevicesNorAnchors)
{
  AddAnchor(1, 0.0, 0.0);
  for (const ViewSide side : eachViewSide) {
    design.activeView = side;
    Draw();
    EXPECT_EQ(recorder.Count("ellipse"), side == ViewSide::Top ? 4 : 0) << NumberOf(side);
  }
  design.activeView = ViewSide::All;
  Draw();
  EXPECT_EQ(recorder.Count("ellipse"), 4);
  EXPECT_EQ(design.anchors->items.size(), 1U);
}

TEST_F(Scene, OnlyTheFirstGroupThatAnswersIsDrawn)
{
  design.activeView = ViewSide::Right;
  AddLine(ViewSide::All, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  design.shapeGroups.push_back(std::make_unique<CShapes>(ViewSide::Right));
  auto hidden = std::make_unique<CShapePolyline>();
  hidden->AddVertex(0.0, 0.0, 0.0);
  hidden->AddVertex(9.0, 9.0, 0.0);
  design.shapeGroups.back()->shapes.push_back(std::move(hidden));
  Draw();
  EXPECT_EQ(recorder.Count("geometry"), 1);
}

TEST_F(Scene, DrawingMakesNoGroup)
{
  Draw();
  EXPECT_TRUE(design.shapeGroups.empty());
}

TEST_F(Scene, NothingIsDoneWithoutViewPortCanvasOrAnchorList)
{
  recorder.calls.clear();
  DrawScene(design, nullptr, nullptr, grid);
  design.anchors.reset();
  Draw();
  design.anchors = std::make_unique<CAnchors>();
  viewPort.canvas = nullptr;
  Draw();
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(Scene, WithoutAnAnchorListNothingIsDrawnOnAnySide)
{
  AddLine(ViewSide::All, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  design.anchors.reset();
  grid.show = 1;
  recorder.calls.clear();
  for (const ViewSide side : eachViewSide) {
    design.activeView = side;
    Draw();
  }
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(Scene, WithoutATargetEveryStepIsSkipped)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  AddAnchor(1, 0.0, 0.0);
  grid.show = 1;
  canvas.ReleaseResources();
  recorder.calls.clear();
  Draw();
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(Scene, AFailedFrameIsNotRepeatedAndALostDeviceComesBackAtTheNext)
{
  recorder.failing = DrawingFailure::FrameEnd;
  recorder.failCode = recreateTarget;
  recorder.calls.clear();
  Draw();
  EXPECT_EQ(recorder.Frames(), 1);
  EXPECT_EQ(recorder.Lines().back(), "imaging factory");
  EXPECT_THAT(canvas.errorText, StartsWith("Error 0x8899000C"));
  recorder.failing = DrawingFailure::None;
  Draw();
  EXPECT_EQ(recorder.Lines().back(), "end");
}

TEST_F(Scene, AMissingFormatOrBrushSkipsItsElementsOnly)
{
  AddLine(ViewSide::Top, {{0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}});
  AddAnchor(1, 0.0, 0.0);
  recorder.failing = DrawingFailure::TextStyle;
  Draw();
  EXPECT_EQ(recorder.Count("ellipse"), 0);
  EXPECT_EQ(recorder.Count("geometry"), 1);
  recorder.failing = DrawingFailure::Colour;
  Draw();
  EXPECT_EQ(recorder.Frame().size(), 1U);
}

class Grid : public Scene {
protected:
  Grid()
  {
    grid.show = 1;
    design.activeView = ViewSide::Rear;
  }
};

TEST_F(Grid, TheOriginCrossIsTwentyPixelsAcross)
{
  viewPort.CenterOn(410.0, 300.0);
  Draw();
  EXPECT_THAT(recorder.Frame(), Contains(std::string("line 380 300 400 300 width 1 ") + grey));
  EXPECT_THAT(recorder.Frame(), Contains(std::string("line 390 290 390 310 width 1 ") + grey));
}

TEST_F(Grid, SwitchedOffThereIsNeitherGridNorCross)
{
  grid.show = 0;
  ShowWidth(20.0);
  Draw();
  EXPECT_EQ(recorder.Frame().size(), 1U);
}

TEST_F(Grid, PointsRunFromBelowTheEdgesToAboveThem)
{
  ShowWidth(10.0);  // 7.5 high
  grid.spacingShowX = 4.0;
  grid.spacingShowY = 3.0;
  Draw();
  // Columns -8, -4, 0, 4, 8 and rows -6, -3, 0, 3, 6, each column from below.
  const auto frame = recorder.Frame();
  ASSERT_EQ(recorder.Count("rect"), 25);
  EXPECT_EQ(frame[3], std::string("rect -241 779 -239 781 width 1 ") + grey);
  EXPECT_EQ(frame[4], std::string("rect -241 539 -239 541 width 1 ") + grey);
  EXPECT_EQ(frame[8], std::string("rect 79 779 81 781 width 1 ") + grey);
}

TEST_F(Grid, TheCrossDoesNotTurnWithTheView)
{
  viewPort.left = 0.0;
  viewPort.right = 200.0;
  viewPort.SetRotation(90.0);
  Draw();
  EXPECT_THAT(recorder.Frame(), Contains(std::string("line -10 300 10 300 width 1 ") + grey));
  EXPECT_THAT(recorder.Frame(), Contains(std::string("line 0 290 0 310 width 1 ") + grey));
}

TEST_F(Grid, ColumnsAreFoundByAddingTheSpacing)
{
  viewPort.screenWidth = viewPort.screenHeight = 800.0;
  grid.spacingShowX = 0.1;
  grid.spacingShowY = 1.0;
  viewPort.left = -1.0;
  viewPort.right = 1.0;
  viewPort.KeepAspect();
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 21 * 3);
  // The sum of rounding errors takes the last column past the edge.
  viewPort.left = -2.0;
  viewPort.right = 2.0;
  viewPort.KeepAspect();
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 40 * 5);
}

TEST_F(Grid, FortyIntervalsAreAllowedAndMoreShowTheCrossAlone)
{
  ShowWidth(100.0);
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 41 * 31);
  ShowWidth(100.1);
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 0);
  EXPECT_EQ(recorder.Count("line"), 2);
}

TEST_F(Grid, TheLimitHoldsOnTheOtherAxisToo)
{
  ShowWidth(100.0);
  grid.spacingShowX = 100.0;
  grid.spacingShowY = 1.8;
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 0);
}

TEST_F(Grid, EndsWhereTheSpacingNoLongerChangesTheValue)
{
  viewPort.left = 1e17;
  viewPort.right = 1e17 + 64.0;
  viewPort.KeepAspect();
  Draw();
  EXPECT_LE(recorder.Count("rect"), 42 * 42);
}

TEST_F(Grid, SpacingsAndViewsThatAreNoNumbersDoNotHang)
{
  grid.spacingShowX = 0.0;
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 0);
  grid.spacingShowX = 2.5;
  viewPort.left = -std::numeric_limits<double>::infinity();
  viewPort.KeepAspect();
  Draw();
  EXPECT_LE(recorder.Count("rect"), 42 * 42);
  viewPort.left = viewPort.right = viewPort.width = std::numeric_limits<double>::quiet_NaN();
  Draw();
  EXPECT_EQ(recorder.Count("rect"), 0);
}

TEST_F(Grid, TheLimitGoesByTheHeightThatWasKept)
{
  viewPort.screenWidth = 1013.0;
  viewPort.screenHeight = 599.0;
  viewPort.left = -35.4;
  viewPort.bottom = -8.1;
  viewPort.right = 9.8;
  viewPort.top = 47.4;
  viewPort.KeepAspect();
  ASSERT_GT(viewPort.height, viewPort.top - viewPort.bottom);  // in the last bit
  grid.spacingShowX = 100.0;
  grid.spacingShowY = (viewPort.top - viewPort.bottom) / 40.0;
  Draw();
  EXPECT_EQ(recorder.Count("line"), 2);
  EXPECT_EQ(recorder.Count("rect"), 0);
}

}  // namespace
}  // namespace hullwright
