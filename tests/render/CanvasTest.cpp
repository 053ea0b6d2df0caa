#include "render/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "support/RecordingBackEnd.h"

namespace hullwright {
namespace {

using test::FailAt;
using testing::ElementsAre;

class CanvasTest : public testing::Test {
protected:
  bool HoldsNothing() const
  {
    return !canvas.renderTarget && !canvas.factory && !canvas.writeFactory &&
           !canvas.imagingFactory;
  }

  test::RecordingBackEnd backEnd;
  test::RecordingWindow window;
  CCanvas canvas{backEnd};
};

TEST_F(CanvasTest, InitializeMakesItsObjectsInOrder)
{
  EXPECT_TRUE(canvas.Initialize(&window));
  EXPECT_THAT(backEnd.log,
              ElementsAre("factory", "target 800 600 96 96", "write factory", "imaging factory"));
  EXPECT_TRUE(canvas.renderTarget && canvas.factory && canvas.writeFactory &&
              canvas.imagingFactory);
  EXPECT_EQ(canvas.errorText, "");
}

TEST_F(CanvasTest, ANullWindowFailsBeforeAnythingIsMade)
{
  EXPECT_FALSE(canvas.Initialize(nullptr));
  EXPECT_EQ(canvas.errorText, "Failed to initialize Canvas, hWnd == nullptr or window is invalid!");
  EXPECT_TRUE(backEnd.log.empty());
}

TEST_F(CanvasTest, AnInvalidWindowFailsAlike)
{
  window.isWindow = false;
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.window, &window);
  EXPECT_TRUE(backEnd.log.empty());
}

TEST_F(CanvasTest, AWindowWithoutAClientAreaFailsWithoutAWord)
{
  window.size.reset();
  canvas.errorText = "kept";
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.errorText, "kept");
  EXPECT_THAT(backEnd.log, ElementsAre("factory"));
}

struct Failure {
  FailAt step;
  const char* text;
  std::size_t steps;  ///< how far it got
};

class CanvasFailure : public CanvasTest, public testing::WithParamInterface<Failure> {};

TEST_P(CanvasFailure, IsToldInItsWordsAndLeavesTheObjectsAlone)
{
  backEnd.failAt = GetParam().step;
  backEnd.failCode = static_cast<ResultCode>(0x8007000EU);
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.errorText, std::string(GetParam().text) + " 0x8007000E");
  EXPECT_TRUE(HoldsNothing());
  EXPECT_EQ(backEnd.log.size(), GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, CanvasFailure,
    testing::Values(Failure{FailAt::DrawFactory,
                            "Failed to initialize Canvas, D2D1CreateFactory failed with error", 1},
                    Failure{FailAt::WindowTarget,
                            "Failed to initialize Canvas, CreateHwndRenderTarget failed with error",
                            2},
                    Failure{FailAt::WriteFactory,
                            "Failed to initialize Canvas, DWriteCreateFactory failed with error",
                            3},
                    Failure{FailAt::ImagingFactory,
                            "Failed to initialize Canvas, cannot create WIC instance, error", 4}));

TEST_F(CanvasTest, AFactoryThatIsNotYieldedIsAFailureWithItsCode)
{
  backEnd.failAt = FailAt::DrawFactory;
  backEnd.emptyInsteadOfFailure = true;
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.errorText,
            "Failed to initialize Canvas, D2D1CreateFactory failed with error 0x00000000");
  backEnd.failAt = FailAt::WriteFactory;
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.errorText,
            "Failed to initialize Canvas, DWriteCreateFactory failed with error 0x00000000");
}

TEST_F(CanvasTest, AFailedSecondInitializeKeepsTheObjectsOfTheFirst)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const IRenderTarget* const target = canvas.renderTarget.get();
  backEnd.failAt = FailAt::ImagingFactory;
  EXPECT_FALSE(canvas.Initialize(&window));
  EXPECT_EQ(canvas.renderTarget.get(), target);
}

TEST_F(CanvasTest, ASecondInitializeReplacesTheObjectsOfTheFirst)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const IRenderTarget* const target = canvas.renderTarget.get();
  ASSERT_TRUE(canvas.Initialize(&window));
  EXPECT_NE(canvas.renderTarget.get(), target);
  EXPECT_EQ(backEnd.log.size(), 8U);
}

TEST_F(CanvasTest, ReleaseResourcesKeepsWindowResolutionAndErrorText)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  canvas.errorText = "kept";
  canvas.ReleaseResources();
  EXPECT_TRUE(HoldsNothing());
  EXPECT_EQ(canvas.window, &window);
  EXPECT_EQ(canvas.dpiX, 96.0F);
  EXPECT_EQ(canvas.dpiY, 96.0F);
  EXPECT_EQ(canvas.errorText, "kept");
  EXPECT_TRUE(canvas.Initialize(&window));
}

TEST_F(CanvasTest, APolylineIsAnOpenHollowPathThatBeginsWithItsFirstPointTwice)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const auto brush = canvas.renderTarget->CreateSolidColourBrush({});
  const std::array<PixelPoint, 2> points = {{{1.0F, 2.0F}, {3.0F, 4.5F}}};
  canvas.DrawPolyline(*brush, points, 2.0F);
  EXPECT_EQ(backEnd.log.back(),
            "geometry round hollow 1,2 : 1,2 3,4.5 open width 2 colour 0 0 0 1");
}

TEST_F(CanvasTest, APolylineOfOnePointOrNoneDrawsNothing)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const auto brush = canvas.renderTarget->CreateSolidColourBrush({});
  const std::array<PixelPoint, 1> point = {};
  const std::size_t before = backEnd.log.size();
  canvas.DrawPolyline(*brush, point, 1.0F);
  canvas.DrawPolyline(*brush, {}, 1.0F);
  EXPECT_EQ(backEnd.log.size(), before);
}

TEST_F(CanvasTest, APathThatCannotBeMadeDrawsNothing)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const auto brush = canvas.renderTarget->CreateSolidColourBrush({});
  const std::array<PixelPoint, 2> points = {};
  const std::size_t before = backEnd.log.size();
  for (const FailAt step : {FailAt::PathGeometry, FailAt::PathOpen}) {
    backEnd.failAt = step;
    canvas.DrawPolyline(*brush, points, 1.0F);
  }
  EXPECT_EQ(backEnd.log.size(), before);
}

TEST_F(CanvasTest, WithoutResourcesThereAreNoFormatsAndNoGeometries)
{
  EXPECT_EQ(canvas.CreateFormat(u"Arial", 14.0F), nullptr);
  EXPECT_EQ(canvas.CreateGeometry(), nullptr);
}

TEST_F(CanvasTest, MeasureTextAsksTheFormat)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  const auto format = canvas.CreateFormat(u"Consolas", 10.0F);
  const PixelSize size = canvas.MeasureText(*format, u"abcd");
  EXPECT_EQ(size.width, 20.0F);
  EXPECT_EQ(size.height, 10.0F);
  EXPECT_EQ(backEnd.measuredWithin.width, 1000.0F);
  EXPECT_EQ(backEnd.measuredWithin.height, 100.0F);
  canvas.ReleaseResources();
  EXPECT_EQ(canvas.MeasureText(*format, u"abcd").width, 0.0F);
}

TEST_F(CanvasTest, AFrameThatSucceededChangesNothing)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  canvas.EndFrame(0);
  EXPECT_EQ(canvas.errorText, "");
}

TEST_F(CanvasTest, AFailedFrameKeepsItsTextAndItsTarget)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  backEnd.systemMessage = "Not enough memory\r\n";
  const IRenderTarget* const target = canvas.renderTarget.get();
  canvas.EndFrame(static_cast<ResultCode>(0x8007000EU));
  EXPECT_EQ(canvas.errorText, "Error 0x8007000E (Not enough memory)");
  EXPECT_EQ(canvas.renderTarget.get(), target);
}

TEST_F(CanvasTest, AFrameIsAFailureWithAnyCodeButZero)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  canvas.EndFrame(1);
  EXPECT_THAT(canvas.errorText, testing::StartsWith("Error 0x00000001 ("));
}

TEST_F(CanvasTest, CodesWithoutATextGetOneOfTheGeneralForms)
{
  const auto text = [this](std::uint32_t code) {
    return ErrorMessage(backEnd, static_cast<ResultCode>(code));
  };
  EXPECT_EQ(text(0x80040203U), "IDispatch error #3");
  EXPECT_EQ(text(0x80040200U), "Unknown error 0x80040200");
  EXPECT_EQ(text(0x8004FFFFU), "IDispatch error #65023");
  EXPECT_EQ(text(0x80050000U), "Unknown error 0x80050000");
  EXPECT_EQ(text(0x00000005U), "Unknown error 0x5");
}

TEST_F(CanvasTest, ALostDeviceIsMadeAnew)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  backEnd.log.clear();
  canvas.EndFrame(recreateTarget);
  EXPECT_EQ(canvas.errorText, "Error 0x8899000C (Unknown error 0x8899000C)");
  EXPECT_EQ(backEnd.log.size(), 4U);
  EXPECT_NE(canvas.renderTarget, nullptr);
}

TEST_F(CanvasTest, ALostDeviceThatCannotBeMadeAnewLeavesNoTarget)
{
  ASSERT_TRUE(canvas.Initialize(&window));
  backEnd.failAt = FailAt::WindowTarget;
  canvas.EndFrame(recreateTarget);
  EXPECT_TRUE(HoldsNothing());
  EXPECT_TRUE(canvas.errorText.starts_with("Failed to initialize Canvas, CreateHwndRenderTarget"));
}

}  // namespace
}  // namespace hullwright
