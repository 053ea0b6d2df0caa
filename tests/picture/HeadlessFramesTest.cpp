#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "cli/HeadlessEditor.h"
#include "headless/DrawingRecorder.h"
#include "paint/PaintSurface.h"

namespace hullwright {
namespace {

std::ptrdiff_t Frames(const DrawingRecorder& recorder)
{
  return std::ranges::count_if(recorder.calls, [](const DrawingCall& call) {
    return std::holds_alternative<FrameBegun>(call);
  });
}

TEST(HeadlessFrames, OnlyWhatIsAskedForIsDrawn)
{
  DrawingRecorder recorder;
  HeadlessEditor editor(recorder);
  ASSERT_TRUE(editor.Open(WideFromUtf8(HULLWRIGHT_SAMPLES "/workboat.xml")));
  ASSERT_TRUE(editor.Import(WideFromUtf8(HULLWRIGHT_TEST_DATA "/picture/drawings/labels.dxf")));
  editor.ShowSide(ViewSide::Top, 640, 400);
  EXPECT_EQ(Frames(recorder), 0);
  editor.Draw();
  EXPECT_EQ(Frames(recorder), 1);
  EXPECT_GT(LastFrame(recorder.calls).size(), 20U);
  editor.ShowSide(ViewSide::Front, 320, 200, {0.0, 0.0, 64.0, 40.0});
  EXPECT_EQ(Frames(recorder), 1);
  editor.Draw();
  EXPECT_EQ(Frames(recorder), 2);
}

TEST(HeadlessFrames, AreDrawnAtTheSizeThatTheSideIsShownAt)
{
  DrawingRecorder recorder;
  HeadlessEditor editor(recorder);
  editor.ShowSide(ViewSide::Top, 640, 400);
  editor.Draw();
  const auto resized = std::ranges::find_if(recorder.calls, [](const DrawingCall& call) {
    return std::holds_alternative<PictureResized>(call);
  });
  ASSERT_NE(resized, recorder.calls.end());
  EXPECT_EQ(std::get<PictureResized>(*resized).width, 640);
  EXPECT_EQ(std::get<PictureResized>(*resized).height, 400);
}

TEST(HeadlessFrames, APictureThatIsPaintedElsewhereTakesNoMemory)
{
  PaintSurface surface(10, 10);
  QImage page(20, 20, QImage::Format_RGB32);
  surface.SetDevice(&page);
  surface.Allocate(20, 20);
  EXPECT_TRUE(surface.Picture().isNull());
  EXPECT_EQ(surface.Device(), &page);
  EXPECT_EQ(surface.Width(), 20);
  surface.SetDevice(nullptr);
  EXPECT_EQ(surface.Device(), nullptr);
  surface.Allocate(20, 20);
  EXPECT_EQ(surface.Device(), &surface.Picture());
}

}  // namespace
}  // namespace hullwright
