#include "render/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <ostream>

#include "support/RecordedDrawing.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class CanvasTest : public testing::Test {
protected:
  static constexpr std::array<TargetStep, 4> heldSteps = {TargetStep::Drawing, TargetStep::Picture,
                                                          TargetStep::Texts, TargetStep::Imaging};

  bool HoldsNothing() const
  {
    return canvas.Target() == nullptr &&
           std::ranges::none_of(heldSteps, [this](TargetStep step) { return canvas.Holds(step); });
  }

  test::RecordedDrawing recorder;
  CCanvas canvas;
};

TEST_F(CanvasTest, InitializeTakesItsStepsInOrder)
{
  EXPECT_TRUE(canvas.Initialize(&recorder));
  EXPECT_THAT(recorder.Lines(),
              ElementsAre("factory", "target 800 600 96 96", "write factory", "imaging factory"));
  EXPECT_EQ(canvas.Target(), &recorder);
  EXPECT_TRUE(
      std::ranges::all_of(heldSteps, [this](TargetStep step) { return canvas.Holds(step); }));
  EXPECT_EQ(canvas.errorText, "");
}

TEST_F(CanvasTest, ANullWindowFailsBeforeAnythingIsMade)
{
  EXPECT_FALSE(canvas.Initialize(nullptr));
  EXPECT_EQ(canvas.errorText, "Failed to initialize Canvas, hWnd == nullptr or window is invalid!");
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(CanvasTest, AnInvalidWindowFailsAlike)
{
  recorder.failingStep = TargetStep::Window;
  EXPECT_FALSE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.window, &recorder);
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(CanvasTest, AWindowWithoutAClientAreaFailsWithoutAMessage)
{
  recorder.failingStep = TargetStep::ClientArea;
  canvas.errorText = "kept";
  EXPECT_FALSE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.errorText, "kept");
  EXPECT_THAT(recorder.Lines(), ElementsAre("factory"));
}

struct Failure {
  TargetStep step;
  const char* text;
  std::size_t steps;  ///< how far it got
};

std::ostream& operator<<(std::ostream& out, const Failure& row) { return out << row.text; }

class CanvasFailure : public CanvasTest, public testing::WithParamInterface<Failure> {};

TEST_P(CanvasFailure, IsReportedWordForWordAndLeavesTheObjectsAlone)
{
  recorder.failingStep = GetParam().step;
  recorder.failCode = static_cast<ResultCode>(0x8007000EU);
  EXPECT_FALSE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.errorText, std::string(GetParam().text) + " 0x8007000E");
  EXPECT_TRUE(HoldsNothing());
  EXPECT_EQ(recorder.Lines().size(), GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, CanvasFailure,
    testing::Values(Failure{TargetStep::Drawing,
                            "Failed to initialize Canvas, D2D1CreateFactory failed with error", 1},
                    Failure{TargetStep::Picture,
                            "Failed to initialize Canvas, CreateHwndRenderTarget failed with error",
                            2},
                    Failure{TargetStep::Texts,
                            "Failed to initialize Canvas, DWriteCreateFactory failed with error",
                            3},
                    Failure{TargetStep::Imaging,
                            "Failed to initialize Canvas, cannot create WIC instance, error", 4}));

TEST_F(CanvasTest, AStepThatHasToYieldAndDoesNotIsAFailureWithItsCode)
{
  recorder.failingStep = TargetStep::Drawing;
  recorder.yieldsNothing = true;
  EXPECT_FALSE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.errorText,
            "Failed to initialize Canvas, D2D1CreateFactory failed with error 0x00000000");
  recorder.failingStep = TargetStep::Texts;
  EXPECT_FALSE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.errorText,
            "Failed to initialize Canvas, DWriteCreateFactory failed with error 0x00000000");
}

TEST_F(CanvasTest, ImagingMayYieldNothing)
{
  recorder.failingStep = TargetStep::Imaging;
  recorder.yieldsNothing = true;
  EXPECT_TRUE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.Target(), &recorder);
  EXPECT_FALSE(canvas.Holds(TargetStep::Imaging));
}

TEST_F(CanvasTest, APictureThatIsNotYieldedIsNoFailureButLeavesNothingToDrawOn)
{
  recorder.failingStep = TargetStep::Picture;
  recorder.yieldsNothing = true;
  EXPECT_TRUE(canvas.Initialize(&recorder));
  EXPECT_EQ(canvas.errorText, "");
  EXPECT_EQ(canvas.Target(), nullptr);
  EXPECT_TRUE(canvas.Holds(TargetStep::Texts));
}

TEST_F(CanvasTest, AFailedSecondInitializeKeepsWhatTheFirstGave)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  test::RecordedDrawing other;
  other.failingStep = TargetStep::Imaging;
  EXPECT_FALSE(canvas.Initialize(&other));
  EXPECT_EQ(canvas.Target(), &recorder);
  EXPECT_TRUE(
      std::ranges::all_of(heldSteps, [this](TargetStep step) { return canvas.Holds(step); }));
  EXPECT_EQ(canvas.window, &other);
}

TEST_F(CanvasTest, TheTargetIsMadeAtTheResolutionOfTheCanvas)
{
  canvas.resolution = {120.0F, 144.0F};
  EXPECT_TRUE(canvas.Initialize(&recorder));
  EXPECT_EQ(recorder.Lines().at(1), "target 800 600 120 144");
}

TEST_F(CanvasTest, ASecondInitializeReplacesWhatTheFirstGave)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  test::RecordedDrawing other;
  ASSERT_TRUE(canvas.Initialize(&other));
  EXPECT_EQ(canvas.Target(), &other);
  EXPECT_EQ(other.Lines().size(), 4U);
}

TEST_F(CanvasTest, ReleaseResourcesKeepsWindowResolutionAndErrorText)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  canvas.errorText = "kept";
  canvas.ReleaseResources();
  EXPECT_TRUE(HoldsNothing());
  EXPECT_EQ(canvas.window, &recorder);
  EXPECT_EQ(canvas.resolution.x, 96.0F);
  EXPECT_EQ(canvas.resolution.y, 96.0F);
  EXPECT_EQ(canvas.errorText, "kept");
  EXPECT_TRUE(canvas.Initialize(&recorder));
}

TEST_F(CanvasTest, APolylineIsAnOpenHollowPathThatBeginsWithItsFirstPointTwice)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  const std::array<PixelPoint, 2> points = {{{1.0F, 2.0F}, {3.0F, 4.5F}}};
  canvas.DrawPolyline(points, {{}, 2.0F});
  EXPECT_EQ(recorder.Lines().back(),
            "geometry round hollow 1,2 : 1,2 3,4.5 open width 2 colour 0 0 0 1");
}

TEST_F(CanvasTest, APolylineOfOnePointOrNoneDrawsNothing)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  const std::array<PixelPoint, 1> point = {};
  const std::size_t before = recorder.calls.size();
  canvas.DrawPolyline(point, {});
  canvas.DrawPolyline({}, {});
  EXPECT_EQ(recorder.calls.size(), before);
}

TEST_F(CanvasTest, WithoutATargetNothingIsDrawnMeasuredOrWritten)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  const TextStyle style{u"Arial", 14.0F};
  EXPECT_TRUE(canvas.CanWrite(style));
  canvas.ReleaseResources();
  const std::array<PixelPoint, 2> points = {};
  const std::size_t before = recorder.calls.size();
  canvas.DrawPolyline(points, {});
  EXPECT_EQ(recorder.calls.size(), before);
  EXPECT_FALSE(canvas.CanWrite(style));
  EXPECT_FALSE(canvas.MeasureText(u"abcd", style).has_value());
}

TEST_F(CanvasTest, AStyleThatTextsCannotHaveIsNeitherMeasuredNorWritten)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  recorder.failing = DrawingFailure::TextStyle;
  EXPECT_FALSE(canvas.CanWrite({u"Arial", 14.0F}));
  EXPECT_FALSE(canvas.MeasureText(u"abcd", {u"Arial", 14.0F}).has_value());
}

TEST_F(CanvasTest, ATextIsMeasuredInItsStyleAsWrappedAtAThousandPixels)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  const auto size = canvas.MeasureText(u"abcd", {u"Consolas", 10.0F});
  ASSERT_TRUE(size.has_value());
  EXPECT_EQ(size->width, 20.0F);
  EXPECT_EQ(size->height, 10.0F);
  EXPECT_EQ(recorder.measuredWithin.width, 1000.0F);
  EXPECT_EQ(recorder.measuredWithin.height, 100.0F);
}

TEST_F(CanvasTest, AFrameThatSucceededChangesNothing)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  canvas.EndFrame({});
  EXPECT_EQ(canvas.errorText, "");
  canvas.errorText = "kept";
  recorder.calls.clear();
  canvas.EndFrame({});
  EXPECT_EQ(canvas.errorText, "kept");
  EXPECT_TRUE(recorder.Lines().empty());
}

TEST_F(CanvasTest, AFailedFrameKeepsItsTextAndItsTarget)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  recorder.calls.clear();
  canvas.EndFrame({static_cast<ResultCode>(0x8007000EU), "Not enough memory\r\n"});
  EXPECT_EQ(canvas.errorText, "Error 0x8007000E (Not enough memory)");
  EXPECT_EQ(canvas.Target(), &recorder);
  EXPECT_TRUE(recorder.Lines().empty());  // only a lost device is made anew
}

TEST_F(CanvasTest, AFrameIsAFailureWithAnyCodeButZero)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  canvas.EndFrame({1, {}});
  EXPECT_THAT(canvas.errorText, testing::StartsWith("Error 0x00000001 ("));
}

TEST_F(CanvasTest, CodesWithoutATextGetOneOfTheGeneralForms)
{
  const auto text = [](std::uint32_t code) {
    return ErrorMessage({static_cast<ResultCode>(code), {}});
  };
  EXPECT_EQ(text(0x80040203U), "IDispatch error #3");
  EXPECT_EQ(text(0x80040200U), "Unknown error 0x80040200");
  EXPECT_EQ(text(0x8004FFFFU), "IDispatch error #65023");
  EXPECT_EQ(text(0x80050000U), "Unknown error 0x80050000");
  EXPECT_EQ(text(0x00000005U), "Unknown error 0x5");
}

TEST_F(CanvasTest, ALostDeviceIsMadeAnew)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  recorder.calls.clear();
  canvas.EndFrame({recreateTarget, {}});
  EXPECT_EQ(canvas.errorText, "Error 0x8899000C (Unknown error 0x8899000C)");
  EXPECT_EQ(recorder.Lines().size(), 4U);
  EXPECT_EQ(canvas.Target(), &recorder);
}

TEST_F(CanvasTest, ALostDeviceThatCannotBeMadeAnewLeavesNoTarget)
{
  ASSERT_TRUE(canvas.Initialize(&recorder));
  recorder.failingStep = TargetStep::Picture;
  canvas.EndFrame({recreateTarget, {}});
  EXPECT_TRUE(HoldsNothing());
  EXPECT_TRUE(canvas.errorText.starts_with("Failed to initialize Canvas, CreateHwndRenderTarget"));
}

}  // namespace
}  // namespace hullwright
