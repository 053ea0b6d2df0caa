#include <gmock/gmock.h>

#include <limits>

#include "model/ShapePolygon.h"
#include "model/ShapeText.h"
#include "support/SceneFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// A view of 800 by 600 pixels with four pixels to the unit and the origin in its middle.
class ImportedShapeDrawing : public test::SceneFixture {
protected:
  ImportedShapeDrawing()
  {
    recorder.calls.clear();
    label.vertices.push_back(std::make_unique<CShapeVertex>(0.0, 0.0, 0.0));
    label.text = u"Crane";
    label.height = 5.0;
  }

  void Square(double from, double to)
  {
    const std::size_t ring = polygon.rings.size();
    for (const auto& [x, y] : {std::pair{from, from}, {to, from}, {to, to}}) {
      polygon.AddVertex(std::make_unique<CShapeVertex>(x, y, 0.0), ring);
    }
  }

  CShapePolygon polygon;
  CShapeText label;
};

TEST_F(ImportedShapeDrawing, APolygonIsAWhiteOutlineWhateverItsStyle)
{
  Square(0.0, 10.0);
  polygon.style = std::make_unique<ShapeStyle>();
  polygon.style->lineColour = 0xFF;
  polygon.style->lineWidth = 9.0F;
  polygon.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("geometry filled 400,300 : 400,300 440,300 440,260 closed "
                          "width 1 colour 1 1 1 1"));
}

TEST_F(ImportedShapeDrawing, APolygonTurnsWithTheView)
{
  viewPort.left = 0.0;
  viewPort.right = 200.0;
  viewPort.SetRotation(90.0);
  for (const auto& [x, y] : {std::pair{100.0, 0.0}, {150.0, 0.0}, {100.0, 25.0}}) {
    polygon.AddVertex(std::make_unique<CShapeVertex>(x, y, 0.0), 0);
  }
  polygon.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("geometry filled 400,300 : 400,300 400,500 500,300 closed "
                          "width 1 colour 1 1 1 1"));
}

TEST_F(ImportedShapeDrawing, APolygonWithoutRingsStrokesAnEmptyPath)
{
  polygon.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(), ElementsAre("geometry width 1 colour 1 1 1 1"));
}

TEST_F(ImportedShapeDrawing, EveryRingIsAFigureOfOnePath)
{
  Square(0.0, 10.0);
  Square(2.0, 4.0);
  polygon.rings.push_back(nullptr);
  polygon.rings.push_back(std::make_unique<CShapePolygonRing>());
  polygon.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("geometry filled 400,300 : 400,300 440,300 440,260 closed "
                          "filled 408,292 : 408,292 416,292 416,284 closed "
                          "width 1 colour 1 1 1 1"));
}

TEST_F(ImportedShapeDrawing, ARingDrawsNothingByItself)
{
  Square(0.0, 10.0);
  polygon.rings[0]->Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(ImportedShapeDrawing, ASelectedPolygonIsYellow)
{
  Square(0.0, 10.0);
  polygon.selected = true;
  polygon.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(), ElementsAre(HasSubstr("colour 1 1 0 1")));
}

TEST_F(ImportedShapeDrawing, APolygonOutsideTheViewIsHandedOver)
{
  Square(1000.0, 2000.0);
  polygon.Draw(&viewPort);
  EXPECT_EQ(recorder.Lines().size(), 1U);
  EXPECT_TRUE(polygon.IsVisible(viewPort));
}

TEST_F(ImportedShapeDrawing, NothingIsDrawnWhereAStepFails)
{
  Square(0.0, 10.0);
  for (const auto step : {DrawingFailure::Colour, DrawingFailure::Figures}) {
    recorder.failing = step;
    polygon.Draw(&viewPort);
  }
  for (const auto step : {DrawingFailure::Colour, DrawingFailure::TextStyle}) {
    recorder.failing = step;
    label.Draw(&viewPort);
  }
  recorder.failing = DrawingFailure::None;
  polygon.Draw(nullptr);
  label.Draw(nullptr);
  viewPort.canvas = nullptr;
  polygon.Draw(&viewPort);
  label.Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(ImportedShapeDrawing, ATextWithoutAStyleIsTrimmedAndKeepsItsBox)
{
  recorder.failing = DrawingFailure::TextStyle;
  label.text = u" Crane ";
  label.Draw(&viewPort);
  EXPECT_EQ(label.text, u"Crane");
  for (const auto& corner : label.screenBox) {
    EXPECT_EQ(corner.x, 0.0F);
    EXPECT_EQ(corner.y, 0.0F);
  }
}

TEST_F(ImportedShapeDrawing, ATextStandsOnItsAnchorInAMonospacedFace)
{
  label.Draw(&viewPort);
  // Five units are 20 pixels; five letters measure 50 by 20.
  EXPECT_THAT(
      recorder.Lines(),
      ElementsAre("rotate 0 400 300", "text 'Crane' Consolas 20 in 400 280 450 300 colour 0 0 0 1",
                  "rotate 0 0 0"));
}

TEST_F(ImportedShapeDrawing, ATextTakesItsColourFromTheStyle)
{
  label.style = std::make_unique<ShapeStyle>();
  label.style->lineColour = 0x0000FF;
  label.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines().at(1), HasSubstr("colour 1 0 0 1"));
}

TEST_F(ImportedShapeDrawing, ATextGrowsWithTheZoom)
{
  ShowWidth(100.0);
  label.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines().at(1), HasSubstr("Consolas 40 in"));
}

TEST_F(ImportedShapeDrawing, ATextTurnsByItsAngleAndTheViews)
{
  label.angle = 30.0;
  viewPort.SetRotation(15.0);
  label.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("rotate 45 400 300", StartsWith("text"), "rotate 0 0 0"));
}

TEST_F(ImportedShapeDrawing, TheBoxOnTheScreenFollowsTheAngle)
{
  label.Draw(&viewPort);
  const auto expectCorner = [&](std::size_t corner, float x, float y) {
    EXPECT_NEAR(label.screenBox.at(corner).x, x, 1e-3) << corner;
    EXPECT_NEAR(label.screenBox.at(corner).y, y, 1e-3) << corner;
  };
  expectCorner(0, 400.0F, 300.0F);
  expectCorner(1, 450.0F, 300.0F);
  expectCorner(2, 450.0F, 280.0F);
  expectCorner(3, 400.0F, 280.0F);
  label.angle = 90.0;  // clockwise: downward
  label.Draw(&viewPort);
  expectCorner(1, 400.0F, 350.0F);
  expectCorner(2, 420.0F, 350.0F);
  expectCorner(3, 420.0F, 300.0F);
}

TEST_F(ImportedShapeDrawing, TheAngleIsTurnedStepByStepAndBack)
{
  label.angle = 0.1;
  label.Draw(&viewPort);
  EXPECT_EQ(label.angle, 0.1 - 90.0 - 90.0 + 180.0);
  label.angle = 270.0;
  label.Draw(&viewPort);
  EXPECT_EQ(label.angle, 270.0);
}

TEST_F(ImportedShapeDrawing, ASelectedTextLiesOnYellow)
{
  label.selected = true;
  label.Draw(&viewPort);
  EXPECT_THAT(recorder.Lines(),
              ElementsAre(StartsWith("rotate"), "fillrect 400 280 450 300 colour 1 1 0 1",
                          testing::EndsWith("colour 0 0 0 1"), StartsWith("rotate")));
}

TEST_F(ImportedShapeDrawing, ATextVanishesWithItsAnchor)
{
  label.vertices[0]->x = -100.25;  // one pixel to the left of the view
  label.Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
  label.vertices[0]->x = -100.0;
  label.Draw(&viewPort);
  EXPECT_EQ(recorder.Lines().size(), 3U);
}

TEST_F(ImportedShapeDrawing, ATextIsTrimmedInPlace)
{
  label.text = u"\t Crane\u00A0\r\n";
  label.Draw(&viewPort);
  EXPECT_EQ(label.text, u"Crane");
  label.text = u"  \t ";
  recorder.calls.clear();
  label.Draw(&viewPort);
  EXPECT_TRUE(label.text.empty());
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(ImportedShapeDrawing, ATextIsTrimmedAlsoWhereTheTargetIsLost)
{
  label.text = u" Crane ";
  canvas.ReleaseResources();
  label.Draw(&viewPort);
  EXPECT_EQ(label.text, u"Crane");
  viewPort.canvas = nullptr;
  label.text = u" Crane ";
  label.Draw(&viewPort);
  EXPECT_EQ(label.text, u" Crane ");
}

TEST_F(ImportedShapeDrawing, OfATextsVerticesTheFirstIsItsAnchor)
{
  label.vertices.push_back(std::make_unique<CShapeVertex>(50.0, 25.0, 0.0));
  label.Draw(&viewPort);
  EXPECT_EQ(recorder.Lines().front(), "rotate 0 400 300");
}

TEST_F(ImportedShapeDrawing, ATextOutOfViewIsNotTrimmed)
{
  label.text = u" Crane ";
  label.vertices[0]->x = 1e6;
  label.Draw(&viewPort);
  EXPECT_EQ(label.text, u" Crane ");
}

TEST_F(ImportedShapeDrawing, ATextWithoutAVertexIsNotDrawn)
{
  label.vertices[0].reset();
  label.Draw(&viewPort);
  label.vertices.clear();
  label.Draw(&viewPort);
  label.vertices.push_back(
      std::make_unique<CShapeVertex>(std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0));
  label.Draw(&viewPort);
  EXPECT_TRUE(recorder.Lines().empty());
}

}  // namespace
}  // namespace hullwright
