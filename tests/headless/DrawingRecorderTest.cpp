#include "headless/DrawingRecorder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "support/DrawingLines.h"

namespace hullwright {
namespace {

using test::FrameLines;
using testing::ElementsAre;

constexpr Stroke thin{{0.0F, 0.0F, 0.0F, 1.0F}, 1.0F};

class Recorder : public testing::Test {
protected:
  std::vector<std::string> Lines() const { return test::LinesOf(recorder.calls); }

  /// One call of each kind that has a colour.
  void DrawAll()
  {
    const std::array<PixelPoint, 2> points = {{{1.0F, 2.0F}, {3.0F, 4.0F}}};
    const std::array<std::size_t, 2> ends = {1, 2};
    recorder.DrawLine({1.0F, 2.0F}, {3.0F, 4.0F}, thin);
    recorder.DrawRectangle({1.0F, 2.0F, 3.0F, 4.0F}, thin);
    recorder.FillRectangle({1.0F, 2.0F, 3.0F, 4.0F}, thin.colour);
    recorder.DrawEllipse({1.0F, 2.0F}, 3.0F, 4.0F, thin);
    recorder.DrawFigures({FigureKind::Outline, points, ends}, thin);
    recorder.DrawText({u"Ahoy", {u"Arial", 14.0F, true}, {1.0F, 2.0F, 3.0F, 4.0F}, thin.colour});
  }

  DrawingRecorder recorder;
};

TEST_F(Recorder, EveryCallIsALineWithItsNumbers)
{
  recorder.Resize(30, 20);
  DrawAll();
  EXPECT_THAT(Lines(),
              ElementsAre("resize 30 20", "line 1 2 3 4 width 1 colour 0 0 0 1",
                          "rect 1 2 3 4 width 1 colour 0 0 0 1", "fillrect 1 2 3 4 colour 0 0 0 1",
                          "ellipse 1 2 3 4 width 1 colour 0 0 0 1",
                          "geometry filled 1,2 : 1,2 closed filled 3,4 : 3,4 closed width 1 "
                          "colour 0 0 0 1",
                          "text 'Ahoy' Arial 14 centred in 1 2 3 4 colour 0 0 0 1"));
}

TEST_F(Recorder, ATurnedTextOnAGroundIsFourLines)
{
  TextBlock block{u"Ahoy", {u"Consolas", 8.0F}, {1.0F, 2.0F, 3.0F, 4.0F}, thin.colour};
  block.ground = Colour{1.0F, 1.0F, 0.0F, 1.0F};
  block.turn = Turn{45.0F, {1.0F, 4.0F}};
  recorder.DrawText(block);
  EXPECT_THAT(Lines(),
              ElementsAre("rotate 45 1 4", "fillrect 1 2 3 4 colour 1 1 0 1",
                          "text 'Ahoy' Consolas 8 in 1 2 3 4 colour 0 0 0 1", "rotate 0 0 0"));
}

TEST_F(Recorder, TheLastFrameIsWhatItsCallsGaveAndNoOther)
{
  EXPECT_TRUE(LastFrame(recorder.calls).empty());
  recorder.BeginFrame({});
  recorder.DrawLine({}, {}, thin);
  recorder.EndFrame();
  recorder.BeginFrame({});
  recorder.EndFrame();
  recorder.Resize(1, 1);
  EXPECT_EQ(LastFrame(recorder.calls).size(), 2U);
  EXPECT_THAT(FrameLines(recorder.calls), ElementsAre("clear 0 0 0 1"));
  recorder.BeginFrame({});
  recorder.DrawLine({}, {}, thin);
  EXPECT_EQ(LastFrame(recorder.calls).size(), 2U);
  EXPECT_THAT(FrameLines(recorder.calls),
              ElementsAre("clear 0 0 0 1", "line 0 0 0 0 width 1 colour 0 0 0 1"));
}

TEST_F(Recorder, AFailureLeavesItsCallsOut)
{
  recorder.failing = DrawingFailure::Colour;
  recorder.BeginFrame({});
  DrawAll();
  EXPECT_EQ(recorder.calls.size(), 1U);
  recorder.calls.clear();
  recorder.failing = DrawingFailure::Figures;
  DrawAll();
  EXPECT_EQ(recorder.calls.size(), 5U);
  recorder.calls.clear();
  recorder.failing = DrawingFailure::TextStyle;
  DrawAll();
  EXPECT_EQ(recorder.calls.size(), 5U);
  EXPECT_FALSE(recorder.MeasureText(u"Ahoy", {u"Arial", 14.0F}, {}).has_value());
}

TEST_F(Recorder, AFrameEndsWithTheFailureThatItIsSetTo)
{
  recorder.failCode = -7;
  recorder.failMessage = "full";
  EXPECT_EQ(recorder.EndFrame().code, 0);
  recorder.failing = DrawingFailure::FrameEnd;
  const FrameResult result = recorder.EndFrame();
  EXPECT_EQ(result.code, -7);
  EXPECT_EQ(result.message, "full");
}

TEST_F(Recorder, OnlyTheStepThatIsSetToFailFails)
{
  recorder.failingStep = TargetStep::Texts;
  recorder.failCode = -7;
  EXPECT_EQ(recorder.Prepare(TargetStep::Picture, {}).code, 0);
  EXPECT_EQ(recorder.Prepare(TargetStep::Texts, {}).code, -7);
  recorder.yieldsNothing = true;
  EXPECT_EQ(recorder.Prepare(TargetStep::Texts, {}).code, 0);
  EXPECT_FALSE(recorder.Prepare(TargetStep::Texts, {}).yielded);
}

}  // namespace
}  // namespace hullwright
