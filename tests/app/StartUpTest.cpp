#include <gmock/gmock.h>

#include "headless/NoDialogs.h"
#include "support/AppFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

/// Writes the steps of start-up and exit down, and fails where it is set to.
class FakeFramework : public IFramework {
public:
  void InitialiseControls() override { steps.emplace_back("controls"); }
  bool InitialiseLibraries() override { return Step("libraries"); }
  void OpenUserStore(const char* maker, int recentFiles) override
  {
    steps.push_back(std::string("store ") + maker + " " + std::to_string(recentFiles));
  }
  bool CreateDocumentTemplate() override { return Step("template"); }
  bool ProcessCommandLine() override { return Step("command line"); }
  void ShowMainWindow() override
  {
    steps.emplace_back("show");
    if (onStep) onStep();
  }
  void AcceptDroppedFiles() override
  {
    steps.emplace_back("drops");
    if (onStep) onStep();
  }
  void ReleaseLibraries() override { steps.emplace_back("release"); }

  std::vector<std::string> steps;
  std::string failAt;
  std::function<void()> onStep;  ///< when the window is shown, and when it takes drops

private:
  bool Step(const char* name)
  {
    steps.emplace_back(name);
    return failAt != name;
  }
};

class StartUp : public test::AppFixture {
protected:
  FakeFramework framework;
};

TEST_F(StartUp, RunsInOrderAndEndsOnTheTopSide)
{
  app.activeView = ViewSide::Rear;
  EXPECT_TRUE(app.InitInstance(framework));
  EXPECT_THAT(framework.steps, ElementsAre("controls", "libraries", "store Quillmere 4", "template",
                                           "command line", "show", "drops"));
  EXPECT_EQ(app.activeView, ViewSide::Top);
  EXPECT_EQ(frame.viewButtonImage, CommandId::ViewTop);
  EXPECT_EQ(Frames(), 1);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(StartUp, TheSideIsChosenBetweenTheWindowsShowAndItsFirstDrops)
{
  app.activeView = ViewSide::Rear;
  std::vector<ViewSide> sides;
  framework.onStep = [&] { sides.push_back(app.activeView); };
  ASSERT_TRUE(app.InitInstance(framework));
  EXPECT_THAT(sides, ElementsAre(ViewSide::Rear, ViewSide::Top));
}

TEST_F(StartUp, TheToolbarIsInvalidatedWithItsNewImageAndBeforeTheRepaint)
{
  std::vector<int> frames;
  widgets.onInvalidate = [&] { frames.push_back(Frames()); };
  app.SetViewSide(ViewSide::Left);
  EXPECT_THAT(frames, ElementsAre(0));
  EXPECT_EQ(Frames(), 1);
  EXPECT_THAT(widgets.calls, ElementsAre("image 32803", "invalidate"));
}

TEST_F(StartUp, LibrariesThatFailAreReported)
{
  framework.failAt = "libraries";
  EXPECT_FALSE(app.InitInstance(framework));
  EXPECT_THAT(framework.steps, ElementsAre("controls", "libraries"));
  EXPECT_THAT(messages.shown, ElementsAre(u"OLE initialization failed.  Make sure that the OLE "
                                          u"libraries are the correct version."));
}

TEST_F(StartUp, ATemplateThatFailsEndsItWithoutAMessage)
{
  framework.failAt = "template";
  EXPECT_FALSE(app.InitInstance(framework));
  EXPECT_EQ(framework.steps.back(), "template");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(StartUp, ACommandLineThatFailsEndsItWithoutAMessage)
{
  framework.failAt = "command line";
  EXPECT_FALSE(app.InitInstance(framework));
  EXPECT_EQ(framework.steps.back(), "command line");
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(StartUp, ExitReleasesTheLibrariesAndSavesNoSettings)
{
  EXPECT_EQ(app.ExitInstance(framework), 0);
  EXPECT_THAT(framework.steps, ElementsAre("release"));
  EXPECT_TRUE(settings.written.empty());
}

/// The application alone.
class Application : public testing::Test {
protected:
  MemorySettings settings;
  KeptMessages messages;
  NoDialogs dialogs;
  FileAnswers fileDialogs;
  CommonDataPorts commonData{messages, [](CommonData) { return std::u16string(); }};
  CHullwrightApp app{{settings, messages, dialogs, fileDialogs, commonData.units, commonData.log}};
};

TEST_F(Application, BeginsWithItsDefaults)
{
  EXPECT_EQ(app.cursorTool, CursorTool::None);
  EXPECT_EQ(app.paneStyleFlag, 1);
  EXPECT_TRUE(app.unitTable.empty());
  ASSERT_NE(app.viewPort, nullptr);
  EXPECT_EQ(app.viewPort->left, -100.0);
}

TEST_F(Application, BeforeTheFrameExistsASideIsOnlyStored)
{
  app.SetViewSide(ViewSide::Left);
  app.Repaint();
  app.NotifyDesignChanged();
  app.SetModifiedFlag(true);
  EXPECT_EQ(app.activeView, ViewSide::Left);
}

}  // namespace
}  // namespace hullwright
