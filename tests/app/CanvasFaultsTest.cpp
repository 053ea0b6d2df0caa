#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "support/AppFixture.h"

namespace hullwright {
namespace {

constexpr ResultCode otherFailure = static_cast<ResultCode>(0x80004005U);

/// What a session with the editor has left.
struct Outcome {
  std::string design;              ///< as it is saved
  std::vector<std::string> frame;  ///< the last one
  int frames = 0;
  int framesOfDrag = 0;
};

/// A session in which a device that fails must not cost the design anything.
class CanvasFaults : public test::AppFixture {
protected:
  /// Drags a vertex, draws a polyline, zooms, changes the side and saves.
  Outcome Session(test::RecordedDrawing& drawing)
  {
    Outcome outcome;
    Editor other(ports);
    CHullwrightView& seen = other.view;
    other.frame.hasWindow = true;
    seen.OnCreate(&drawing);
    seen.OnSize(800, 600);
    test::AddLine(other.app, ViewSide::Top, {{10, 20, 0}, {30, 40, 0}, {-50, 10, 0}});
    other.app.NotifyModified();
    outcome.framesOfDrag = -drawing.Frames();
    Drag(seen);
    outcome.framesOfDrag += drawing.Frames();
    seen.OnCommand(CommandId::DrawPolyline);
    for (const ClientPoint vertex : {ClientPoint{100, 100}, {300, 200}}) {
      seen.OnMouseMove(false, vertex);
      seen.OnLButtonDown(vertex);
    }
    seen.OnRButtonDown({10, 10});
    seen.OnMouseWheel(120, {500, 200});
    other.app.SetViewSide(ViewSide::Right);
    seen.OnSize(640, 480);
    other.app.SetViewSide(ViewSide::Top);
    seen.OnCommand(CommandId::ShowAll);
    EXPECT_TRUE(other.document.OnSaveDocument(dataFolder.File("boat.xml")));
    outcome.design = dataFolder.Read("boat.xml");
    outcome.frame = drawing.Frame();
    outcome.frames = drawing.Frames();
    return outcome;
  }

  static void Drag(CHullwrightView& seen)
  {
    seen.OnMouseMove(false, {520, 140});
    seen.OnLButtonDown({520, 140});
    for (const ClientPoint point : {ClientPoint{540, 160}, {580, 190}, {600, 220}}) {
      seen.OnMouseMove(true, point);
      EXPECT_TRUE(seen.dragging);
    }
    seen.OnLButtonUp({600, 220});
  }

  /// A session in which one frame fails, and with it a step of making the target ready again.
  Outcome SessionThatFailsAt(int lost, ResultCode code, std::optional<TargetStep> step = {})
  {
    test::RecordedDrawing drawing;
    int begun = 0;
    drawing.failCode = code;
    drawing.onFrame = [&] {
      const bool fails = begun++ == lost;
      drawing.failing = fails ? DrawingFailure::FrameEnd : DrawingFailure::None;
      if (fails) drawing.failingStep = step;
    };
    return Session(drawing);
  }

  Outcome UndisturbedSession()
  {
    test::RecordedDrawing drawing;
    return Session(drawing);
  }

  const Outcome undisturbed = UndisturbedSession();
};

TEST_F(CanvasFaults, TheSessionChangesTheDesignAndDrawsItsDrag)
{
  EXPECT_GE(undisturbed.framesOfDrag, 3);
  EXPECT_GT(undisturbed.frames, undisturbed.framesOfDrag + 5);
  EXPECT_NE(undisturbed.design.find(R"(<vertex x="50.000" y="20.000" z="0.000" />)"),
            std::string::npos);
  EXPECT_NE(undisturbed.design.find(R"(<vertex x="-75.000" y="50.000" z="0.000" />)"),
            std::string::npos)
      << undisturbed.design;
}

TEST_F(CanvasFaults, AStepThatFailsAtTheStartCostsThePictureAndNothingElse)
{
  for (std::size_t step = 0; step < targetSteps; ++step) {
    test::RecordedDrawing drawing;
    drawing.failingStep = static_cast<TargetStep>(step);
    const Outcome outcome = Session(drawing);
    EXPECT_EQ(outcome.design, undisturbed.design) << step;
    EXPECT_EQ(outcome.frames, 0) << step;
  }
}

TEST_F(CanvasFaults, ADeviceThatIsLostAtAnyFrameIsMadeReadyAgain)
{
  for (int lost = 0; lost < undisturbed.frames; ++lost) {
    const Outcome outcome = SessionThatFailsAt(lost, recreateTarget);
    EXPECT_EQ(outcome.design, undisturbed.design) << lost;
    EXPECT_EQ(outcome.frames, undisturbed.frames) << lost;
    EXPECT_EQ(outcome.frame, undisturbed.frame) << lost;
  }
}

TEST_F(CanvasFaults, ADeviceThatDoesNotComeBackCostsThePictureAndNothingElse)
{
  for (int lost = 0; lost < undisturbed.frames; ++lost) {
    for (std::size_t step = 0; step < targetSteps; ++step) {
      const Outcome outcome =
          SessionThatFailsAt(lost, recreateTarget, static_cast<TargetStep>(step));
      EXPECT_EQ(outcome.design, undisturbed.design) << lost << ' ' << step;
      EXPECT_EQ(outcome.frames, lost + 1) << lost << ' ' << step;
    }
  }
}

TEST_F(CanvasFaults, AnyOtherFailureOfAFrameIsOverWithTheNextOne)
{
  for (int lost = 0; lost < undisturbed.frames; ++lost) {
    const Outcome outcome = SessionThatFailsAt(lost, otherFailure);
    EXPECT_EQ(outcome.design, undisturbed.design) << lost;
    EXPECT_EQ(outcome.frames, undisturbed.frames) << lost;
    EXPECT_EQ(outcome.frame, undisturbed.frame) << lost;
  }
}

}  // namespace
}  // namespace hullwright
