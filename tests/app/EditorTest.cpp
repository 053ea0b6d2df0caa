#include <gmock/gmock.h>

#include <memory>
#include <vector>

#include "support/AppFixture.h"

namespace hullwright {
namespace {

using testing::ElementsAre;

class AssembledEditor : public test::AppFixture {};

TEST_F(AssembledEditor, AChangeReachesPictureTreeAndDocument)
{
  app.NotifyModified();
  EXPECT_EQ(Frames(), 1);
  EXPECT_EQ(control.rebuilds, 1);
  EXPECT_TRUE(document.IsModified());
  EXPECT_THAT(notified.list, ElementsAre("repaint", "tree", "modified"));
}

TEST_F(AssembledEditor, ReadsTheLookWhenItIsMade)
{
  settings.values["Workspace/ApplicationLook"] = 216;
  const Editor other(ports);
  EXPECT_EQ(other.app.applicationLook, Look::Black);
}

TEST_F(AssembledEditor, ItsListenerIsNotifiedBeforeAnythingComesOfIt)
{
  test::RecordedNotifications early;
  ports.listener = &early;
  const auto other = std::make_unique<Editor>(ports);
  std::vector<int> rebuilds;
  std::vector<bool> modified;
  early.onNotification = [&] {
    rebuilds.push_back(control.rebuilds);
    modified.push_back(other->document.IsModified());
  };
  other->frame.Notify(Notification::RebuildTree);
  other->frame.SetModifiedFlag(true);
  EXPECT_THAT(rebuilds, ElementsAre(0, 1));
  EXPECT_THAT(modified, ElementsAre(false, false));
  EXPECT_EQ(control.rebuilds, 1);
  EXPECT_TRUE(other->document.IsModified());
}

}  // namespace
}  // namespace hullwright
